// SPDX-License-Identifier: Apache-2.0
// Lays the weights that a skin cluster answers, influence by influence, out in joint columns.
//
// The joint of influence 0 need not be column 0, and columns of other shapes' joints stay inert.
// Where each influence goes is worked out once per shape; a row then costs one copy of a prepared
// row and a look at each influence. Needs neither Maya nor a widget.
#pragma once

#include "model/weightRow.h"

weightRow shapeRow(int columnCount);

class vertexRowBuilder
{
public:
    // `columns` holds the joint column of each influence of the shape's skin cluster, in the order
    // of its weights, each below columnCount; -1 for one that has none, whose weight only adds to
    // the sum.
    vertexRowBuilder(int shapeIndex, int columnCount, const QVector<int> &columns);

    int influenceCount() const { return static_cast<int>(entries_.size()); }

    // The row of a vertex. `weights` points to one weight per influence; `sum` receives their sum.
    weightRow build(const double *weights, double *sum) const;

private:
    QVector<int> entries_; // of each influence
    weightRow unweightedRow_;
};
