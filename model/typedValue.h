// SPDX-License-Identifier: Apache-2.0
// What a rigger types into a cell: a weight, or a change of the weights that are there.
//
//     0.5      the weight itself, from 0.0 to 1.0
//     +=0.1    added to each cell's own weight; -= *= /= likewise, cut to what a weight can be
//
// Text that is no number counts as 0.0. Needs neither Maya nor a widget.
#pragma once

#include <QString>

struct typedValue {
    // The change of a weight; null for a plain value.
    double (*combine)(double weight, double operand);
    double operand;
    bool isAcceptable; // if not, no weight is to change
};

// A change is text of three characters or more whose first "=" is the second character. Not
// acceptable: a plain value outside 0.0 to 1.0 or that is "nan", and an operator that is none of
// the four.
typedValue parseTypedValue(const QString &text);

// The weight that a cell of `weight` is to get, from 0.0 to 1.0: 0.0 where the change has no
// number as its result (0.0 divided by 0). REQUIRES: typed.isAcceptable.
double targetWeight(const typedValue &typed, double weight);

// Cut to 0.0 ... 1.0; 0.0 for what is not a number.
double boundedWeight(double value);
