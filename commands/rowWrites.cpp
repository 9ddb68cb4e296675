// SPDX-License-Identifier: Apache-2.0
#include "commands/rowWrites.h"

#include "model/messages.h"

#include <maya/MGlobal.h>

preparation appendWritesToRows(const QVector<int> &rows, const editSource &source,
                               editedShapes &shapes)
{
    const weightList &weights = source.weights;
    for (int i = 0; i < rows.size();) {
        if (rows.at(i) < 0 || rows.at(i) >= weights.rows.size())
            return preparation::outdated;
        const int shape = shapeIndexOf(weights.rows.at(rows.at(i)));
        const int end = shape < 0 ? 0 : weights.endOfVertexRows(shape);
        QVector<int> vertices;
        for (; i < rows.size() && rows.at(i) < end; ++i)
            vertices.append(weights.rowNames.vertex(rows.at(i)));
        if (vertices.isEmpty()) {
            MGlobal::displayInfo(kNoVertexNumber);
            return preparation::failed;
        }
        const int place = shapes.enter(shape);
        if (place < 0)
            return preparation::outdated;
        shapes.appendWrite(place, vertices);
    }
    return preparation::ready;
}
