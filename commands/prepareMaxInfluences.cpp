// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/limitRows.h"
#include "model/messages.h"

#include <maya/MGlobal.h>

namespace
{

preparation fail(const char *message)
{
    MGlobal::displayError(message);
    return preparation::failed;
}

void findInfluences(const editedShapes &shapes, int place, int columnCount, editedShape &shape)
{
    if (!shape.influenceOfColumn.isEmpty())
        return;
    for (int column = 0; column < columnCount; ++column)
        shape.influenceOfColumn.append(shapes.influenceOf(place, column));
}

} // namespace

preparation prepareMaxInfluences(const editSource &source, preparedEdit &edit)
{
    const weightList &weights = source.weights;
    editedShapes shapes(source, edit);
    const QVector<int> &rows = source.handOver.maxInfluenceRows;
    for (int i = 0; i < rows.size(); ++i) {
        const int r = rows.at(i);
        if (r < 0 || r >= weights.rows.size())
            return preparation::outdated;
        const weightRow &row = weights.rows.at(r);
        if (!isVertexRow(row))
            return fail(kNoShapeIndex);
        const int vertex = weights.rowNames.vertex(r);
        if (vertex < 0)
            return fail(kUnreadableVertexIndex);
        if (influencesBeyond(source.maxInfluences, row) == 0 ||
            !shapes.isNew(shapeIndexOf(row), vertex))
            continue;
        const int place = shapes.enter(shapeIndexOf(row));
        if (place < 0)
            return preparation::outdated;
        findInfluences(shapes, place, weights.jointCount(), edit.shapes[place]);
        weightWrite &write = shapes.appendWrite(place, QVector<int>(1, vertex));
        write.row = row;
        write.rowIndex = r;
        write.maximum = source.maxInfluences;
    }
    return preparation::ready;
}
