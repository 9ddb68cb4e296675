// SPDX-License-Identifier: Apache-2.0
#include "model/limitRows.h"

#include <QHash>

namespace
{

bool holdsAnyWeight(const weightRow &row, const QList<int> &columns)
{
    for (int i = 0; i < columns.size(); ++i) {
        if (hasCell(row, columns.at(i)) && cellOf(row, columns.at(i)) > 0.0)
            return true;
    }
    return false;
}

QHash<int, QList<int>> columnsByRow(const QList<cellIndex> &cells)
{
    QHash<int, QList<int>> columns;
    for (int i = 0; i < cells.size(); ++i)
        columns[cells.at(i).row].append(cells.at(i).column);
    return columns;
}

} // namespace

int influencesBeyond(int maximum, const weightRow &row)
{
    return qMax(0, summarize(row).nonZeroCount - qMax(1, maximum));
}

rowsToLimit screenForLimit(const QVector<int> &candidates, const weightRows &rows,
                           const lockState &locks)
{
    const QList<int> lockedJoints = locks.joints();
    const QHash<int, QList<int>> lockedCells = columnsByRow(locks.cells());
    rowsToLimit result = {QVector<int>(), 0};
    for (int i = 0; i < candidates.size(); ++i) {
        const int r = candidates.at(i);
        const weightRow &row = rows.at(r);
        if (!locks.isRowLocked(r) && !holdsAnyWeight(row, lockedCells.value(r)) &&
            !holdsAnyWeight(row, lockedJoints)) {
            result.rows.append(r);
            continue;
        }
        ++result.refusedCount;
        if (++i < candidates.size())
            result.rows.append(candidates.at(i));
    }
    return result;
}
