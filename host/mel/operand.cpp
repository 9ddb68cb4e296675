// SPDX-License-Identifier: Apache-2.0
#include "mel/command.h"
#include "mel/operandText.h"

namespace host::mel
{

namespace
{

template <typename Value>
Value require(std::optional<Value> value, std::string_view text, std::string_view expected)
{
    if (!value)
        throw Error("Invalid arguments '" + std::string(text) + "'.  Expected ( " +
                    std::string(expected) + " ), got [ " + std::string(typeName(text)) + " ]");
    return *value;
}

} // namespace

double Operand::number() const
{
    return require(toNumber(text), text, "double");
}

long long Operand::integer() const
{
    return require(toInteger(text), text, "int");
}

bool Operand::boolean() const
{
    return require(toBoolean(text), text, "boolean");
}

} // namespace host::mel
