// SPDX-License-Identifier: Apache-2.0
#include "api/arguments.h"

#include <cmath>
#include <limits>

#include "api/text.h"

namespace host
{

ArgumentValue makeArgument(bool value)
{
    return {ArgumentValue::Kind::boolean, value ? "1" : "0", value ? 1.0 : 0.0};
}

ArgumentValue makeArgument(int value)
{
    return {ArgumentValue::Kind::number, std::to_string(value), static_cast<double>(value)};
}

ArgumentValue makeArgument(double value)
{
    return {ArgumentValue::Kind::number, generalText(value), value};
}

ArgumentValue makeArgument(std::string text)
{
    ArgumentValue argument;
    if (wholeNumber(text, argument.number))
        argument.kind = ArgumentValue::Kind::number;
    argument.text = std::move(text);
    return argument;
}

bool convert(const ArgumentValue &argument, bool &result)
{
    constexpr std::string_view kYes[] = {"true", "on", "yes"};
    constexpr std::string_view kNo[] = {"false", "off", "no"};
    for (const std::string_view word : kYes)
        if (argument.text == word)
            return result = true;
    for (const std::string_view word : kNo) {
        if (argument.text == word) {
            result = false;
            return true;
        }
    }
    if (argument.kind == ArgumentValue::Kind::text)
        return false;
    result = argument.number != 0.0;
    return true;
}

bool convert(const ArgumentValue &argument, int &result)
{
    bool truth = false;
    if (argument.kind == ArgumentValue::Kind::text) {
        if (!convert(argument, truth))
            return false;
        result = truth;
        return true;
    }
    const double whole = std::trunc(argument.number);
    if (!(whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max()))
        return false;
    result = static_cast<int>(whole);
    return true;
}

bool convert(const ArgumentValue &argument, double &result)
{
    if (argument.kind == ArgumentValue::Kind::text)
        return false;
    result = argument.number;
    return true;
}

bool convert(const ArgumentValue &argument, MString &result)
{
    result = toMString(argument.text);
    return true;
}

} // namespace host
