// SPDX-License-Identifier: Apache-2.0
// What the text of an operand can mean: a flag, a number, a truth value.
//
// Independent of the locale: numbers are written as MEL and Maya ASCII write them, with a point.
#pragma once

#include <optional>
#include <string_view>

namespace host::mel
{

// A dash and a letter: -type, and -nan too.
bool looksLikeFlag(std::string_view text);
// nan, -nan, inf, -nan(ind), -1.#IND: numbers that look like words.
bool isNotFinite(std::string_view text);

// The whole text as a number; the words true, on and yes are 1, false, off and no are 0. What is
// too large becomes infinite, what is too small 0.
std::optional<double> toNumber(std::string_view text);
// The same without its fraction; nothing if it is too large for a long long.
std::optional<long long> toInteger(std::string_view text);
// The words above, and numbers: all but 0 are true.
std::optional<bool> toBoolean(std::string_view text);

// What error texts call it: "int", "double" or "string".
std::string_view typeName(std::string_view text);

} // namespace host::mel
