// SPDX-License-Identifier: Apache-2.0
// How the window's controls write weights: the precision in the form that the user types, sliders,
// which count whole steps, and the texts of the edits beside them.
//
// A scale is the number of slider steps from weight 0 to weight 1. Needs no widget.
#pragma once

#include <QString>

// More decimal places than this and the steps of a slider no longer fit into an int.
const int kMostDigits = 9;

// The decimal places meant by "0.001": how far the first 1 stands behind the first point. 0 if the
// text is not of that form or means more than kMostDigits.
int precisionDigits(const QString &text);

// 10 to the power of `digits`. REQUIRES: 0 <= digits <= kMostDigits.
int stepsPerUnit(int digits);

struct sliderRange {
    int minimum;
    int maximum;
};

// Of the slider that sets weights: from 0 to 1, or changes them: from -1 to 1.
sliderRange valueSliderRange(int digits, bool isAbsolute);

double valueAt(int step, int scale);

// The step nearest to a value, and the last step that does not go beyond it, seen from 0. Values
// too large for an int stand for the largest.
int nearestStep(double value, int scale);
int lastStepBefore(double value, int scale);

QString fixedText(double value, int digits);

// `value` means something only if `isValid`: texts that are no number, infinite ones and those that
// are not a number by name ("nan") are not.
struct typedNumber {
    bool isValid;
    double value;
};

typedNumber numberFrom(const QString &text);

// Of a joint column that shows so many decimal places, in pixels.
int jointColumnWidth(int digits);
