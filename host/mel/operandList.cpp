// SPDX-License-Identifier: Apache-2.0
#include "mel/operandList.h"

#include <algorithm>
#include <charconv>

#include "mel/operandText.h"

namespace host::mel
{

namespace
{

// The shortest text that reads back as the same number.
std::string exactText(double number)
{
    char digits[32]; // 17 digits with sign, point and exponent: 24
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    return std::string(digits, result.ptr);
}

bool isInteger(const Operand &operand)
{
    return typeName(operand.text) == "int";
}

// As part of a longer string: a number loses the digits that MEL does not show.
std::string shownText(const Operand &operand)
{
    const bool isDouble = !operand.isQuoted && typeName(operand.text) == "double";
    return isDouble ? toText(operand.number()) : operand.string();
}

} // namespace

void OperandList::evaluate(const Statement &statement)
{
    operands_.reserve(operands_.size() + statement.arguments.size());
    for (const Argument &argument : statement.arguments) {
        if (argument.kind == Argument::Kind::call && context_.isReadingFile)
            throw Error("A file can't call commands inside a statement.");
        if (argument.kind == Argument::Kind::call)
            add(interpreter_.call(context_, *argument.call));
        else
            operands_.push_back({argument.text, argument.kind == Argument::Kind::string});
    }
}

void OperandList::add(const MelValue &value)
{
    if (const auto *text = std::get_if<std::string>(&value))
        add(*text, true);
    else if (const auto *integer = std::get_if<long long>(&value))
        add(std::to_string(*integer), false);
    else if (const auto *number = std::get_if<double>(&value))
        add(exactText(*number), false);
    else if (const auto *texts = std::get_if<std::vector<std::string>>(&value))
        for (const std::string &element : *texts)
            add(element, true);
    else if (const auto *integers = std::get_if<std::vector<long long>>(&value))
        for (const long long element : *integers)
            add(std::to_string(element), false);
    else if (const auto *numbers = std::get_if<std::vector<double>>(&value))
        for (const double element : *numbers)
            add(exactText(element), false);
}

void OperandList::add(std::string text, bool isQuoted)
{
    texts_.push_front(std::move(text));
    operands_.push_back({texts_.front(), isQuoted});
}

MelValue sumOf(const std::vector<Operand> &operands)
{
    const auto isText = [](const Operand &operand) { return operand.isQuoted; };
    if (std::any_of(operands.begin(), operands.end(), isText)) {
        std::string text;
        for (const Operand &operand : operands)
            text += shownText(operand);
        return text;
    }
    if (std::all_of(operands.begin(), operands.end(), isInteger)) {
        unsigned long long sum = 0; // wraps around where a signed sum would be undefined
        for (const Operand &operand : operands)
            sum += static_cast<unsigned long long>(operand.integer());
        return static_cast<long long>(sum);
    }
    double sum = 0.0;
    for (const Operand &operand : operands)
        sum += operand.number();
    return sum;
}

MelValue negated(const std::vector<Operand> &operands)
{
    if (operands.size() != 1 || operands.front().isQuoted)
        throw Error("Only a number can be negated.");
    const Operand &operand = operands.front();
    if (!isInteger(operand))
        return -operand.number();
    return static_cast<long long>(0ULL - static_cast<unsigned long long>(operand.integer()));
}

} // namespace host::mel
