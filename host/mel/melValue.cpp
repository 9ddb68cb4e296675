// SPDX-License-Identifier: Apache-2.0
#include "mel/melValue.h"

#include <charconv>

namespace host::mel
{

namespace
{

std::string elementText(const std::string &text)
{
    return text;
}
std::string elementText(double number)
{
    return toText(number);
}
std::string elementText(long long number)
{
    return std::to_string(number);
}

struct ToText {
    std::string operator()(std::monostate) const { return {}; }
    template <typename Element>
    std::string operator()(const std::vector<Element> &elements) const
    {
        std::string text;
        for (const Element &element : elements) {
            if (&element != elements.data())
                text += ' ';
            text += elementText(element);
        }
        return text;
    }
    template <typename Single>
    std::string operator()(const Single &single) const
    {
        return elementText(single);
    }
};

} // namespace

std::string toText(const MelValue &value)
{
    return std::visit(ToText{}, value);
}

std::string toText(double number)
{
    constexpr int kSignificantDigits = 6;
    char digits[32]; // six digits with sign, point and exponent: 13
    const auto result = std::to_chars(digits, digits + sizeof digits, number,
                                      std::chars_format::general, kSignificantDigits);
    return std::string(digits, result.ptr);
}

} // namespace host::mel
