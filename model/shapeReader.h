// SPDX-License-Identifier: Apache-2.0
// The weights of one loaded shape as its skin cluster holds them at the moment, laid out in the
// table's columns. Full precision: rounding is up to who shows them.
#pragma once

#include <QVector>

#include "model/vertexRowBuilder.h"
#include "model/weightList.h"

#include <maya/MDagPath.h>
#include <maya/MDoubleArray.h>
#include <maya/MObject.h>

// The joint column of each influence of the skin cluster, in the order of its weights; -1 for one
// that is not loaded.
QVector<int> columnsOfInfluences(const MObject &skinCluster, const weightList &weights);

class shapeReader
{
public:
    // Reads with one call.
    shapeReader(const weightList &weights, int shape);
    // Only these of its vertices, which are to ascend. Reads as it goes, some thousand vertices at
    // a time: the dense weights of a whole mesh are more than the processor's caches hold. The
    // scene must not change meanwhile.
    shapeReader(const weightList &weights, int shape, const QVector<int> &vertices);

    // Zero for what is no mesh or could not be read. Influences that are not loaded are left out.
    int vertexCount() const { return static_cast<int>(vertices_.size()); }
    // The number of the k-th vertex.
    int vertex(int k) const { return vertices_.at(k); }
    // Its row; `sum` receives the sum of its weights. Cheapest in ascending order of k.
    weightRow row(int k, double *sum);

private:
    bool read(const MObject &component, int first, int end);
    bool readBlock(int first);

    MObject skinCluster_;
    MDagPath path_;
    QVector<int> vertices_;
    vertexRowBuilder builder_;

    // Vertex by vertex, one weight per influence: of the vertices [first_, end_).
    MDoubleArray weights_;
    int first_ = 0;
    int end_ = 0;
    unsigned int influenceCount_ = 0;
};
