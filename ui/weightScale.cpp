// SPDX-License-Identifier: Apache-2.0
#include "ui/weightScale.h"

#include <QtCore/qnumeric.h>
#include <QtGlobal>

#include <cmath>

namespace
{

const double kLargestStep = 2000000000.0;

// What a product of two doubles may be off: 0.0003 * 10000 is a little less than 3.
const double kStepNoise = 1e-6;

// Columns of up to this many digits are of the same width; each further one adds to it.
const int kUsualDigits = 3;
const int kUsualWidth = 40;
const int kDigitWidth = 7;

int boundedStep(double step)
{
    return static_cast<int>(qBound(-kLargestStep, step, kLargestStep));
}

} // namespace

int precisionDigits(const QString &text)
{
    const int point = static_cast<int>(text.indexOf(QLatin1Char('.')));
    const int one = static_cast<int>(text.indexOf(QLatin1Char('1')));
    if (point < 0 || one < point || one - point > kMostDigits)
        return 0;
    return one - point;
}

int stepsPerUnit(int digits)
{
    int steps = 1;
    for (int i = 0; i < digits; ++i)
        steps *= 10;
    return steps;
}

sliderRange valueSliderRange(int digits, bool isAbsolute)
{
    const int steps = stepsPerUnit(digits);
    const sliderRange range = {isAbsolute ? 0 : -steps, steps};
    return range;
}

double valueAt(int step, int scale)
{
    return static_cast<double>(step) / scale;
}

int nearestStep(double value, int scale)
{
    return boundedStep(std::floor(value * scale + 0.5));
}

int lastStepBefore(double value, int scale)
{
    const double steps = value * scale;
    return boundedStep(steps + (steps < 0.0 ? -kStepNoise : kStepNoise));
}

QString fixedText(double value, int digits)
{
    return QString::number(value, 'f', digits);
}

typedNumber numberFrom(const QString &text)
{
    typedNumber number = {false, 0.0};
    const double value = text.toDouble(&number.isValid);
    number.isValid = number.isValid && !qIsNaN(value) && !qIsInf(value);
    if (number.isValid)
        number.value = value;
    return number;
}

int jointColumnWidth(int digits)
{
    return kUsualWidth + kDigitWidth * qMax(0, digits - kUsualDigits);
}
