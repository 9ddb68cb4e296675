// SPDX-License-Identifier: Apache-2.0
// Flooding a joint column: one weight for all vertices of a shape.
#include "model/weightTableModel.h"

#include "model/dragCells.h"
#include "model/mayaText.h"
#include "model/messages.h"
#include "model/tableSelection.h"
#include "model/typedValue.h"

#include <maya/MGlobal.h>

namespace
{

bool hasLock(const lockState &locks, int column)
{
    if (locks.isJointLocked(column))
        return true;
    const QList<cellIndex> cells = locks.cells();
    for (int i = 0; i < cells.size(); ++i) {
        if (cells.at(i).column == column)
            return true;
    }
    return false;
}

// The one column that can be flooded; -1 where a message has said why there is none.
int columnToFlood(const QVector<int> &selected, const lockState &locks)
{
    const char *refusal = selected.isEmpty()                 ? kNoJointToFlood
                          : selected.size() > 1              ? kManyJointsToFlood
                          : hasLock(locks, selected.first()) ? kJointHasLocks
                                                             : nullptr;
    if (refusal)
        MGlobal::displayInfo(refusal);
    return refusal ? -1 : selected.first();
}

int lockedVertexCount(const weightList &weights, const lockState &locks, int shape)
{
    int count = 0;
    for (int row = weights.firstVertexRow(shape); row < weights.endOfVertexRows(shape); ++row)
        count += locks.isRowLocked(row) ? 1 : 0;
    return count;
}

} // namespace

// Deliberate: where several shapes have the joint, the upper one alone is flooded. Pinned by the
// test floodReplace.fillsTheUpperShapeAlone.
void weightTableModel::replaceValue(double value)
{
    if (weights_.rows.isEmpty()) {
        MGlobal::displayError(kNothingLoaded);
        return;
    }
    keepPreviousWeights();
    handOver_.floodShapes.clear();
    const int column = columnToFlood(wholeColumns(viewSelection(), rowCount()), locks_);
    const int firstRow = column < 0 ? -1 : topmostWeight(weights_.rows, column);
    if (firstRow < 0)
        return;
    const int shape = shapeIndexOf(weights_.rows.at(firstRow));
    const int lockedCount = lockedVertexCount(weights_, locks_, shape);
    if (lockedCount > 0)
        MGlobal::displayInfo(messageWith(kLockedVerticesLeft, lockedCount));
    if (lockedCount == weights_.vertexCount(shape))
        return;
    handOver_.floodShapes.append(shape);
    handOver_.operationColumn = column;
    handOver_.floodValue = boundedWeight(value);
    QVector<int> rows;
    for (int row = firstRow; row < weights_.endOfVertexRows(shape); ++row)
        rows.append(row);
    runEdit("-replace", rows);

    refreshRowsEditedAt(rows, column);
    showFilteredColumns();
}
