// SPDX-License-Identifier: Apache-2.0
#include "model/tableSelection.h"

#include <QAbstractItemModel>
#include <QSet>

#include <algorithm>

namespace
{

// A range seen along one axis of the table.
struct extent {
    int first;
    int last;
    int breadth; // cells across
};

extent extentOf(const QItemSelectionRange &range, Qt::Orientation lines)
{
    const bool rows = lines == Qt::Vertical;
    const extent result = {rows ? range.top() : range.left(), rows ? range.bottom() : range.right(),
                           rows ? range.width() : range.height()};
    return result;
}

// The rows (Qt::Vertical) or columns (Qt::Horizontal) with at least `needed` selected cells.
QVector<int> linesWithCells(const QItemSelection &selection, Qt::Orientation lines, int needed)
{
    QVector<int> selectedCells;
    for (int i = 0; i < selection.size(); ++i) {
        const extent range = extentOf(selection.at(i), lines);
        if (selectedCells.size() <= range.last)
            selectedCells.resize(range.last + 1);
        for (int line = range.first; line <= range.last; ++line)
            selectedCells[line] += range.breadth;
    }
    QVector<int> result;
    for (int line = 0; line < selectedCells.size(); ++line) {
        if (selectedCells.at(line) > 0 && selectedCells.at(line) >= needed)
            result.append(line);
    }
    return result;
}

} // namespace

QVector<int> rowsWithSelectedCell(const QItemSelection &selection)
{
    return linesWithCells(selection, Qt::Vertical, 1);
}

QVector<int> wholeRows(const QItemSelection &selection, int columnCount)
{
    return linesWithCells(selection, Qt::Vertical, columnCount);
}

QVector<int> wholeColumns(const QItemSelection &selection, int rowCount)
{
    return linesWithCells(selection, Qt::Horizontal, rowCount);
}

QVector<int> rowsOf(const QVector<cellIndex> &cells)
{
    QVector<int> rows;
    rows.reserve(cells.size());
    for (int i = 0; i < cells.size(); ++i)
        rows.append(cells.at(i).row);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QVector<int> inOrderOfSelecting(const QVector<int> &lines, const QItemSelection &selection,
                                Qt::Orientation orientation)
{
    QSet<int> left;
    for (int i = 0; i < lines.size(); ++i)
        left.insert(lines.at(i));
    QVector<int> ordered;
    for (int i = 0; i < selection.size(); ++i) {
        const extent range = extentOf(selection.at(i), orientation);
        for (int line = range.first; line <= range.last; ++line) {
            if (left.remove(line))
                ordered.append(line);
        }
    }
    return ordered;
}

cellIndex topRightCell(const QItemSelection &selection)
{
    cellIndex cell = {-1, -1};
    for (int i = 0; i < selection.size(); ++i) {
        const QItemSelectionRange &range = selection.at(i);
        if (cell.row < 0 || range.top() < cell.row) {
            cell.row = range.top();
            cell.column = range.right();
        } else if (range.top() == cell.row) {
            cell.column = qMax(cell.column, range.right());
        }
    }
    return cell;
}

QItemSelection selectionOfRows(QVector<int> rows, const QAbstractItemModel &model)
{
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    const int lastColumn = model.columnCount() - 1;
    for (int first = 0; first < rows.size();) {
        int last = first;
        while (last + 1 < rows.size() && rows.at(last + 1) <= rows.at(last) + 1)
            ++last;
        selection.append(QItemSelectionRange(model.index(rows.at(first), 0),
                                             model.index(rows.at(last), lastColumn)));
        first = last + 1;
    }
    return selection;
}
