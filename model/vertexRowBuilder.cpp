// SPDX-License-Identifier: Apache-2.0
#include "model/vertexRowBuilder.h"

weightRow shapeRow(int columnCount)
{
    return weightRow(columnCount + 1, kShapeRowTag);
}

vertexRowBuilder::vertexRowBuilder(int shapeIndex, int columnCount, const QVector<int> &columns)
    : unweightedRow_(columnCount + 1, kInertCell)
{
    unweightedRow_[0] = shapeIndex;
    entries_.reserve(columns.size());
    for (int influence = 0; influence < columns.size(); ++influence) {
        entries_.append(entryOf(columns.at(influence)));
        if (entries_.last() > 0)
            unweightedRow_[entries_.last()] = 0.0;
    }
}

weightRow vertexRowBuilder::build(const double *weights, double *sum) const
{
    weightRow row = unweightedRow_;
    double *cells = row.data();
    const int *entries = entries_.constData();
    const int influences = static_cast<int>(entries_.size());
    double total = 0.0;
    // Most weights of a vertex are zero, and the prepared row holds zeros already.
    for (int influence = 0; influence < influences; ++influence) {
        const double weight = weights[influence];
        if (weight != 0.0) {
            if (entries[influence] > 0)
                cells[entries[influence]] = weight;
            total += weight;
        }
    }
    *sum = total;
    return row;
}
