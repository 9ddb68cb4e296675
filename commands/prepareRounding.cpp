// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/shapeReader.h"

namespace
{

// The shape's rounded weights, vertex by vertex, as its skin cluster counts its influences. Empty
// if an influence has no column, or a row has not all.
MDoubleArray roundedWeights(const editSource &source, int shape, const QVector<int> &columns)
{
    const int first = source.weights.firstVertexRow(shape);
    const int end = source.weights.endOfVertexRows(shape);
    MDoubleArray values(static_cast<unsigned int>((end - first) * columns.size()));
    unsigned int place = 0;
    for (int r = first; r < end; ++r) {
        const weightRow &row = source.handOver.roundedRows.at(r);
        for (int influence = 0; influence < columns.size(); ++influence) {
            if (!hasCell(row, columns.at(influence)))
                return MDoubleArray();
            values[place++] = cellOf(row, columns.at(influence));
        }
    }
    return values;
}

} // namespace

preparation prepareRounding(const editSource &source, preparedEdit &edit)
{
    const weightList &weights = source.weights;
    edit.leavesNormalizationAlone = true;
    if (source.handOver.roundedRows.size() != weights.rows.size())
        return preparation::outdated;
    editedShapes shapes(source, edit);
    for (int shape = 0; shape < weights.shapeCount(); ++shape) {
        if (weights.firstVertexRow(shape) == weights.endOfVertexRows(shape))
            continue;
        const int place = shapes.enter(shape);
        if (place < 0)
            return preparation::outdated;
        const MDoubleArray values = roundedWeights(
            source, shape,
            columnsOfInfluences(weights.skinClusters[static_cast<unsigned int>(shape)], weights));
        if (values.length() == 0)
            return preparation::outdated;
        shapes.appendWriteToAll(place, shape).values = values;
    }
    return preparation::ready;
}
