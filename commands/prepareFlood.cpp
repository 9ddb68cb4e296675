// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/messages.h"

#include <maya/MGlobal.h>

namespace
{

// Locked vertices keep their weights.
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
        if (vertices.isEmpty())
            continue; // its writer says that there is nothing
        const bool isWhole = vertices.size() == source.weights.vertexCount(filled.at(i));
        weightWrite &write = isWhole ? shapes.appendWriteToAll(place, filled.at(i))
                                     : shapes.appendWrite(place, vertices);
        write.influence = influence;
        write.value = source.handOver.floodValue;
    }
    return preparation::ready;
}
