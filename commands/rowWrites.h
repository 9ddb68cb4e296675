// SPDX-License-Identifier: Apache-2.0
// Rows of the table as places of an edit.
#pragma once

#include "commands/editedShapes.h"
#include "commands/preparers.h"

// Appends writes, without values, to the vertices of the rows, which are to ascend: one for all
// rows of a shape. Fails at a row that names no vertex.
preparation appendWritesToRows(const QVector<int> &rows, const editSource &source,
                               editedShapes &shapes);
