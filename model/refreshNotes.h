// SPDX-License-Identifier: Apache-2.0
// What is remembered of the rows so that reading some of them again leaves the table as reading all
// of them would. Belongs to the weight list that it tells about.
#pragma once

#include <QSet>
#include <QVector>

struct refreshNotes {
    // Per shape: its rows whose weights, unrounded, did not sum to 1 when they were read.
    QVector<QSet<int>> unnormalizedRows;

    // Rows that hold something else than the pass over the whole list gave them.
    QSet<int> otherwiseRoundedRows;
    // The same for the whole table: whoever rounds or replaces all rows sets it.
    bool allOtherwiseRounded = false;
    int precision = 0; // decimal places of that pass

    // The first vertex row without any weight: that pass gives no residual to the rows below.
    // -1: there is none.
    int firstRowWithoutWeight = -1;
};
