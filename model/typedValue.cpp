// SPDX-License-Identifier: Apache-2.0
#include "model/typedValue.h"

#include <QtCore/qnumeric.h>

namespace
{

const int kOperatorLength = 2;

const struct {
    char symbol; // in front of "="
    double (*combine)(double weight, double operand);
} kOperators[] = {
    {'+', [](double weight, double operand) { return operand + weight; }},
    {'-', [](double weight, double operand) { return weight - operand; }},
    {'*', [](double weight, double operand) { return operand * weight; }},
    {'/', [](double weight, double operand) { return weight / operand; }},
};

// A number too large for a double is not `ok` and still infinite, which keeps it out of range.
double numberIn(const QString &text, double otherwise)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok || qIsInf(number) ? number : otherwise;
}

bool isChange(const QString &text)
{
    return text.size() > kOperatorLength && text.indexOf(QLatin1Char('=')) == 1;
}

typedValue parseChange(const QString &text)
{
    typedValue typed = {nullptr, numberIn(text.mid(kOperatorLength), 0.0), false};
    for (const auto &known : kOperators) {
        if (text.at(0) == QLatin1Char(known.symbol)) {
            typed.combine = known.combine;
            typed.isAcceptable = true;
        }
    }
    if (qIsNaN(typed.operand))
        typed.operand = 0.0;
    return typed;
}

} // namespace

typedValue parseTypedValue(const QString &text)
{
    if (isChange(text))
        return parseChange(text);
    typedValue typed = {nullptr, numberIn(text, 0.0), false};
    typed.isAcceptable = typed.operand >= 0.0 && typed.operand <= 1.0;
    return typed;
}

double targetWeight(const typedValue &typed, double weight)
{
    return boundedWeight(typed.combine ? typed.combine(weight, typed.operand) : typed.operand);
}

double boundedWeight(double value)
{
    if (!(value > 0.0)) // negative, -0.0, or not a number
        return 0.0;
    return qMin(value, 1.0);
}
