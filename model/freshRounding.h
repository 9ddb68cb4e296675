// SPDX-License-Identifier: Apache-2.0
// The pass over a whole list after a change of precision: rounds anew from all digits, so that
// going to fewer places and back gives the digits back. The last weight of each row takes the
// residual, however far the row is from 1.0; of rows that are, it may come out negative. Needs
// neither Maya nor a widget.
#pragma once

#include "model/weightRow.h"

struct freshRounding {
    bool metRowWithoutColumns;
    // Deliberate: a vertex row without any weight ends the giving of residuals; the rows below are
    // only rounded. Pinned by the test freshRounding.stopsResidualsAtARowWithoutWeight.
    bool metRowWithoutWeight;
};

// Makes the vertex rows of `rows` the rounded ones of `unrounded`. REQUIRES: places >= 1, as many
// rows in both.
freshRounding roundAnew(const weightRows &unrounded, int places, weightRows &rows);
