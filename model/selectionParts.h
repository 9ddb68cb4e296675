// SPDX-License-Identifier: Apache-2.0
// A selection of the table taken apart as the lock buttons see it: whole joint columns, whole rows,
// and the single cells that belong to neither. Needs neither Maya nor a widget.
#pragma once

#include "model/cellIndex.h"

#include <QItemSelection>
#include <QSet>
#include <QVector>

class selectionParts
{
public:
    // REQUIRES: the ranges do not overlap, which those of a selection model do not.
    selectionParts(const QItemSelection &selection, int rowCount, int columnCount);

    // Each in the order of selecting.
    const QVector<int> &columns() const { return columns_; }
    const QVector<int> &rows() const { return rows_; }
    const QVector<cellIndex> &cells() const { return cells_; }

    bool isEmpty() const { return columns_.isEmpty() && rows_.isEmpty() && cells_.isEmpty(); }
    // Whether the cell is selected, alone or with its row or column.
    bool contains(const cellIndex &cell) const;

private:
    QVector<int> columns_;
    QVector<int> rows_;
    QVector<cellIndex> cells_;
    QSet<int> columnSet_;
    QSet<int> rowSet_;
    QSet<cellIndex> cellSet_;
};

// Every selected cell, in the order of selecting; within a range row by row.
QVector<cellIndex> cellsOf(const QItemSelection &selection);
