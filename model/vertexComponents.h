// SPDX-License-Identifier: Apache-2.0
// Components of mesh vertices, as setWeights and getWeights take them.
#pragma once

#include "model/weightList.h"

#include <maya/MObject.h>

MObject oneVertex(int vertex);

// In any order, each once.
MObject componentOf(const QVector<int> &vertices);

// The first `count`.
MObject allVertices(int count);

// The vertices of a shape that stand in the table, in the order of their rows.
MObject loadedVerticesOf(const weightList &weights, int shape);
