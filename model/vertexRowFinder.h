// SPDX-License-Identifier: Apache-2.0
// Finds the table row of a vertex within one shape's block of vertex rows.
//
// Where the whole shape is loaded the row follows from the number; where some vertices are, it is
// searched for, since they ascend. Needs neither Maya nor a widget.
#pragma once

#include "model/rowNameList.h"

class vertexRowFinder
{
public:
    // The block is rows [firstRow, endRow) of `names`, which must live as long as the finder.
    vertexRowFinder(const rowNameList &names, int firstRow, int endRow);

    // The vertex's row; -1 if it is not loaded.
    int rowOf(int vertex) const;

private:
    const rowNameList &names_;
    int firstRow_;
    int endRow_;
};
