// SPDX-License-Identifier: Apache-2.0
#include "commands/rowWrites.h"

#include "model/mayaText.h"

preparation prepareSmoothing(const editSource &source, preparedEdit &edit)
{
    const editHandOver &order = source.handOver;
    if (order.smoothingScript.isEmpty())
        return preparation::ready; // its writer says what is missing
    edit.scripts.append(mayaTextOf(order.smoothingScript));
    editedShapes shapes(source, edit);
    if (order.smoothedShape < 0)
        return appendWritesToRows(order.smoothedRows, source, shapes);
    const int place = shapes.enter(order.smoothedShape);
    if (place < 0)
        return preparation::outdated;
    shapes.appendWriteToMesh(place);
    return preparation::ready;
}
