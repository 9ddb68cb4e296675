// SPDX-License-Identifier: Apache-2.0
#include "scene/packedNumbers.h"

#include <algorithm>

namespace host
{

void NumberRun::growFront(std::size_t count)
{
    if (count > front_) {
        const std::size_t room = size(); // as much again, so that many small steps stay cheap
        std::vector<double> larger(room + count + size());
        std::copy(numbers_.begin() + long(front_), numbers_.end(),
                  larger.begin() + long(room + count));
        numbers_ = std::move(larger);
        front_ = room + count;
    }
    front_ -= count;
}

bool NumberRun::operator==(const NumberRun &other) const
{
    return std::equal(data(), data() + size(), other.data(), other.data() + other.size());
}

PackedNumbers::Runs::iterator PackedNumbers::runOf(int index)
{
    auto run = runs_.upper_bound(index);
    if (run == runs_.begin())
        return runs_.end();
    --run;
    const int length = int(run->second.size() / tupleSize_);
    return index - run->first < length ? run : runs_.end();
}

const double *PackedNumbers::find(int index) const
{
    const auto run = const_cast<PackedNumbers *>(this)->runOf(index);
    if (run == runs_.end())
        return nullptr;
    return run->second.data() + std::size_t(index - run->first) * tupleSize_;
}

double *PackedNumbers::findOrAdd(int index, double fill)
{
    auto run = runOf(index);
    if (run == runs_.end()) {
        const std::vector<double> tuple(tupleSize_, fill);
        setRun(index, tuple.data(), 1);
        run = runOf(index);
    }
    return run->second.data() + std::size_t(index - run->first) * tupleSize_;
}

// The run that elements from `first` on overwrite or lengthen; a new one if there is none.
PackedNumbers::Runs::iterator PackedNumbers::runFor(int first, std::size_t elements)
{
    const auto next = runs_.upper_bound(first);
    if (next != runs_.begin()) {
        const auto before = std::prev(next);
        if (first - before->first <= int(before->second.size() / tupleSize_))
            return before;
    }
    const bool reachesNext = next != runs_.end() && next->first - first <= long(elements);
    if (!reachesNext)
        return runs_.emplace(first, NumberRun()).first;
    auto moved = runs_.extract(next);
    moved.mapped().growFront(std::size_t(moved.key() - first) * tupleSize_);
    elementCount_ += std::size_t(moved.key() - first);
    moved.key() = first;
    return runs_.insert(std::move(moved)).position;
}

void PackedNumbers::setRun(int first, const double *numbers, std::size_t elements)
{
    if (elements == 0)
        return;
    const double *const end = numbers + elements * tupleSize_;
    const auto run = runFor(first, elements);
    NumberRun &values = run->second;
    elementCount_ -= values.size() / tupleSize_;
    const std::size_t offset = std::size_t(first - run->first) * tupleSize_;
    values.resize(std::max(values.size(), offset + std::size_t(end - numbers)));
    std::copy(numbers, end, values.data() + offset);

    // Runs that the new one reaches become part of it.
    auto next = std::next(run);
    while (next != runs_.end() && next->first - run->first <= int(values.size() / tupleSize_)) {
        const std::size_t covered =
            values.size() - std::size_t(next->first - run->first) * tupleSize_;
        const NumberRun &other = next->second;
        elementCount_ -= other.size() / tupleSize_;
        if (covered < other.size())
            values.append(other.data() + covered, other.data() + other.size());
        next = runs_.erase(next);
    }
    elementCount_ += values.size() / tupleSize_;
}

bool PackedNumbers::erase(int index)
{
    const auto run = runOf(index);
    if (run == runs_.end())
        return false;
    const std::size_t offset = std::size_t(index - run->first) * tupleSize_;
    NumberRun &values = run->second;
    NumberRun rest;
    rest.append(values.data() + offset + tupleSize_, values.data() + values.size());
    values.resize(offset);
    if (values.empty())
        runs_.erase(run);
    if (!rest.empty())
        runs_.emplace(index + 1, std::move(rest));
    --elementCount_;
    return true;
}

int PackedNumbers::highestIndex() const
{
    if (runs_.empty())
        return -1;
    const auto &last = *runs_.rbegin();
    return last.first + (int(last.second.size() / tupleSize_) - 1);
}

std::vector<int> PackedNumbers::indices() const
{
    std::vector<int> result;
    result.reserve(elementCount_);
    for (const auto &run : runs_) {
        const int length = int(run.second.size() / tupleSize_);
        for (int i = 0; i < length; ++i)
            result.push_back(run.first + i);
    }
    return result;
}

} // namespace host
