// SPDX-License-Identifier: Apache-2.0
#include "model/lockEdit.h"

#include "model/influenceLock.h"
#include "model/mayaText.h"
#include "model/messages.h"
#include "model/selectionParts.h"
#include "model/weightTableModel.h"

#include <maya/MGlobal.h>

lockEdit::lockEdit(weightTableModel &model) : model_(model)
{
    const MObjectArray &loaded = model.weights_.skinClusters;
    for (unsigned int shape = 0; shape < loaded.length(); ++shape) {
        int place = 0;
        while (place < skinClusters_.size() && !skinClusters_.at(place).isOf(loaded[shape]))
            ++place;
        if (place == skinClusters_.size())
            skinClusters_.append(skinClusterLocks(
                model.weights_.isInScene(static_cast<int>(shape)) ? loaded[shape] : MObject()));
        skinClusterOfShape_.append(place);
    }
}

lockEdit::~lockEdit()
{
    for (int i = 0; i < skinClusters_.size(); ++i) {
        if (!skinClusters_.at(i).hasFailed())
            continue;
        MGlobal::displayError(messageWith(kLocksNotStored, skinClusters_.at(i).name()));
    }
}

bool lockEdit::isVertexRow(int row, const char *message) const
{
    if (::isVertexRow(model_.weights_.rows.at(row)))
        return true;
    MGlobal::displayInfo(message);
    return false;
}

bool lockEdit::isLocked(const cellIndex &cell) const
{
    return model_.locks_.isLocked(cell.row, cell.column);
}

void lockEdit::listColumn(int column)
{
    if (!model_.locks_.isJointLocked(column))
        model_.locks_.lockJoint(column);
    announceColumn(column);
}

void lockEdit::unlistColumn(int column)
{
    model_.locks_.unlockJoint(column);
    announceColumn(column);
}

void lockEdit::listRow(int row)
{
    if (!model_.locks_.isRowLocked(row))
        model_.locks_.lockRow(row);
    announceRow(row);
}

void lockEdit::unlistRow(int row)
{
    model_.locks_.unlockRow(row);
    announceRow(row);
}

void lockEdit::lockColumn(int column)
{
    // First in the list, whatever Maya answers.
    listColumn(column);
    const MString path = jointPath(column);
    if (isInfluenceLocked(path)) {
        MGlobal::displayInfo(kJointAlreadyLocked);
        return;
    }
    setInfluenceLocked(path, true);
    for (int i = 0; i < skinClusters_.size(); ++i)
        skinClusters_[i].storeJoint(path);
}

void lockEdit::unlockColumn(int column)
{
    clearColumnLock(column);
    announceColumn(column);
}

void lockEdit::clearColumnLock(int column)
{
    const MString path = jointPath(column);
    model_.locks_.unlockJoint(column);
    setInfluenceLocked(path, false);
    for (int i = 0; i < skinClusters_.size(); ++i)
        skinClusters_[i].removeJoint(path);
}

void lockEdit::lockRow(int row)
{
    locksOfRow(row).storeVertex(model_.weights_.rowNames.vertex(row), true);
    listRow(row);
}

void lockEdit::unlockRow(int row)
{
    clearRowLock(row);
    announceRow(row);
}

void lockEdit::clearRowLock(int row)
{
    model_.locks_.unlockRow(row);
    locksOfRow(row).storeVertex(model_.weights_.rowNames.vertex(row), false);
}

void lockEdit::writeCellLock(const cellIndex &cell, repetition repeat)
{
    const int vertex = model_.weights_.rowNames.vertex(cell.row);
    const MString path = jointPath(cell.column);
    skinClusterLocks &stored = locksOfRow(cell.row);
    if (repeat == kAgain || !stored.hasCell(vertex, path))
        stored.storeCell(vertex, path);
}

void lockEdit::clearCellLock(const cellIndex &cell)
{
    locksOfRow(cell.row).removeCell(model_.weights_.rowNames.vertex(cell.row),
                                    jointPath(cell.column));
}

void lockEdit::listCell(const cellIndex &cell, repetition repeat)
{
    if (repeat == kAgain || !model_.locks_.isCellLocked(cell.row, cell.column))
        model_.locks_.lockCell(cell.row, cell.column);
    announceCell(cell);
}

void lockEdit::unlockCell(const cellIndex &cell, const selectionParts *kept)
{
    if (model_.locks_.isCellLocked(cell.row, cell.column)) {
        model_.locks_.unlockCell(cell.row, cell.column);
        clearCellLock(cell);
        announceCell(cell);
    }
    if (model_.locks_.isRowLocked(cell.row))
        splitRow(cell, kept);
    if (model_.locks_.isJointLocked(cell.column))
        splitColumn(cell, kept);
}

void lockEdit::splitRow(const cellIndex &cell, const selectionParts *kept)
{
    clearRowLock(cell.row);
    for (int column = 0; column < model_.weights_.jointCount(); ++column) {
        const cellIndex other = {cell.row, column};
        if (column != cell.column)
            lockOther(other, kept);
    }
    announceRow(cell.row);
}

void lockEdit::splitColumn(const cellIndex &cell, const selectionParts *kept)
{
    clearColumnLock(cell.column);
    for (int row = 0; row < model_.weights_.rows.size(); ++row) {
        const cellIndex other = {row, cell.column};
        if (row != cell.row && ::isVertexRow(model_.weights_.rows.at(row)))
            lockOther(other, kept);
    }
    announceColumn(cell.column);
}

// What a split leaves locked. The view hears of the whole row or column at the end.
void lockEdit::lockOther(const cellIndex &cell, const selectionParts *kept)
{
    const weightRow &row = model_.weights_.rows.at(cell.row);
    if (!hasCell(row, cell.column) || !isWeightCell(cellOf(row, cell.column)))
        return;
    if (kept && kept->contains(cell))
        return;
    writeCellLock(cell, kAgain);
    if (!model_.locks_.isCellLocked(cell.row, cell.column))
        model_.locks_.lockCell(cell.row, cell.column);
}

void lockEdit::announceColumn(int column)
{
    const int lastRow = model_.rowCount() - 1;
    emit model_.dataChanged(model_.index(0, column), model_.index(lastRow, column));
    emit model_.headerDataChanged(Qt::Horizontal, column, column);
}

void lockEdit::announceRow(int row)
{
    const int lastColumn = model_.columnCount() - 1;
    emit model_.dataChanged(model_.index(row, 0), model_.index(row, lastColumn));
    emit model_.headerDataChanged(Qt::Vertical, row, row);
}

void lockEdit::announceCell(const cellIndex &cell)
{
    const QModelIndex index = model_.index(cell.row, cell.column);
    emit model_.dataChanged(index, index);
}

// REQUIRES: the row is a vertex row.
skinClusterLocks &lockEdit::locksOfRow(int row)
{
    const int shape = shapeIndexOf(model_.weights_.rows.at(row));
    return skinClusters_[skinClusterOfShape_.at(shape)];
}

MString lockEdit::jointPath(int column) const
{
    return model_.weights_.jointPaths[static_cast<unsigned int>(column)].fullPathName();
}
