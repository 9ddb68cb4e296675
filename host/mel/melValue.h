// SPDX-License-Identifier: Apache-2.0
// What a MEL command gives back.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace host::mel
{

// monostate: the command has no result. Booleans are integers.
using MelValue =
    std::variant<std::monostate, long long, double, std::string, std::vector<long long>,
                 std::vector<double>, std::vector<std::string>>;

// As print and the result line show it: elements joined by one blank.
std::string toText(const MelValue &value);
// Numbers with the digits that MEL shows ("0.5", "1", "0.333333").
std::string toText(double number);

} // namespace host::mel
