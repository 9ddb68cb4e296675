// SPDX-License-Identifier: Apache-2.0
// The older lock slots, which no control is connected to. They lock through attributes of Maya's
// only: the joint's lockInfluenceWeights, found by the column's header, and lockVertex, a multi
// attribute of the skin cluster that somebody else has to have added. Nothing of it is read back by
// a load.
#include "model/weightTableModel.h"

#include <QSet>

#include "model/influenceLock.h"
#include "model/lockEdit.h"
#include "model/mayaText.h"
#include "model/messages.h"
#include "model/selectionParts.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MGlobal.h>

namespace
{

MString headerOf(int column, const weightList &weights)
{
    return mayaTextOf(weights.jointNames.at(column));
}

// The lockVertex elements of the loaded vertices. Where a skin cluster has no such attribute Maya
// shows an error, and is asked no more. Rows must be vertex rows.
class vertexLocks
{
public:
    explicit vertexLocks(const weightList &weights) : weights_(weights) {}

    bool isLocked(int row)
    {
        int value = 0;
        run(MString("getAttr ") + plug(row), row, &value);
        return value == 1;
    }
    void setLocked(int row, bool isLocked)
    {
        int nothing = 0;
        run(MString("setAttr ") + plug(row) + (isLocked ? " 1" : " 0"), row, &nothing);
    }

private:
    // "bodySkin.lockVertex[12]"
    MString plug(int row) const
    {
        const unsigned int shape = static_cast<unsigned int>(shapeIndexOf(weights_.rows.at(row)));
        MString plug = MFnDependencyNode(weights_.skinClusters[shape]).name() + ".lockVertex[";
        plug += weights_.rowNames.vertex(row);
        return plug + "]";
    }
    void run(const MString &command, int row, int *result)
    {
        const int shape = shapeIndexOf(weights_.rows.at(row));
        if (!refused_.contains(shape) && !MGlobal::executeCommand(command, *result, false, true))
            refused_.insert(shape);
    }

    const weightList &weights_;
    QSet<int> refused_; // shapes
};

} // namespace

void weightTableModel::lockSelected()
{
    const selectionParts selected(viewSelection(), rowCount(), columnCount());
    if (selected.columns().isEmpty() && selected.rows().isEmpty()) {
        MGlobal::displayError(kNothingToLock);
        return;
    }
    lockEdit edit(*this);
    for (int i = 0; i < selected.columns().size(); ++i) {
        const int column = selected.columns().at(i);
        if (isInfluenceLocked(headerOf(column, weights_))) {
            MGlobal::displayInfo(kJointAlreadyLocked);
            continue;
        }
        setInfluenceLocked(headerOf(column, weights_), true);
        edit.listColumn(column);
    }
    vertexLocks vertices(weights_);
    for (int i = 0; i < selected.rows().size(); ++i) {
        const int row = selected.rows().at(i);
        if (!edit.isVertexRow(row, kShapeRowForLocking))
            return;
        if (vertices.isLocked(row)) {
            MGlobal::displayInfo(kVertexAlreadyLocked);
            continue;
        }
        vertices.setLocked(row, true);
        edit.listRow(row);
    }
}

void weightTableModel::unlockSelected()
{
    const selectionParts selected(viewSelection(), rowCount(), columnCount());
    if (selected.columns().isEmpty() && selected.rows().isEmpty()) {
        MGlobal::displayError(kNothingSelectedToUnlock);
        return;
    }
    lockEdit edit(*this);
    for (int i = 0; i < selected.columns().size(); ++i) {
        const int column = selected.columns().at(i);
        if (!locks_.isJointLocked(column)) {
            MGlobal::displayError(kJointNotLocked);
            continue;
        }
        setInfluenceLocked(headerOf(column, weights_), false);
        edit.unlistColumn(column);
    }
    vertexLocks vertices(weights_);
    for (int i = 0; i < selected.rows().size(); ++i) {
        const int row = selected.rows().at(i);
        if (!edit.isVertexRow(row, kShapeRowForUnlocking))
            return;
        if (!locks_.isRowLocked(row)) {
            MGlobal::displayError(kVertexNotLocked);
            continue;
        }
        vertices.setLocked(row, false);
        edit.unlistRow(row);
    }
}

void weightTableModel::unlockAll()
{
    const QList<int> columns = locks_.joints();
    const QList<int> rows = locks_.rows();
    if (columns.isEmpty() && rows.isEmpty()) {
        MGlobal::displayError(kNothingToUnlock);
        return;
    }
    lockEdit edit(*this);
    for (int i = 0; i < columns.size(); ++i) {
        setInfluenceLocked(headerOf(columns.at(i), weights_), false);
        edit.unlistColumn(columns.at(i));
    }
    vertexLocks vertices(weights_);
    for (int i = 0; i < rows.size(); ++i) {
        if (isVertexRow(weights_.rows.at(rows.at(i))))
            vertices.setLocked(rows.at(i), false);
        else
            MGlobal::displayError(kShapeAmongLockedRows);
        edit.unlistRow(rows.at(i));
    }
    locks_.clearJoints();
}
