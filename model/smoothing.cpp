// SPDX-License-Identifier: Apache-2.0
// Smoothing by Maya's own means: the skin cluster's smoothing edit, and the paint tool.
#include "model/weightTableModel.h"

#include <QScopedValueRollback>

#include "model/mayaText.h"
#include "model/messages.h"
#include "model/smoothingScript.h"
#include "model/smoothingSelection.h"
#include "model/tableSelection.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MGlobal.h>

namespace
{

QString smoothingOf(const weightList &weights, int shape, const QString &value, int iterations)
{
    const MObject &skinCluster = weights.skinClusters[static_cast<unsigned int>(shape)];
    return smoothingScript(value, iterations, textOf(MFnDependencyNode(skinCluster).name()));
}

// As short as they can be without meaning two nodes. A shape that is gone has none.
QStringList namesOfShapes(const weightList &weights)
{
    QStringList names;
    for (int shape = 0; shape < weights.shapeCount(); ++shape) {
        const MDagPath &path = weights.shapePaths[static_cast<unsigned int>(shape)];
        names.append(weights.isInScene(shape) ? textOf(path.partialPathName()) : QString());
    }
    return names;
}

} // namespace

void weightTableModel::applySmoothSkinWeights(double value, int numIter)
{
    if (weights_.rows.isEmpty()) {
        MGlobal::displayInfo(kNoWeightListYet);
        return;
    }
    keepPreviousWeights();
    const QScopedValueRollback<bool> restoreMode(smoothSkinWeightsMode_);
    smoothSkinWeightsMode_ = true;
    const QVector<int> rows = viewSelection().isEmpty()
                                  ? smoothWholeMeshes(textOf(value), numIter)
                                  : smoothSelectedRows(textOf(value), numIter);
    if (rows.isEmpty())
        return;
    refreshRowsEditedAt(rows, -1);
    showFilteredColumns();
}

QVector<int> weightTableModel::smoothWholeMeshes(const QString &value, int iterations)
{
    const QVector<int> first = weights_.firstWithSkinCluster();
    const QVector<int> rows = allVertexRows();
    const editAction all(trail_);
    for (int shape = 0; shape < first.size(); ++shape) {
        if (first.at(shape) != shape)
            continue;
        if (!weights_.isInScene(shape)) {
            MGlobal::displayError(kNoShapeToSmooth);
            continue;
        }
        handOver_.smoothedShape = shape;
        handOver_.smoothingScript = smoothingOf(weights_, shape, value, iterations);
        runEdit("-smoothSkinWeights", rows);
    }
    return rows;
}

QVector<int> weightTableModel::smoothSelectedRows(const QString &value, int iterations)
{
    const QVector<int> skinClusters = weights_.firstWithSkinCluster();
    const rowsToSmooth chosen =
        screenForSmoothing(rowsWithSelectedCell(viewSelection()), weights_.rows, skinClusters);
    const int shape = chosen.refusal ? -1 : shapeIndexOf(weights_.rows.at(chosen.rows.first()));
    if (chosen.refusal || !weights_.isInScene(shape)) {
        MGlobal::displayError(chosen.refusal ? chosen.refusal : kNoShapeToSmooth);
        return QVector<int>();
    }
    const QString vertices =
        vertexWords(chosen.rows, weights_.rows, weights_.rowNames, namesOfShapes(weights_));
    handOver_.smoothedRows = chosen.rows;
    handOver_.smoothedShape = -1;
    handOver_.smoothingScript =
        smoothingOfVertices(vertices, smoothingOf(weights_, shape, value, iterations));
    runEdit("-smoothSkinWeights", chosen.rows);
    return chosen.rows;
}

void weightTableModel::applySkinPaintSmooth(double value)
{
    if (weights_.rows.isEmpty()) {
        MGlobal::displayInfo(kNoWeightListYet);
        return;
    }
    keepPreviousWeights();
    const cellsToPaint chosen = screenForPainting(viewSelection(), weights_.rows, locks_);
    if (chosen.refusal) {
        MGlobal::displayInfo(chosen.refusal);
        return;
    }
    const QScopedValueRollback<bool> restoreMode(skinPaintSmoothMode_);
    skinPaintSmoothMode_ = true;
    handOver_.operationColumn = chosen.column;
    handOver_.paintedRows = chosen.rows;
    handOver_.paintOpacity = value;
    runEdit("-skinPaintSmooth", chosen.rows);

    refreshRowsEditedAt(chosen.rows, chosen.column);
    showFilteredColumns();
}
