// SPDX-License-Identifier: Apache-2.0
// The locks stored in the scene, turned into rows and columns of the table.
#include "model/weightTableModel.h"

#include "model/lockAttributes.h"
#include "model/mayaText.h"
#include "model/messages.h"
#include "model/vertexRowFinder.h"

#include <maya/MGlobal.h>

namespace
{

// A joint that is not loaded is kept as column -1, and a joint that several skin clusters store
// comes once for each: who reads the list asks only whether a column is in it.
void readJointLocks(const weightList &weights, int shape, lockState &locks)
{
    const MStringArray paths = storedJointLocks(weights.skinClusters[shape]);
    for (unsigned int i = 0; i < paths.length(); ++i)
        locks.lockJoint(weights.jointColumnOf(textOf(paths[i])));
}

void readVertexLocks(const weightList &weights, int shape, vertexRowFinder &rows, lockState &locks)
{
    const QVector<int> vertices = storedVertexLocks(weights.skinClusters[shape]);
    for (int i = 0; i < vertices.size(); ++i) {
        const int row = rows.rowOf(vertices.at(i));
        if (row >= 0)
            locks.lockRow(row);
    }
}

void readCellLocks(const weightList &weights, int shape, vertexRowFinder &rows, lockState &locks)
{
    const QVector<storedCellLock> stored = storedCellLocks(weights.skinClusters[shape]);
    for (int i = 0; i < stored.size(); ++i) {
        const int column = weights.jointColumnOf(textOf(stored.at(i).jointPath));
        const int row = rows.rowOf(stored.at(i).vertex);
        if (row >= 0 && column >= 0)
            locks.lockCell(row, column);
    }
}

} // namespace

void weightTableModel::checkLockAttr()
{
    locks_.clear();
    for (int shape = 0; shape < weights_.shapeCount(); ++shape) {
        // Also where a kept table outlived its mesh.
        if (!weights_.isInScene(shape)) {
            MGlobal::displayError(kShapeNotInTable);
            return;
        }
        addMissingLockAttributesQuietly(weights_.skinClusters[shape]);
        vertexRowFinder rows(weights_.rowNames, weights_.firstVertexRow(shape),
                             weights_.endOfVertexRows(shape));
        readJointLocks(weights_, shape, locks_);
        readVertexLocks(weights_, shape, rows, locks_);
        readCellLocks(weights_, shape, rows, locks_);
    }
}
