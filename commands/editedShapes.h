// SPDX-License-Identifier: Apache-2.0
// The shapes of an edit while it is prepared: each is entered at its first write, with what all its
// writes ask of the skin cluster.
#pragma once

#include "commands/editSource.h"
#include "commands/influenceLookup.h"
#include "commands/preparedEdit.h"

#include <vector>

class editedShapes
{
public:
    // Both must outlive it.
    editedShapes(const editSource &source, preparedEdit &edit);

    // The place in the edit of a loaded shape; -1 if the scene has lost it.
    int enter(int shape);

    // True the first time that the vertex is asked for. A mesh that is loaded twice shows it in two
    // rows, and an edit that wrote both could not be taken back.
    bool isNew(int shape, int vertex);
    // The rows of the shape whose vertices are.
    QVector<int> newRows(int shape);

    // Where `place` is what enter() gave.
    // The influence that a joint column is there; -1 for none.
    int influenceOf(int place, int column) const;
    // Whether weights made up for a vertex come from those around it (weightDistribution 1).
    bool readsNeighbours(int place) const;
    // A write to some vertices, or to those of some rows of the shape, without values. REQUIRES: at
    // least one. Valid until the next.
    weightWrite &appendWrite(int place, const QVector<int> &vertices);
    weightWrite &appendWriteToRows(int place, int shape, const QVector<int> &rows);
    // To all vertices of the mesh, in the table or not.
    weightWrite &appendWriteToMesh(int place);

private:
    weightWrite &append(int place, const MObject &component, int highestVertex);

    const editSource &source_;
    preparedEdit &edit_;
    QVector<int> places_;                     // by loaded shape; -1: not entered yet
    const QVector<int> firstWithSkinCluster_; // by loaded shape
    std::vector<QVector<bool>> asked_; // by the first shape with the skin cluster, and vertex
    std::vector<influenceLookup> lookups_;
    QVector<bool> readNeighbours_; // by place
};
