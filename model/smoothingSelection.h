// SPDX-License-Identifier: Apache-2.0
// What of a selection smoothing takes, and why it may refuse all of it: `refusal` is then the
// message, else null. Needs neither Maya nor a widget.
#pragma once

#include <QItemSelection>
#include <QVector>

#include "model/lockState.h"
#include "model/weightRow.h"

struct rowsToSmooth {
    const char *refusal;
    QVector<int> rows;
};

// The vertex rows among `selected`. `skinClusters` holds a number for each shape, equal where
// shapes share a skin cluster; refused are rows of several.
rowsToSmooth screenForSmoothing(const QVector<int> &selected, const weightRows &rows,
                                const QVector<int> &skinClusters);

struct cellsToPaint {
    const char *refusal;
    int column;
    QVector<int> rows;
};

// The selected cells, which must be of one joint column that is not locked. Left out are cells
// without weight of their own and those that are locked by themselves or by their row; that nothing
// is left is no refusal.
cellsToPaint screenForPainting(const QItemSelection &selection, const weightRows &rows,
                               const lockState &locks);
