// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/shapeReader.h"

namespace
{

// The rounded weights of rows, vertex by vertex, as their skin cluster counts its influences. Empty
// if an influence has no column, or a row has not all.
MDoubleArray roundedWeights(const editSource &source, const QVector<int> &rows,
                            const QVector<int> &columns)
{
    MDoubleArray values(static_cast<unsigned int>(rows.size() * columns.size()));
    unsigned int place = 0;
    for (int i = 0; i < rows.size(); ++i) {
        const weightRow &row = source.handOver.roundedRows.at(rows.at(i));
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
        const QVector<int> rows = shapes.newRows(shape);
        if (rows.isEmpty())
            continue;
        const int place = shapes.enter(shape);
        if (place < 0)
            return preparation::outdated;
        const MDoubleArray values = roundedWeights(
            source, rows,
            columnsOfInfluences(weights.skinClusters[static_cast<unsigned int>(shape)], weights));
        if (values.length() == 0)
            return preparation::outdated;
        shapes.appendWriteToRows(place, shape, rows).values = values;
    }
    return preparation::ready;
}
