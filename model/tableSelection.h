// SPDX-License-Identifier: Apache-2.0
// What is selected in the table, told from the selection's ranges: a whole column of 100,000 rows
// is one range, and would be 100,000 indexes. The ranges of a selection model do not overlap, and
// the functions rely on that.
#pragma once

#include "model/cellIndex.h"

#include <QItemSelection>
#include <QVector>

// The rows in which at least one cell is selected, ascending.
QVector<int> rowsWithSelectedCell(const QItemSelection &selection);

// The rows, or columns, of which every cell is selected, ascending.
QVector<int> wholeRows(const QItemSelection &selection, int columnCount);
QVector<int> wholeColumns(const QItemSelection &selection, int rowCount);

// The rows of the cells, ascending, each once.
QVector<int> rowsOf(const QVector<cellIndex> &cells);

// The same lines, wholly selected, in the order of selecting.
QVector<int> inOrderOfSelecting(const QVector<int> &lines, const QItemSelection &selection,
                                Qt::Orientation orientation);

// The rightmost selected cell of the topmost selected row; row -1 if nothing is selected.
cellIndex topRightCell(const QItemSelection &selection);

// A selection of the whole rows named, in any order; a run of rows becomes one range.
QItemSelection selectionOfRows(QVector<int> rows, const QAbstractItemModel &model);
