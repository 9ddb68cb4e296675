// SPDX-License-Identifier: Apache-2.0
// The dynamic attributes of a skin cluster that store locks with the scene.
//
//     lockedJointNames                     string array: full DAG paths of locked influences
//     lockedVertexIndices[v]               bool: vertex v is locked
//     lockedCellIndices[v].lockedLocalJoints[n]   string: full DAG path of an influence locked at v
//
// Joints are stored by name and vertices by Maya's number, so that locks outlive a reordering of
// influences and a load of other vertices. Elements are never removed: an unlocked vertex holds
// false, an unlocked cell an empty name. Writing these attributes is not on Maya's undo queue.
#pragma once

#include <QVector>

#include <maya/MObject.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

// The attributes' names, long and short alike.
const char kLockedJointNames[] = "lockedJointNames";
const char kLockedVertexIndices[] = "lockedVertexIndices";
const char kLockedCellIndices[] = "lockedCellIndices";
const char kLockedLocalJoints[] = "lockedLocalJoints";

struct storedCellLock {
    int vertex;
    MString jointPath; // empty where the cell was unlocked again
};

// Adds whichever of the three attributes the skin cluster lacks. A node that takes no attribute (it
// is locked) stays as it is; its locks read as none.
void addMissingLockAttributes(const MObject &skinCluster);
// The same, but a scene without changes counts as such afterwards: attributes without a lock are no
// reason to save it.
void addMissingLockAttributesQuietly(const MObject &skinCluster);
// Whether it has all three.
bool hasLockAttributes(const MObject &skinCluster);

// What is stored, in the order of the elements.
MStringArray storedJointLocks(const MObject &skinCluster);
QVector<int> storedVertexLocks(const MObject &skinCluster);
QVector<storedCellLock> storedCellLocks(const MObject &skinCluster);
