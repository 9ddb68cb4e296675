// SPDX-License-Identifier: Apache-2.0
// Which joint columns, vertex rows and single cells are locked.
//
// Each kind is a list in locking order, in which an entry may stand more than once (two shapes that
// both store a joint's lock yield its column twice). Asking costs the same however much is locked:
// the table asks for every cell it paints. Needs neither Maya nor a widget.
#pragma once

#include "model/cellIndex.h"
#include "model/lockList.h"

#include <QList>

class lockState
{
public:
    // Column -1 stands for a joint that is not loaded: it is in the list, and no lock.
    void lockJoint(int column) { joints_.append(column); }
    void lockRow(int row) { rows_.append(row); }
    void lockCell(int row, int column);

    // Each removes every entry that is equal.
    void unlockJoint(int column) { joints_.removeAll(column); }
    void unlockRow(int row) { rows_.removeAll(row); }
    void unlockCell(int row, int column);

    void clear() { *this = lockState(); }
    void clearJoints() { joints_ = lockList<int>(); }
    void clearRows() { rows_ = lockList<int>(); }
    void clearCells() { cells_ = lockList<cellIndex>(); }

    // Whether nothing is locked.
    bool isEmpty() const;
    bool hasRows() const { return !rows_.isEmpty(); }
    bool hasCells() const { return !cells_.isEmpty(); }
    bool isJointLocked(int column) const { return joints_.contains(column); }
    bool isRowLocked(int row) const { return rows_.contains(row); }
    // Whether that very cell is locked by itself.
    bool isCellLocked(int row, int column) const;
    // Whether the cell is out of reach: by itself, by its row or by its joint.
    bool isLocked(int row, int column) const;

    // Copies, in locking order. The joints are those that are loaded.
    QList<int> joints() const;
    QList<int> rows() const { return rows_.entries(); }
    QList<cellIndex> cells() const { return cells_.entries(); }

private:
    lockList<int> joints_;
    lockList<int> rows_;
    lockList<cellIndex> cells_;
};
