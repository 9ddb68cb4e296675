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

} // namespace

selectionParts::selectionParts(const QItemSelection &selection, int rowCount, int columnCount)
    : columns_(inOrderOfSelecting(wholeColumns(selection, rowCount), selection, Qt::Horizontal)),
      rows_(inOrderOfSelecting(wholeRows(selection, columnCount), selection, Qt::Vertical)),
      columnSet_(setOf(columns_)), rowSet_(setOf(rows_))
{
    for (int i = 0; i < selection.size(); ++i) {
        const QItemSelectionRange &range = selection.at(i);
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
