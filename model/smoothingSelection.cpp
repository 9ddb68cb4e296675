// SPDX-License-Identifier: Apache-2.0
#include "model/smoothingSelection.h"

#include "model/messages.h"
#include "model/tableSelection.h"

namespace
{

rowsToSmooth refuse(const char *message)
{
    const rowsToSmooth refused = {message, QVector<int>()};
    return refused;
}

// The one column in which cells are selected; -1 if there are several or none.
int soleColumn(const QItemSelection &selection)
{
    for (int i = 0; i < selection.size(); ++i) {
        if (selection.at(i).left() != selection.first().left() || selection.at(i).width() != 1)
            return -1;
    }
    return selection.isEmpty() ? -1 : selection.first().left();
}

} // namespace

rowsToSmooth screenForSmoothing(const QVector<int> &selected, const weightRows &rows,
                                const QVector<int> &skinClusters)
{
    rowsToSmooth result = refuse(nullptr);
    int skinCluster = -1;
    for (int i = 0; i < selected.size(); ++i) {
        const int row = selected.at(i);
        if (row < 0 || row >= rows.size())
            return refuse(kInvalidRow);
        if (!isVertexRow(rows.at(row)))
            continue;
        const int own = skinClusters.at(shapeIndexOf(rows.at(row)));
        if (!result.rows.isEmpty() && own != skinCluster)
            return refuse(kSeveralSkinClusters);
        skinCluster = own;
        result.rows.append(row);
    }
    return result.rows.isEmpty() ? refuse(kNoVertexToSmooth) : result;
}

cellsToPaint screenForPainting(const QItemSelection &selection, const weightRows &rows,
                               const lockState &locks)
{
    const int column = soleColumn(selection);
    cellsToPaint result = {nullptr, column, QVector<int>()};
    result.refusal = selection.isEmpty()           ? kNoJointToSmooth
                     : column < 0                  ? kCellsOfSeveralJoints
                     : locks.isJointLocked(column) ? kLockedJointToSmooth
                                                   : nullptr;
    if (result.refusal)
        return result;
    const QVector<int> selected = rowsWithSelectedCell(selection);
    for (int i = 0; i < selected.size(); ++i) {
        const int row = selected.at(i);
        if (hasCell(rows.at(row), column) && isWeightCell(cellOf(rows.at(row), column)) &&
            !locks.isLocked(row, column))
            result.rows.append(row);
    }
    return result;
}
