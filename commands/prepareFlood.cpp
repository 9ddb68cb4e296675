// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/mayaText.h"
#include "model/messages.h"

#include <maya/MGlobal.h>

namespace
{

QVector<int> unlockedVertices(const editSource &source, int shape)
{
    QVector<int> vertices;
    const int end = source.weights.endOfVertexRows(shape);
    for (int row = source.weights.firstVertexRow(shape); row < end; ++row) {
        if (!source.locks.isRowLocked(row))
            vertices.append(source.weights.rowNames.vertex(row));
    }
    return vertices;
}

} // namespace

preparation prepareFlood(const editSource &source, preparedEdit &edit)
{
    editedShapes shapes(source, edit);
    const QVector<int> &filled = source.handOver.floodShapes;
    for (int i = 0; i < filled.size(); ++i) {
        const int place = shapes.enter(filled.at(i));
        if (place < 0)
            return preparation::outdated;
        const int influence = shapes.influenceOf(place, source.handOver.operationColumn);
        if (influence < 0) {
            MGlobal::displayInfo(kNoJointIndex);
            return preparation::failed;
        }
        const QVector<int> vertices = unlockedVertices(source, filled.at(i));
        const int lockedCount = source.weights.endOfVertexRows(filled.at(i)) -
                                source.weights.firstVertexRow(filled.at(i)) - vertices.size();
        if (lockedCount > 0)
            MGlobal::displayInfo(messageWith(kLockedVerticesLeft, lockedCount));
        if (vertices.isEmpty())
            return preparation::failed;
        weightWrite &write = lockedCount > 0 ? shapes.appendWrite(place, vertices)
                                             : shapes.appendWriteToAll(place, filled.at(i));
        write.influence = influence;
        write.value = source.handOver.floodValue;
    }
    return preparation::ready;
}
