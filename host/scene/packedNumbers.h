// SPDX-License-Identifier: Apache-2.0
// Numbers of a sparse array, kept as runs of neighbouring elements.
//
// A mesh's points, edges and UVs are one or a few long runs, so this costs little more than the
// numbers; a single element far away is a run of its own, so a huge index costs nothing.
#pragma once

#include <cstddef>
#include <map>
#include <vector>

namespace host
{

// The numbers of neighbouring elements. Grows cheaply at both ends: files count upwards, tools
// sometimes downwards.
class NumberRun
{
public:
    std::size_t size() const { return numbers_.size() - front_; }
    bool empty() const { return size() == 0; }
    double operator[](std::size_t place) const { return numbers_[front_ + place]; }
    double *data() { return numbers_.data() + front_; }
    const double *data() const { return numbers_.data() + front_; }
    void resize(std::size_t size) { numbers_.resize(front_ + size); }
    void append(const double *first, const double *last)
    {
        numbers_.insert(numbers_.end(), first, last);
    }
    // Makes room for `count` numbers before the first; they are to be set.
    void growFront(std::size_t count);
    bool operator==(const NumberRun &other) const;

private:
    std::vector<double> numbers_;
    std::size_t front_ = 0; // numbers that are only room
};

class PackedNumbers
{
public:
    explicit PackedNumbers(unsigned tupleSize = 1) : tupleSize_(tupleSize) {}

    unsigned tupleSize() const { return tupleSize_; }
    std::size_t elementCount() const { return elementCount_; }
    bool has(int index) const { return find(index) != nullptr; }
    // The element's first number, valid until the next change; null if there is no such element.
    const double *find(int index) const;
    // The element, made of `fill` if it is not there yet.
    double *findOrAdd(int index, double fill = 0.0);
    // Sets elements first, first + 1, ... from consecutive tuples.
    void setRun(int first, const double *numbers, std::size_t elements);
    bool erase(int index);
    int highestIndex() const; // -1 if empty
    std::vector<int> indices() const;
    // Runs by their first index; each holds run length * tupleSize() numbers.
    const std::map<int, NumberRun> &runs() const { return runs_; }

    bool operator==(const PackedNumbers &other) const { return runs_ == other.runs_; }

private:
    using Runs = std::map<int, NumberRun>;
    Runs::iterator runOf(int index);
    Runs::iterator runFor(int first, std::size_t elements);
    unsigned tupleSize_;
    std::size_t elementCount_ = 0;
    Runs runs_;
};

} // namespace host
