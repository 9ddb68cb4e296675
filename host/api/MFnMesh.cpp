// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MFnMesh.h>
#include <maya/MIntArray.h>
#include <maya/MPoint.h>
#include <maya/MPointArray.h>

#include "api/functionSet.h"
#include "api/nodeBody.h"
#include "scene/meshGeometry.h"
#include "scene/transform.h"

using host::answer;
using host::MeshGeometry;
using host::NodePtr;

namespace
{

// Where points lie: as the mesh stores them, or placed in the world by the function set's path.
MStatus spaceMatrix(const MFnDagNode &mesh, MSpace::Space space, host::Matrix &matrix)
{
    matrix = host::kIdentityMatrix;
    if (space != MSpace::kWorld)
        return MStatus::kSuccess;
    const auto &body = host::ApiAccess::path(mesh);
    if (!body || !body->path.isValid())
        return MStatus::kInvalidParameter;
    matrix = host::worldMatrix(body->path);
    return MStatus::kSuccess;
}

MPoint placed(const host::skin::Vec3 &point, const host::Matrix &matrix)
{
    const host::skin::Vec3 place = host::transformPoint(point, matrix);
    return MPoint(place.x, place.y, place.z);
}

template <class Numbers>
MIntArray toIntArray(const Numbers &numbers)
{
    MIntArray array(static_cast<unsigned int>(numbers.size()));
    for (unsigned int i = 0; i < array.length(); ++i)
        array[i] = static_cast<int>(numbers[i]);
    return array;
}

} // namespace

DEFINE_DAG_FUNCTION_SET(MFnMesh, MFn::kMesh)

int MFnMesh::numVertices(MStatus *ReturnStatus) const
{
    const NodePtr node = host::nodeOf(*this);
    host::report(ReturnStatus, node ? MStatus::kSuccess : MStatus::kFailure);
    return node ? static_cast<int>(host::vertexCount(*node)) : 0;
}

int MFnMesh::numPolygons(MStatus *ReturnStatus) const
{
    const NodePtr node = host::nodeOf(*this);
    host::report(ReturnStatus, node ? MStatus::kSuccess : MStatus::kFailure);
    return node ? static_cast<int>(host::meshGeometry(*node).faceSizes.size()) : 0;
}

MStatus MFnMesh::getPoints(MPointArray &vertexArray, MSpace::Space space) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    host::Matrix matrix;
    const MStatus status = spaceMatrix(*this, space, matrix);
    if (!status)
        return status;
    const MeshGeometry geometry = host::meshGeometry(*node);
    vertexArray.setLength(static_cast<unsigned int>(geometry.points.size()));
    for (unsigned int i = 0; i < vertexArray.length(); ++i)
        vertexArray[i] = placed(geometry.points[i], matrix);
    return MStatus::kSuccess;
}

MStatus MFnMesh::getPoint(int vertexId, MPoint &pos, MSpace::Space space) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    host::Matrix matrix;
    const MStatus status = spaceMatrix(*this, space, matrix);
    if (!status)
        return status;
    const MeshGeometry geometry = host::meshGeometry(*node);
    if (vertexId < 0 || static_cast<std::size_t>(vertexId) >= geometry.points.size())
        return MStatus::kInvalidParameter;
    pos = placed(geometry.points[static_cast<std::size_t>(vertexId)], matrix);
    return MStatus::kSuccess;
}

MStatus MFnMesh::getVertices(MIntArray &vertexCount, MIntArray &vertexList) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    const MeshGeometry geometry = host::meshGeometry(*node);
    vertexCount = toIntArray(geometry.faceSizes);
    vertexList = toIntArray(geometry.faceVertices);
    return MStatus::kSuccess;
}

MStatus MFnMesh::getPolygonVertices(int polygonId, MIntArray &vertexList) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    const MeshGeometry geometry = host::meshGeometry(*node);
    if (polygonId < 0 || static_cast<std::size_t>(polygonId) >= geometry.faceSizes.size())
        return MStatus::kInvalidParameter;
    const auto polygon = static_cast<std::size_t>(polygonId);
    std::size_t start = 0;
    for (std::size_t face = 0; face < polygon; ++face)
        start += geometry.faceSizes[face];
    const auto first = geometry.faceVertices.begin() + static_cast<std::ptrdiff_t>(start);
    vertexList = toIntArray(std::vector<unsigned>(first, first + geometry.faceSizes[polygon]));
    return MStatus::kSuccess;
}

// Fans around each face's first vertex; Maya looks for the better diagonal of concave faces.
MStatus MFnMesh::getTriangles(MIntArray &triangleCounts, MIntArray &triangleVertices) const
{
    const NodePtr node = host::nodeOf(*this);
    if (!node)
        return MStatus::kFailure;
    const MeshGeometry geometry = host::meshGeometry(*node);
    std::vector<int> counts;
    std::vector<unsigned> corners;
    const unsigned *face = geometry.faceVertices.data();
    for (const unsigned size : geometry.faceSizes) {
        counts.push_back(size < 3 ? 0 : static_cast<int>(size) - 2);
        for (unsigned corner = 2; corner < size; ++corner)
            corners.insert(corners.end(), {face[0], face[corner - 1], face[corner]});
        face += size;
    }
    triangleCounts = toIntArray(counts);
    triangleVertices = toIntArray(corners);
    return MStatus::kSuccess;
}
