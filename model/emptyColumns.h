// SPDX-License-Identifier: Apache-2.0
// The joint columns that carry no weight in any loaded row: what the filter hides.
#pragma once

#include "model/weightRow.h"

#include <QList>

// The columns from 0 to columnCount - 1 in which no row has a value above 0.0, ascending. Markers
// of shape rows and inert cells are no weight. Costs one look at every row for each empty column;
// columns that carry weight drop out where their first weight is found.
QList<int> emptyColumns(const weightRows &rows, int columnCount);
