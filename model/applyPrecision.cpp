// SPDX-License-Identifier: Apache-2.0
// Rounding the skin clusters: through korvexCmd, and back and forth past Maya's undo queue.
#include "model/weightTableModel.h"

#include "model/mayaText.h"
#include "model/messages.h"
#include "model/shapeReader.h"
#include "model/vertexComponents.h"

#include <maya/MDoubleArray.h>
#include <maya/MFnSkinCluster.h>
#include <maya/MGlobal.h>
#include <maya/MIntArray.h>

namespace
{

bool hasWeightOutOfRange(const weightRow &row)
{
    for (int column = 0; hasCell(row, column); ++column) {
        const double cell = cellOf(row, column);
        if (isWeightCell(cell) && !(cell >= 0.0 && cell <= 1.0))
            return true;
    }
    return false;
}

// A residual beside weights that sum to more than 1.0 is negative, beside others more than 1.0.
void warnOfWeightsOutOfRange(const weightRows &rows)
{
    int count = 0;
    for (int r = 0; r < rows.size(); ++r)
        count += isVertexRow(rows.at(r)) && hasWeightOutOfRange(rows.at(r)) ? 1 : 0;
    if (count == 0)
        return;
    MGlobal::displayWarning(messageWith(kWeightsOutOfRange, count));
}

// The influence index of each joint column; -1 for what is no influence of the shape.
QVector<int> influencesOfColumns(const weightList &weights, int shape)
{
    QVector<int> influences(weights.jointCount(), -1);
    if (!weights.isInScene(shape))
        return influences;
    const QVector<int> columns =
        columnsOfInfluences(weights.skinClusters[static_cast<unsigned int>(shape)], weights);
    for (int influence = 0; influence < columns.size(); ++influence) {
        if (columns.at(influence) >= 0)
            influences[columns.at(influence)] = influence;
    }
    return influences;
}

// Writes rows of one shape into its skin cluster.
class rowWriter
{
public:
    rowWriter(const weightList &weights, int shape)
        : path_(weights.shapePaths[static_cast<unsigned int>(shape)]),
          skinCluster_(weights.skinClusters[static_cast<unsigned int>(shape)]),
          influences_(influencesOfColumns(weights, shape))
    {
    }

    // False, and nothing written, if a joint with a weight in the row is no influence.
    bool write(int vertex, const weightRow &row)
    {
        MIntArray influences;
        MDoubleArray values;
        for (int column = 0; hasCell(row, column); ++column) {
            if (!(cellOf(row, column) >= 0.0))
                continue;
            values.append(cellOf(row, column));
            if (influences_.at(column) >= 0)
                influences.append(influences_.at(column));
        }
        if (influences.length() != values.length())
            return false;
        MFnSkinCluster(skinCluster_).setWeights(path_, oneVertex(vertex), influences, values, true);
        return true;
    }

private:
    MDagPath path_;
    MObject skinCluster_;
    QVector<int> influences_; // of each joint column
};

} // namespace

void weightTableModel::applyPrecision()
{
    // What undoApplyPrecision() is to bring back.
    unroundedRows_ = readUnroundedRows();
    handOver_.roundedRows = weights_.rows;
    warnOfWeightsOutOfRange(handOver_.roundedRows);
    runEdit("-round");
}

void weightTableModel::undoApplyPrecision()
{
    writeRows(unroundedRows_);
}

void weightTableModel::redoApplyPrecision()
{
    writeRows(handOver_.roundedRows);
}

// `rows` are of the table's shape, or empty. What was written before the operation stops stays.
void weightTableModel::writeRows(const weightRows &rows)
{
    QList<rowWriter> writers;
    for (int shape = 0; shape < weights_.shapeCount(); ++shape)
        writers.append(rowWriter(weights_, shape));
    for (int r = 0; r < rows.size(); ++r) {
        if (!isVertexRow(rows.at(r)))
            continue;
        const int vertex = weights_.rowNames.vertex(r);
        if (vertex < 0) {
            MGlobal::displayError(kUnreadableVertexIndex);
            return;
        }
        if (!writers[shapeIndexOf(rows.at(r))].write(vertex, rows.at(r))) {
            MGlobal::displayInfo(kArraysDiffer);
            return;
        }
    }
}
