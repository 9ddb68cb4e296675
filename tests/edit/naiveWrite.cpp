// SPDX-License-Identifier: Apache-2.0
#include "edit/naiveWrite.h"

#include <algorithm>

naiveVertex naiveWrite(const std::vector<double> &weights, const std::map<int, double> &given,
                       const std::vector<bool> &held, int mode)
{
    const double kNothing = 1e-10;
    naiveVertex after = {weights, false};
    if (mode != 1) {
        for (const auto &one : given)
            after.weights[size_t(one.first)] = one.second;
        return after;
    }
    double heldSum = 0.0;
    double freeSum = 0.0;
    std::vector<size_t> free;
    for (size_t i = 0; i < weights.size(); ++i) {
        if (given.count(int(i)))
            continue;
        if (held[i]) {
            heldSum += weights[i];
        } else {
            free.push_back(i);
            freeSum += weights[i];
        }
    }
    const double room = std::max(0.0, 1.0 - heldSum);
    double rest = room;
    double givenSum = 0.0;
    for (const auto &one : given) {
        const bool fits = one.second >= 0.0 && one.second < rest + kNothing;
        const double taken = fits ? one.second : std::min(std::max(one.second, 0.0), rest);
        after.weights[size_t(one.first)] = taken;
        rest -= taken;
        givenSum += taken;
    }
    for (const size_t i : free) {
        if (rest < kNothing)
            after.weights[i] = 0.0;
        else if (freeSum > 0.0)
            after.weights[i] *= rest / freeSum;
        else
            after.isUnknown = true;
    }
    if (free.empty() && givenSum < room - kNothing) {
        for (const auto &one : given)
            after.weights[size_t(one.first)] =
                given.size() == 1
                    ? room
                    : after.weights[size_t(one.first)] * (givenSum > 0.0 ? room / givenSum : 1.0);
    }
    return after;
}
