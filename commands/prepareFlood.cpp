// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/messages.h"

#include <maya/MGlobal.h>

namespace
{

// Locked vertices keep their weights.
QVector<int> unlockedRows(const editSource &source, int shape)
{
    QVector<int> rows;
    const int end = source.weights.endOfVertexRows(shape);
    for (int row = source.weights.firstVertexRow(shape); row < end; ++row) {
        if (!source.locks.isRowLocked(row))
            rows.append(row);
    }
    return rows;
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
        const QVector<int> rows = unlockedRows(source, filled.at(i));
        if (rows.isEmpty())
            continue; // its writer says that there is nothing
        weightWrite &write = shapes.appendWriteToRows(place, filled.at(i), rows);
        write.influence = influence;
        write.value = source.handOver.floodValue;
    }
    return preparation::ready;
}
