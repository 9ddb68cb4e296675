// SPDX-License-Identifier: Apache-2.0
// Numbers for names that are taken: "hip" becomes "hip1", "j9" "j10" and "arm09" "arm10".
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace host
{

class NumberedNames
{
public:
    using IsTaken = std::function<bool(const std::string &name)>;

    // The first free name that counts on from `name`; "joint#" counts from 1. How Maya treats zeros
    // in front of a number is a guess: they stay as long as there is room for them.
    std::string next(std::string_view name, const IsTaken &isTaken);
    // `name` may be free again.
    void forget(std::string_view name);

private:
    // Numbers that were found taken, each with one above it where to look on: a thousandth "hip" is
    // named as fast as the second.
    using Skips = std::unordered_map<std::uint64_t, std::uint64_t>;
    std::unordered_map<std::string, Skips> skips_;
};

} // namespace host
