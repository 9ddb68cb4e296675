// SPDX-License-Identifier: Apache-2.0
// Where a command has written weights, in terms that outlive the table: a skin cluster and numbers
// of vertices.
#pragma once

#include <QVector>

#include <maya/MObject.h>

struct writtenVertices {
    MObject skinCluster;
    bool allVertices; // else those listed
    QVector<int> vertices;
};
