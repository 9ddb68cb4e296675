// SPDX-License-Identifier: Apache-2.0
#include "scene/numberedNames.h"

#include <cctype>
#include <vector>

namespace host
{

namespace
{

// More digits than this are part of the word.
constexpr std::size_t kMostDigits = 18;

// "arm09" as "arm", 9 and 2.
struct Parts {
    std::string stem;
    std::uint64_t number = 0;
    std::size_t digits = 0;
};

Parts partsOf(std::string_view name)
{
    std::size_t end = name.size();
    while (end > 0 && std::isdigit(static_cast<unsigned char>(name[end - 1])))
        --end;
    if (name.size() - end > kMostDigits)
        end = name.size();
    const std::string digits(name.substr(end));
    return {std::string(name.substr(0, end)), digits.empty() ? 0 : std::stoull(digits),
            digits.size()};
}

std::string numbered(const std::string &stem, std::uint64_t number, std::size_t digits)
{
    const std::string text = std::to_string(number);
    return stem + std::string(digits > text.size() ? digits - text.size() : 0, '0') + text;
}

// Names with as many digits, filled up with zeros, count for themselves.
std::string seriesOf(const std::string &stem, std::size_t digits)
{
    return digits == 0 ? stem : stem + '#' + std::to_string(digits);
}

} // namespace

std::string NumberedNames::next(std::string_view name, const IsTaken &isTaken)
{
    const bool isFromOne = !name.empty() && name.back() == '#';
    Parts parts = partsOf(isFromOne ? name.substr(0, name.size() - 1) : name);
    if (isFromOne)
        parts = {parts.stem, 0, 0};
    const bool isFilledUp = numbered("", parts.number, 0).size() < parts.digits;
    const std::size_t digits = isFilledUp ? parts.digits : 0;

    Skips &skips = skips_[seriesOf(parts.stem, digits)];
    std::vector<std::uint64_t> passed;
    std::uint64_t number = parts.number + 1;
    while (true) {
        const auto skip = skips.find(number);
        if (skip == skips.end() && !isTaken(numbered(parts.stem, number, digits)))
            break;
        passed.push_back(number);
        number = skip == skips.end() ? number + 1 : skip->second;
    }
    for (const std::uint64_t one : passed)
        skips[one] = number;
    return numbered(parts.stem, number, digits);
}

void NumberedNames::forget(std::string_view name)
{
    const Parts parts = partsOf(name);
    skips_.erase(parts.stem);
    skips_.erase(seriesOf(parts.stem, parts.digits));
}

} // namespace host
