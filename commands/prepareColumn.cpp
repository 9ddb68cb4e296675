// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/messages.h"

#include <maya/MGlobal.h>

namespace
{

// Whether the column's joint has cells in the shape's rows.
bool hasColumn(const weightList &weights, int shape, int column)
{
    const int first = weights.firstVertexRow(shape);
    return first < weights.endOfVertexRows(shape) && hasCell(weights.rows.at(first), column) &&
           !isInert(cellOf(weights.rows.at(first), column));
}

MDoubleArray draggedWeights(const editSource &source, const QVector<int> &rows)
{
    const editHandOver &drag = source.handOver;
    MDoubleArray values;
    for (int i = 0; i < rows.size(); ++i) {
        const double weight = cellOf(source.weights.rows.at(rows.at(i)), drag.operationColumn);
        values.append(movedWeight(drag.columnDrag, weight));
    }
    return values;
}

} // namespace

preparation prepareColumn(const editSource &source, preparedEdit &edit)
{
    const MDagPathArray held = lockedJoints(source);
    editedShapes shapes(source, edit);
    for (int shape = 0; shape < source.weights.shapeCount(); ++shape) {
        if (!hasColumn(source.weights, shape, source.handOver.operationColumn))
            continue;
        const QVector<int> rows = shapes.newRows(shape);
        if (rows.isEmpty())
            continue;
        const int place = shapes.enter(shape);
        if (place < 0)
            return preparation::outdated;
        const int influence = shapes.influenceOf(place, source.handOver.operationColumn);
        if (influence < 0) {
            MGlobal::displayInfo(kNoJointIndex);
            return preparation::failed;
        }
        weightWrite &write = shapes.appendWriteToRows(place, shape, rows);
        write.influence = influence;
        write.values = draggedWeights(source, rows);
        write.heldJoints = held;
    }
    return preparation::ready;
}
