// SPDX-License-Identifier: Apache-2.0
#include "scene/value.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace host
{

namespace
{

struct NumberWord {
    std::string_view word;
    double number;
};

constexpr NumberWord kNumberWords[] = {
    {"yes", 1}, {"no", 0}, {"on", 1}, {"off", 0}, {"true", 1}, {"false", 0},
};

// Old Windows run-times wrote "1.#IND", "-1.#QNAN", "1.#INF" for what is no finite number.
bool parseWindowsNotFinite(std::string_view word, double &number)
{
    const std::size_t mark = word.find(".#");
    if (mark == std::string_view::npos)
        return false;
    const std::string_view kind = word.substr(mark + 2, 3);
    const double magnitude = kind == "INF" ? std::numeric_limits<double>::infinity()
                                           : std::numeric_limits<double>::quiet_NaN();
    number = word.front() == '-' ? -magnitude : magnitude;
    return kind == "INF" || kind == "IND" || kind == "QNA" || kind == "SNA";
}

} // namespace

bool parseNumber(const char *begin, const char *end, double &number)
{
    if (begin != end && *begin == '+')
        ++begin;
    const auto parsed = std::from_chars(begin, end, number);
    if (parsed.ptr == end && begin != end) {
        if (parsed.ec == std::errc::result_out_of_range) {
            // from_chars leaves the number alone; strtod's answer is 0 or infinity.
            number = std::strtod(std::string(begin, end).c_str(), nullptr);
            return true;
        }
        return parsed.ec == std::errc();
    }
    const std::string_view word(begin, std::size_t(end - begin));
    for (const NumberWord &known : kNumberWords) {
        if (known.word == word) {
            number = known.number;
            return true;
        }
    }
    return !word.empty() && parseWindowsNotFinite(word, number);
}

double toNumber(const Value &value, double fallback)
{
    if (const double *number = std::get_if<double>(&value))
        return *number;
    if (const OpaqueValue *opaque = std::get_if<OpaqueValue>(&value)) {
        double number = fallback;
        const char *text = opaque->text.data();
        return parseNumber(text, text + opaque->text.size(), number) ? number : fallback;
    }
    return fallback;
}

} // namespace host
