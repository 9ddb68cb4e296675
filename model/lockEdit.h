// SPDX-License-Identifier: Apache-2.0
// The steps that lock operations are made of. Each changes the model's lists, the scene and the
// view together; what to do at an entry that is locked already is up to the operation.
//
// One lives as long as one operation. At its end it says which skin clusters could not be written,
// once each: their locks hold until the table is loaded again.
#pragma once

#include <QList>
#include <QVector>

#include "model/cellIndex.h"
#include "model/skinClusterLocks.h"

class selectionParts;
class weightTableModel;

class lockEdit
{
public:
    // The model must live longer.
    explicit lockEdit(weightTableModel &model);
    ~lockEdit();

    // Whether the row stands for a vertex; if not, Maya shows `message` as an info.
    bool isVertexRow(int row, const char *message) const;
    // Whether the cell is locked by itself, by its row or by its joint.
    bool isLocked(const cellIndex &cell) const;

    // In the lists and the view only; nothing is written to the scene.
    void listColumn(int column);
    void unlistColumn(int column);
    void listRow(int row);
    void unlistRow(int row);

    // Locks the joint in Maya too. One that Maya has locked already is only taken into the list,
    // with an info.
    void lockColumn(int column);
    void unlockColumn(int column);
    void lockRow(int row);
    void unlockRow(int row);

    enum repetition { kOnce, kAgain };
    // kOnce: no second element in the scene for a cell that has one.
    void writeCellLock(const cellIndex &cell, repetition repeat);
    void clearCellLock(const cellIndex &cell);
    // kOnce: no second entry for a cell that is in the list.
    void listCell(const cellIndex &cell, repetition repeat);

    // Unlocks the cell. Of a row or a joint that is locked all other cells are locked one by one,
    // but for those in `kept` (null: none). REQUIRES: the cell's row is a vertex row.
    void unlockCell(const cellIndex &cell, const selectionParts *kept);

private:
    // Without telling the view.
    void clearColumnLock(int column);
    void clearRowLock(int row);

    void splitRow(const cellIndex &cell, const selectionParts *kept);
    void splitColumn(const cellIndex &cell, const selectionParts *kept);
    void lockOther(const cellIndex &cell, const selectionParts *kept);

    void announceColumn(int column);
    void announceRow(int row);
    void announceCell(const cellIndex &cell);

    skinClusterLocks &locksOfRow(int row);
    MString jointPath(int column) const;

    weightTableModel &model_;
    QList<skinClusterLocks> skinClusters_; // without repetition
    QVector<int> skinClusterOfShape_;      // the place there
};
