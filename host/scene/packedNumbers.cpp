// SPDX-License-Identifier: Apache-2.0
#include "scene/packedNumbers.h"

#include <algorithm>

namespace host
{

std::map<int, std::vector<double>>::iterator PackedNumbers::runOf(int index)
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

void PackedNumbers::setRun(int first, const double *numbers, std::size_t elements)
{
    const double *const end = numbers + elements * tupleSize_;
    auto run = runs_.upper_bound(first);
    if (run != runs_.begin()) {
        const auto before = std::prev(run);
        const int length = int(before->second.size() / tupleSize_);
        if (first - before->first <= length)
            run = before; // overwrites or continues this run
        else
            run = runs_.emplace(first, std::vector<double>()).first;
    } else {
        run = runs_.emplace(first, std::vector<double>()).first;
    }
    std::vector<double> &values = run->second;
    elementCount_ -= values.size() / tupleSize_;
    const std::size_t offset = std::size_t(first - run->first) * tupleSize_;
    values.resize(std::max(values.size(), offset + std::size_t(end - numbers)));
    std::copy(numbers, end, values.begin() + long(offset));

    // Runs that the new one reaches become part of it.
    auto next = std::next(run);
    while (next != runs_.end() && next->first - run->first <= int(values.size() / tupleSize_)) {
        const std::size_t covered =
            values.size() - std::size_t(next->first - run->first) * tupleSize_;
        elementCount_ -= next->second.size() / tupleSize_;
        if (covered < next->second.size())
            values.insert(values.end(), next->second.begin() + long(covered), next->second.end());
        next = runs_.erase(next);
    }
    elementCount_ += values.size() / tupleSize_;
}

bool PackedNumbers::erase(int index)
{
    const auto run = runOf(index);
    if (run == runs_.end())
        return false;
    const long offset = long(index - run->first) * long(tupleSize_);
    std::vector<double> &values = run->second;
    std::vector<double> rest(values.begin() + offset + long(tupleSize_), values.end());
    values.resize(std::size_t(offset));
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
