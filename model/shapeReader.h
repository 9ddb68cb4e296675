// SPDX-License-Identifier: Apache-2.0
// The weights of one loaded shape as its skin cluster holds them at the moment, read with one call
// and laid out in the table's columns. Full precision: rounding is up to who shows them.
#pragma once

#include <QVector>

#include "model/vertexRowBuilder.h"
#include "model/weightList.h"

#include <maya/MDoubleArray.h>

// The joint column of each influence of the skin cluster, in the order of its weights; -1 for one
// that is not loaded.
QVector<int> columnsOfInfluences(const MObject &skinCluster, const weightList &weights);

class shapeReader
{
public:
    shapeReader(const weightList &weights, int shape);
    // Only these of its vertices, which are to ascend.
    shapeReader(const weightList &weights, int shape, const QVector<int> &vertices);

    // Zero for what is no mesh or could not be read. Influences that are not loaded are left out.
    int vertexCount() const { return static_cast<int>(vertices_.size()); }
    // The number of the k-th vertex that was read.
    int vertex(int k) const { return vertices_.at(k); }
    // Its row; `sum` receives the sum of its weights.
    weightRow row(int k, double *sum);

private:
    void read(const weightList &weights, int shape, const QVector<int> &vertices,
              const MObject &component);

    QVector<int> vertices_;
    vertexRowBuilder builder_;
    MDoubleArray weights_; // vertex by vertex, one weight per influence
    unsigned int influenceCount_ = 0;
};
