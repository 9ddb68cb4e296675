// SPDX-License-Identifier: Apache-2.0
// Writes locks into the attributes of one skin cluster (lockAttributes.h), for one operation.
//
// The plugs are looked up once. What cannot be written is left out without a word: Maya would show
// an error for every cell. Ask hasFailed() at the end.
#pragma once

#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MString.h>

class skinClusterLocks
{
public:
    // Gives the skin cluster the attributes that it lacks. Valid as long as nobody else changes
    // them.
    explicit skinClusterLocks(const MObject &skinCluster);

    bool isOf(const MObject &skinCluster) const { return skinCluster_ == skinCluster; }
    // Whether something could not be written: the node or an attribute is locked, or gone.
    bool hasFailed() const { return hasFailed_; }
    MString name() const;

    // Appends the joint's full DAG path, or removes the first that is equal.
    void storeJoint(const MString &jointPath);
    void removeJoint(const MString &jointPath);

    void storeVertex(int vertex, bool isLocked);

    bool hasCell(int vertex, const MString &jointPath);
    // Adds an element, whether or not there is an equal one.
    void storeCell(int vertex, const MString &jointPath);
    // Empties every equal element.
    void removeCell(int vertex, const MString &jointPath);

private:
    bool canWrite(const MPlug &plug);
    void writeJoints(const MStringArray &paths);
    MPlug jointsOfVertex(int vertex) const;

    MObject skinCluster_;
    MPlug jointNames_;
    MPlug vertices_;
    MPlug localJoints_; // of which vertex is selected on a copy
    MObject cells_;     // the attribute whose index that is
    bool hasFailed_ = false;
};
