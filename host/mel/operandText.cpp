// SPDX-License-Identifier: Apache-2.0
#include "mel/operandText.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "mel/characters.h"

namespace host::mel
{

namespace
{

std::optional<int> truthWord(std::string_view text)
{
    if (text == "true" || text == "on" || text == "yes")
        return 1;
    if (text == "false" || text == "off" || text == "no")
        return 0;
    return std::nullopt;
}

// The value of a number that double can't hold: huge, or as good as 0.
double outOfRange(std::string_view digits)
{
    const std::size_t exponent = digits.find_first_of("eE");
    const bool isTiny = exponent == std::string_view::npos ? digits.find_first_not_of("0.") > 1
                                                           : digits.substr(exponent + 1, 1) == "-";
    return isTiny ? 0.0 : std::numeric_limits<double>::infinity();
}

// What older Windows run-times write behind "1." for numbers that are none: #INF, #IND, #QNAN.
std::optional<double> windowsNumber(std::string_view tail)
{
    if (tail.substr(0, 4) == "#INF")
        return std::numeric_limits<double>::infinity();
    if (tail.substr(0, 4) == "#IND" || tail.substr(0, 5) == "#QNAN" || tail.substr(0, 5) == "#SNAN")
        return std::numeric_limits<double>::quiet_NaN();
    return std::nullopt;
}

// A number without its sign.
std::optional<double> unsignedNumber(std::string_view digits)
{
    if (digits.empty() || digits.front() == '-')
        return std::nullopt;
    double value = 0.0;
    const char *end = digits.data() + digits.size();
    const auto [rest, status] = std::from_chars(digits.data(), end, value);
    if (status == std::errc::invalid_argument)
        return std::nullopt;
    if (rest != end)
        return windowsNumber({rest, static_cast<std::size_t>(end - rest)});
    return status == std::errc::result_out_of_range ? outOfRange(digits) : value;
}

std::optional<double> plainNumber(std::string_view text)
{
    const bool isNegative = !text.empty() && text.front() == '-';
    const bool hasSign = isNegative || (!text.empty() && text.front() == '+');
    std::optional<double> value = unsignedNumber(text.substr(hasSign ? 1 : 0));
    if (value && isNegative)
        value = -*value;
    return value;
}

} // namespace

bool looksLikeFlag(std::string_view text)
{
    return text.size() >= 2 && text[0] == '-' && isOf(text[1], kLetter);
}

bool isNotFinite(std::string_view text)
{
    const std::optional<double> value = plainNumber(text);
    return value && !std::isfinite(*value);
}

std::optional<double> toNumber(std::string_view text)
{
    if (const auto value = plainNumber(text))
        return value;
    if (const auto truth = truthWord(text))
        return *truth;
    return std::nullopt;
}

std::optional<long long> toInteger(std::string_view text)
{
    long long value = 0;
    const char *end = text.data() + text.size();
    const auto [rest, status] = std::from_chars(text.data(), end, value);
    if (rest == end && status == std::errc())
        return value;
    const std::optional<double> number = toNumber(text);
    constexpr double kLimit = 9.2e18; // below the largest long long, 2^63 - 1
    if (!number || !(std::fabs(*number) < kLimit))
        return std::nullopt;
    return static_cast<long long>(*number);
}

std::optional<bool> toBoolean(std::string_view text)
{
    const std::optional<double> number = toNumber(text);
    if (!number)
        return std::nullopt;
    return *number != 0.0;
}

std::string_view typeName(std::string_view text)
{
    const std::optional<double> number = toNumber(text);
    if (!number)
        return "string";
    const bool isWhole = text.find_first_of(".eE") == std::string_view::npos;
    return (isWhole && std::isfinite(*number)) || truthWord(text) ? "int" : "double";
}

} // namespace host::mel
