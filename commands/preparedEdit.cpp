// SPDX-License-Identifier: Apache-2.0
#include "commands/preparedEdit.h"

QVector<writtenVertices> verticesOf(const preparedEdit &edit)
{
    QVector<writtenVertices> written(edit.shapes.size());
    for (int shape = 0; shape < written.size(); ++shape) {
        written[shape].skinCluster = edit.shapes.at(shape).skinCluster.object();
        written[shape].allVertices = false;
    }
    for (int i = 0; i < edit.writes.size(); ++i) {
        const weightWrite &write = edit.writes.at(i);
        if (write.vertices.isEmpty())
            written[write.shape].allVertices = true;
        else
            written[write.shape].vertices += write.vertices;
    }
    return written;
}
