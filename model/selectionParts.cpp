// SPDX-License-Identifier: Apache-2.0
#include "model/selectionParts.h"

#include "model/tableSelection.h"

namespace
{

QSet<int> setOf(const QVector<int> &numbers)
{
    QSet<int> set;
    for (int i = 0; i < numbers.size(); ++i)
        set.insert(numbers.at(i));
    return set;
}

// Appends the members of `whole` from first to last that are not there yet.
void appendWhole(int first, int last, const QSet<int> &whole, QSet<int> &seen, QVector<int> &lines)
{
    for (int line = first; line <= last; ++line) {
        if (whole.contains(line) && !seen.contains(line)) {
            seen.insert(line);
            lines.append(line);
        }
    }
}

} // namespace

selectionParts::selectionParts(const QItemSelection &selection, int rowCount, int columnCount)
    : columnSet_(setOf(wholeColumns(selection, rowCount))),
      rowSet_(setOf(wholeRows(selection, columnCount)))
{
    QSet<int> seenColumns;
    QSet<int> seenRows;
    for (int i = 0; i < selection.size(); ++i) {
        const QItemSelectionRange &range = selection.at(i);
        appendWhole(range.left(), range.right(), columnSet_, seenColumns, columns_);
        appendWhole(range.top(), range.bottom(), rowSet_, seenRows, rows_);
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (rowSet_.contains(row))
                continue;
            for (int column = range.left(); column <= range.right(); ++column) {
                const cellIndex cell = {row, column};
                if (!columnSet_.contains(column))
                    cells_.append(cell);
            }
        }
    }
    for (int i = 0; i < cells_.size(); ++i)
        cellSet_.insert(cells_.at(i));
}

bool selectionParts::contains(const cellIndex &cell) const
{
    return columnSet_.contains(cell.column) || rowSet_.contains(cell.row) ||
           cellSet_.contains(cell);
}

QVector<cellIndex> cellsOf(const QItemSelection &selection)
{
    QVector<cellIndex> cells;
    for (int i = 0; i < selection.size(); ++i) {
        const QItemSelectionRange &range = selection.at(i);
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= range.right(); ++column) {
                const cellIndex cell = {row, column};
                cells.append(cell);
            }
        }
    }
    return cells;
}
