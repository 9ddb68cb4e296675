// SPDX-License-Identifier: Apache-2.0
// The value slider over the table: which cells it moves, and by how much. Needs neither Maya nor a
// widget.
#pragma once

#include "model/cellIndex.h"
#include "model/lockState.h"
#include "model/weightRow.h"

#include <QItemSelection>
#include <QSet>

// How far the slider was moved. A relative one tells the whole way since the drag began.
struct sliderMove {
    bool isAbsolute = false;
    double value = 0.0; // where the slider stands
    double delta = 0.0; // what of a relative move is still to be applied
};

// The leading cell has come from `origValue` to `lastValue` since the drag began: that much of a
// relative move has been applied by the steps before.
sliderMove moveTo(double value, bool isAbsolute, double lastValue, double origValue);

// The weight that one of `weight` is to get, from 0.0 to 1.0.
double movedWeight(const sliderMove &move, double weight);

// The cells that a drag over `selection` moves: of each selected row the rightmost cell that holds
// a weight, is not locked and stands in none of the hidden columns. Ascending by row, so that the
// first one leads.
QVector<cellIndex> draggedCells(const QItemSelection &selection, const weightRows &rows,
                                const lockState &locks, const QSet<int> &hiddenColumns);

// The first of these, without looking for the others; row -1 if there is none.
cellIndex firstDraggedCell(const QItemSelection &selection, const weightRows &rows,
                           const lockState &locks, const QSet<int> &hiddenColumns);

// The first row, from the top, that holds a weight in the column; -1 if none does.
int topmostWeight(const weightRows &rows, int column);
