// SPDX-License-Identifier: Apache-2.0
// Finds the table row of a vertex within one shape's block of vertex rows.
//
// Where the whole shape is loaded the row follows from the number. Where some vertices are, an
// index is built at the first question that needs it. Valid as long as the names are not changed.
// Needs neither Maya nor a widget.
#pragma once

#include "model/rowNameList.h"

#include <QHash>

class vertexRowFinder
{
public:
    // The block is rows [firstRow, endRow) of `names`, which must live as long as the finder.
    vertexRowFinder(const rowNameList &names, int firstRow, int endRow);

    // The vertex's row; -1 if it is not loaded.
    int rowOf(int vertex);

private:
    const rowNameList &names_;
    int firstRow_;
    int endRow_;
    QHash<int, int> rowByVertex_;
};
