// SPDX-License-Identifier: Apache-2.0
// An edit of weights as data: what to write where, and what that displaced.
//
// A preparer fills it from the table, a writer carries it out, the replay takes it back. Everything
// in it is a copy or one of Maya's own objects: it stays on the undo queue while the table changes
// or goes. Influence indices are positions in MFnSkinCluster::influenceObjects.
#pragma once

#include "model/weightRow.h"
#include "model/writtenVertices.h"

#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MDoubleArray.h>
#include <maya/MObject.h>
#include <maya/MObjectHandle.h>
#include <maya/MStringArray.h>

// A shape that the edit writes to.
struct editedShape {
    MObjectHandle skinCluster; // tells whether the node is still there
    MDagPath path;
    unsigned int influenceCount = 0;
    int highestVertex = -1;         // that is written to
    QVector<int> influenceOfColumn; // limiting influences only; -1: none of this skin cluster
    bool switchesMaximumOn = false; // smoothing only: maintainMaxInfluences was off before
};

// Limiting influences: a vertex's row of the table, and where it stands.
struct limitedRow {
    weightRow row;
    int index;
};

// One call of setWeights, or a series of them on the same vertices.
struct weightWrite {
    int shape = -1; // in preparedEdit::shapes
    MObject component;
    QVector<int> vertices; // of the component; empty if it is all that are loaded, or more

    int influence = -1;  // where one influence is written
    double value = 0.0;  // where all vertices get the same
    MDoubleArray values; // else vertex by vertex: of that influence, or of all

    // Joints that Maya must hold meanwhile.
    MDagPathArray heldJoints;

    // Limiting influences: of each of `vertices`, and how many may stay.
    QVector<limitedRow> limitedRows;
    int maximum = 0;
    // Those of the vertices whose weights oldWeights has; null if it has all of them.
    MObject displaced;
};

struct preparedEdit {
    QVector<editedShape> shapes;
    QVector<weightWrite> writes;

    // Rounded values sum to 1: they go in under whatever normalization the skin cluster has. All
    // other writes are normalized.
    bool leavesNormalizationAlone = false;

    // Smoothing: the MEL by which Maya's own tools write, in all places of `writes` at once, and
    // the joints that Maya must hold meanwhile.
    MStringArray scripts;
    MDagPathArray heldJoints;

    // What the writes displaced at the latest doing or redoing, in their order: the weights of all
    // influences, vertex by vertex. Shorter than `writes` where that broke off.
    QVector<MDoubleArray> oldWeights;
};

// Where the edit writes, for who wants to read it again.
QVector<writtenVertices> verticesOf(const preparedEdit &edit);
