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
    // Runs by their first index; each vector holds run length * tupleSize() numbers.
    const std::map<int, std::vector<double>> &runs() const { return runs_; }

    bool operator==(const PackedNumbers &other) const { return runs_ == other.runs_; }

private:
    std::map<int, std::vector<double>>::iterator runOf(int index);
    unsigned tupleSize_;
    std::size_t elementCount_ = 0;
    std::map<int, std::vector<double>> runs_;
};

} // namespace host
