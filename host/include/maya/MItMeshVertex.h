// SPDX-License-Identifier: Apache-2.0
// Walks over the vertices of a mesh, or of a component of one.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnDagNode.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MItMeshVertex
{
public:
    MItMeshVertex(MObject &polyObject, MStatus *ReturnStatus = nullptr);
    MItMeshVertex(const MDagPath &polyObject, MObject &component = MObject::kNullObj,
                  MStatus *ReturnStatus = nullptr);
    virtual ~MItMeshVertex();
    bool isDone(MStatus *ReturnStatus = nullptr);
    MStatus next();
    MStatus reset();
    int count(MStatus *ReturnStatus = nullptr);
    int index(MStatus *ReturnStatus = nullptr);
    MObject currentItem(MStatus *ReturnStatus = nullptr);
    MPoint position(MSpace::Space space = MSpace::kObject, MStatus *ReturnStatus = nullptr);
    MStatus getConnectedVertices(MIntArray &vertexList);
    MStatus setIndex(int index, int &prevIndex);
    static const char *className();

private:
    std::unique_ptr<host::PointWalk> walk_;
};

MAYA_API_NAMESPACE_EXIT
