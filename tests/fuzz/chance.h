// SPDX-License-Identifier: Apache-2.0
// The choices of one case. The same seed gives the same case on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

class Chance
{
public:
    explicit Chance(std::uint64_t seed) : engine_(seed) {}

    // 0 to count - 1; REQUIRES: count > 0. The distributions of <random> differ between libraries.
    std::size_t below(std::size_t count) { return std::size_t(engine_() % count); }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <typename List>
    auto &pick(List &list)
    {
        return list[below(std::size(list))];
    }

private:
    std::mt19937_64 engine_;
};
