// SPDX-License-Identifier: Apache-2.0
#include "model/dragCells.h"

#include "model/typedValue.h"

#include <QMap>

namespace
{

bool holdsWeight(const weightRow &row, int column)
{
    return hasCell(row, column) && cellOf(row, column) >= 0.0;
}

// The columns of the range that a drag may move, from right to left.
QVector<int> freeColumns(const QItemSelectionRange &range, const lockState &locks,
                         const QSet<int> &hiddenColumns)
{
    QVector<int> columns;
    for (int column = range.right(); column >= range.left(); --column) {
        if (!locks.isJointLocked(column) && !hiddenColumns.contains(column))
            columns.append(column);
    }
    return columns;
}

// The first of `columns` in which the row can be moved; -1 if there is none.
int movableColumn(int r, const weightRow &row, const QVector<int> &columns, const lockState &locks)
{
    if (locks.isRowLocked(r))
        return -1;
    for (int i = 0; i < columns.size(); ++i) {
        if (holdsWeight(row, columns.at(i)) && !locks.isCellLocked(r, columns.at(i)))
            return columns.at(i);
    }
    return -1;
}

} // namespace

sliderMove moveTo(double value, bool isAbsolute, double lastValue, double origValue)
{
    sliderMove move;
    move.isAbsolute = isAbsolute;
    move.value = value;
    move.delta = value - (lastValue - origValue);
    return move;
}

double movedWeight(const sliderMove &move, double weight)
{
    return boundedWeight(move.isAbsolute ? move.value : weight + move.delta);
}

QVector<cellIndex> draggedCells(const QItemSelection &selection, const weightRows &rows,
                                const lockState &locks, const QSet<int> &hiddenColumns)
{
    QMap<int, int> columnOfRow;
    for (int i = 0; i < selection.size(); ++i) {
        const QItemSelectionRange &range = selection.at(i);
        const QVector<int> columns = freeColumns(range, locks, hiddenColumns);
        for (int r = range.top(); r <= range.bottom() && r < rows.size(); ++r) {
            const int column = movableColumn(r, rows.at(r), columns, locks);
            if (column > columnOfRow.value(r, -1))
                columnOfRow.insert(r, column);
        }
    }
    QVector<cellIndex> cells;
    cells.reserve(columnOfRow.size());
    for (QMap<int, int>::const_iterator i = columnOfRow.constBegin(); i != columnOfRow.constEnd();
         ++i) {
        const cellIndex cell = {i.key(), i.value()};
        cells.append(cell);
    }
    return cells;
}

cellIndex firstDraggedCell(const QItemSelection &selection, const weightRows &rows,
                           const lockState &locks, const QSet<int> &hiddenColumns)
{
    cellIndex first = {-1, -1};
    for (int i = 0; i < selection.size(); ++i) {
        const QItemSelectionRange &range = selection.at(i);
        const QVector<int> columns = freeColumns(range, locks, hiddenColumns);
        const int end = qMin(range.bottom() + 1, static_cast<int>(rows.size()));
        for (int r = range.top(); r < end && (first.row < 0 || r <= first.row); ++r) {
            const int column = movableColumn(r, rows.at(r), columns, locks);
            if (column >= 0 && (r != first.row || column > first.column)) {
                first.row = r;
                first.column = column;
                break;
            }
        }
    }
    return first;
}

int topmostWeight(const weightRows &rows, int column)
{
    for (int r = 0; r < rows.size(); ++r) {
        if (holdsWeight(rows.at(r), column))
            return r;
    }
    return -1;
}
