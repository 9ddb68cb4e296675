// SPDX-License-Identifier: Apache-2.0
// The joint columns that carry no weight in any loaded row: what the filter hides.
//
// Markers of shape rows and inert cells are no weight. For each column that carries weight one row
// with weight is known, its witness; as long as that row keeps it, a change of other rows costs a
// look at these rows alone.
#pragma once

#include "model/weightRow.h"

#include <QList>

class emptyColumns
{
public:
    // Looks at the rows until each of the columns 0 to columnCount - 1 has a witness.
    void find(const weightRows &rows, int columnCount);
    // Follows a change of that one row. REQUIRES: find() was called on these rows.
    void follow(const weightRows &rows, int changedRow);

    // Ascending.
    QList<int> columns() const;

private:
    QVector<int> witnesses_; // a row for each column; -1: the column is empty
};
