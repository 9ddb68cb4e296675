// SPDX-License-Identifier: Apache-2.0
// Points and polygons of a mesh.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnDagNode.h>
#include <maya/MTypes.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnMesh : public MFnDagNode
{
    declareDagMFn(MFnMesh, MFnDagNode);

public:
    int numVertices(MStatus *ReturnStatus = nullptr) const;
    int numPolygons(MStatus *ReturnStatus = nullptr) const;
    MStatus getPoints(MPointArray &vertexArray, MSpace::Space space = MSpace::kObject) const;
    MStatus getPoint(int vertexId, MPoint &pos, MSpace::Space space = MSpace::kObject) const;
    MStatus getVertices(MIntArray &vertexCount, MIntArray &vertexList) const;
    MStatus getPolygonVertices(int polygonId, MIntArray &vertexList) const;
    MStatus getTriangles(MIntArray &triangleCounts, MIntArray &triangleVertices) const;
    declareDagMFnConstConstructor(MFnMesh, MFnDagNode);
};

MAYA_API_NAMESPACE_EXIT
