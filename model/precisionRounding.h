// SPDX-License-Identifier: Apache-2.0
// Rounding of weights to the displayed number of decimal places.
//
// A weight is a double above 0.0; a cell at or below 0.0 is "no weight" (it may be a marker) and is
// never changed here. A rounded row no longer sums to 1.0: one of its weights, which one depends on
// the occasion, takes what is missing, the residual. No result is -0.0, which would be shown with
// its sign. Needs neither Maya nor a widget: values in, values out.
#pragma once

#include "model/weightRow.h"

#include <functional>

// What a row holds once it is rounded.
struct roundedRow {
    int lastEntry;        // of its last weight, -1 if it has none
    double sum;           // of all its weights
    double sumBeforeLast; // of all but the last
};

// Rounds many weights to the same number of decimal places.
class weightRounder
{
public:
    // REQUIRES: places >= 1.
    explicit weightRounder(int places);

    // Deliberate: the cut is at 0.49 of the last place, not at 0.5. At two places 0.125 gives 0.13,
    // 0.124 gives 0.12. Pinned by the test weightRounder.cutsAtFortyNineHundredths.
    double rounded(double weight) const;

    // Rounds each weight of the row in place.
    roundedRow roundRow(weightRow &row) const;

private:
    double unitsPerWeight_; // 10 to the power of places
};

// What is left of 1.0 beside weights of that sum. Below zero by the noise of adding doubles alone
// becomes 0.0.
double residualBeside(double sumOfOthers);

// Gives `entry` what the row's other weights leave of 1.0.
void giveResidual(weightRow &row, int entry);

// The pass over one row that was just edited: rounds it and gives the residual to the first of its
// weights that `mayTake` allows. A row of fewer than two weights is only rounded. False if there
// are two or more and none may take it.
//
// Deliberate: the residual goes to the first weight that is equal to the chosen one, which may be
// one that may not take it. Pinned by the test roundEditedRow.givesTheResidualToTheFirstEqual.
//
// REQUIRES: places >= 1.
bool roundEditedRow(weightRow &row, const weightRounder &rounder,
                    const std::function<bool(int column)> &mayTake);

// The pass over a whole list that was read from the scene: rounds each row and then, if the row's
// sum is off 1.0 by no more than rounding explains, gives the residual to its last weight. Rows are
// handed over one by one, in table order, so that a load can round each while it is at hand.
//
// Deliberate: a vertex row without any weight ends the giving of residuals for the rows after it.
// Pinned by the test wholeListRounding.stopsResidualsAtARowWithoutWeight.
class wholeListRounding
{
public:
    // REQUIRES: places >= 1.
    explicit wholeListRounding(int places);

    // Goes on as behind a row without weight.
    void endResiduals() { metRowWithoutWeight_ = true; }

    // A shape row stays as it is.
    void apply(weightRow &row);

    // Whether a vertex row was met that has no joint column at all, or no weight in any.
    bool metRowWithoutColumns() const { return metRowWithoutColumns_; }
    bool metRowWithoutWeight() const { return metRowWithoutWeight_; }

private:
    weightRounder rounder_;
    double residualMargin_; // a sum that far from 1.0 was off before it was rounded
    bool metRowWithoutColumns_ = false;
    bool metRowWithoutWeight_ = false;
};
