// SPDX-License-Identifier: Apache-2.0
// A cell of the table: two numbers that must not change places.
#pragma once

#include <QtGlobal>

#include <QHash>

struct cellIndex {
    int row;    // table row, shape rows counted
    int column; // joint column
};

inline bool operator==(const cellIndex &a, const cellIndex &b)
{
    return a.row == b.row && a.column == b.column;
}

inline uint qHash(const cellIndex &cell)
{
    return static_cast<uint>(cell.row) * 31u + static_cast<uint>(cell.column);
}
