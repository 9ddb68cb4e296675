// SPDX-License-Identifier: Apache-2.0
// Which rows a limit of the influences per vertex may change. Needs neither Maya nor a widget.
#pragma once

#include "model/lockState.h"
#include "model/weightRow.h"

struct rowsToLimit {
    QVector<int> rows;
    int refusedCount;
};

// How many influences a row has beyond the maximum. The last one never goes, whatever the maximum.
int influencesBeyond(int maximum, const weightRow &row);

// Those of `candidates`, in their order, that no lock protects: the row is not locked, and none of
// its weights is, by itself or with its joint. A lock on a cell without weight protects nothing.
//
// Deliberate: the row that follows a refused one is taken unseen, be it locked or not. Pinned by
// the test rowsToLimitTest.takesTheRowBehindARefusedOneUnseen.
rowsToLimit screenForLimit(const QVector<int> &candidates, const weightRows &rows,
                           const lockState &locks);
