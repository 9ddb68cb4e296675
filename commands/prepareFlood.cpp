// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/messages.h"

#include <maya/MGlobal.h>

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
        weightWrite &write = shapes.appendWriteToAll(place, filled.at(i));
        write.influence = influence;
        write.value = source.handOver.floodValue;
    }
    return preparation::ready;
}
