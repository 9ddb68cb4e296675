// SPDX-License-Identifier: Apache-2.0
#include "api/arguments.h"

#include <charconv>
#include <limits>

#include "api/text.h"
#include "mel/operandText.h"

namespace host
{

std::vector<mel::Operand> ArgumentValues::operands() const
{
    std::vector<mel::Operand> operands;
    operands.reserve(list.size());
    for (const Value &value : list)
        operands.push_back({value.text, value.isQuoted});
    return operands;
}

ArgumentValue makeArgument(bool value)
{
    return {value ? "1" : "0", false};
}

ArgumentValue makeArgument(int value)
{
    return {std::to_string(value), false};
}

ArgumentValue makeArgument(double value)
{
    char digits[32]; // the shortest text that reads back as the same number: 24 at most
    const auto result = std::to_chars(digits, digits + sizeof digits, value);
    return {std::string(digits, result.ptr), false};
}

ArgumentValue makeArgument(std::string text)
{
    return {std::move(text), true};
}

bool convert(std::string_view text, bool &result)
{
    const auto value = mel::toBoolean(text);
    result = value.value_or(result);
    return value.has_value();
}

bool convert(std::string_view text, int &result)
{
    const auto value = mel::toInteger(text);
    if (!value || *value < std::numeric_limits<int>::min() ||
        *value > std::numeric_limits<int>::max())
        return false;
    result = static_cast<int>(*value);
    return true;
}

bool convert(std::string_view text, double &result)
{
    const auto value = mel::toNumber(text);
    result = value.value_or(result);
    return value.has_value();
}

bool convert(std::string_view text, MString &result)
{
    result = toMString(text);
    return true;
}

} // namespace host
