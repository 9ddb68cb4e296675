// SPDX-License-Identifier: Apache-2.0
// Which joint columns, vertex rows and single cells are locked.
//
// Each kind is a list in locking order, in which an entry may stand more than once (two shapes that
// both store a joint's lock yield its column twice; a stored joint that is not loaded yields column
// -1). Beside each list stands a set, so that asking costs the same however much is locked: the
// table asks for every cell it paints. Needs neither Maya nor a widget.
#pragma once

#include "model/cellIndex.h"

#include <QList>
#include <QSet>

class lockState
{
public:
    void lockJoint(int column);
    void lockRow(int row);
    void lockCell(int row, int column);

    // Each removes every entry that is equal.
    void unlockJoint(int column);
    void unlockRow(int row);
    // Removes one equal entry: a cell that was locked twice stays locked.
    void unlockCell(int row, int column);

    void clear();

    bool isEmpty() const { return joints_.isEmpty() && rows_.isEmpty() && cells_.isEmpty(); }
    bool isJointLocked(int column) const { return jointSet_.contains(column); }
    bool isRowLocked(int row) const { return rowSet_.contains(row); }
    // Whether that very cell is locked by itself.
    bool isCellLocked(int row, int column) const;
    // Whether the cell is out of reach: by itself, by its row or by its joint.
    bool isLocked(int row, int column) const;

    const QList<int> &joints() const { return joints_; }
    const QList<int> &rows() const { return rows_; }
    const QList<cellIndex> &cells() const { return cells_; }

private:
    QList<int> joints_;
    QList<int> rows_;
    QList<cellIndex> cells_;
    QSet<int> jointSet_;
    QSet<int> rowSet_;
    QHash<cellIndex, int> cellCounts_; // how often each stands in cells_
};
