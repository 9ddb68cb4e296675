// SPDX-License-Identifier: Apache-2.0
// How many decimal places are shown: nothing of it touches the scene.
#include "model/weightTableModel.h"

#include "model/freshRounding.h"
#include "model/messages.h"
#include "model/shapeReader.h"

#include <maya/MGlobal.h>

void weightTableModel::cacheUnroundedWeights()
{
    unroundedRows_ = readUnroundedRows();
    if (unroundedRows_.isEmpty())
        MGlobal::displayError(kNothingToCache);
}

// Of the table's shape; empty if no shape can be read. Rows of a shape that cannot are as they are
// shown.
weightRows weightTableModel::readUnroundedRows() const
{
    weightRows rows = weights_.rows;
    bool isAnyRead = false;
    for (int shape = 0; shape < weights_.shapeCount(); ++shape) {
        if (!weights_.isInScene(shape))
            continue;
        shapeReader reader(weights_, shape);
        const int first = weights_.firstVertexRow(shape);
        if (reader.vertexCount() != weights_.endOfVertexRows(shape) - first)
            continue; // the mesh was changed since it was loaded
        double sum = 0.0;
        for (int k = 0; k < reader.vertexCount(); ++k)
            rows[first + k] = reader.row(k, &sum);
        isAnyRead = true;
    }
    return isAnyRead ? rows : weightRows();
}

void weightTableModel::setPrecision(int places)
{
    if (places < 1) {
        MGlobal::displayError(kInvalidPrecision);
        return;
    }
    if (unroundedRows_.isEmpty())
        unroundedRows_ = readUnroundedRows();
    if (unroundedRows_.isEmpty()) {
        MGlobal::displayError(kNoWeightList);
        return;
    }
    if (!locks_.isEmpty()) {
        MGlobal::displayError(kPrecisionWhileLocked);
        return;
    }
    previousPrecision_ = settings_.precision;
    settings_.precision = places;
    const freshRounding met = roundAnew(unroundedRows_, places, weights_.rows);
    weights_.notes.allOtherwiseRounded = true;

    // Once each, however many rows are like that.
    if (met.metRowWithoutColumns)
        MGlobal::displayError(kRowWithoutColumns);
    if (met.metRowWithoutWeight) {
        MGlobal::displayError(kRowWithoutWeight);
        return;
    }
    emit layoutAboutToBeChanged();
    emit layoutChanged();
}

void weightTableModel::undoPrecision()
{
    settings_.precision = previousPrecision_;
}
