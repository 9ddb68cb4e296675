// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MIntArray.h>
#include <maya/MItMeshVertex.h>

#include "api/pointWalk.h"

using host::PointWalk;

MItMeshVertex::MItMeshVertex(MObject &polyObject, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(polyObject), nullptr, MObject()))
{
    host::reportWalk(walk_, ReturnStatus);
}

MItMeshVertex::MItMeshVertex(const MDagPath &polyObject, MObject &component, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(polyObject.node()), host::pathOf(polyObject), component))
{
    host::reportWalk(walk_, ReturnStatus);
}

MItMeshVertex::~MItMeshVertex() = default;

const char *MItMeshVertex::className()
{
    return "MItMeshVertex";
}

bool MItMeshVertex::isDone(MStatus *ReturnStatus)
{
    return host::isDone(walk_, ReturnStatus);
}

MStatus MItMeshVertex::next()
{
    return host::next(walk_);
}

MStatus MItMeshVertex::reset()
{
    return host::reset(walk_);
}

MPoint MItMeshVertex::position(MSpace::Space space, MStatus *ReturnStatus)
{
    return host::positionOf(walk_, space, ReturnStatus);
}

int MItMeshVertex::index(MStatus *ReturnStatus)
{
    return host::vertexOf(walk_, ReturnStatus);
}

MObject MItMeshVertex::currentItem(MStatus *ReturnStatus)
{
    return host::currentItem(walk_, ReturnStatus);
}

int MItMeshVertex::count(MStatus *ReturnStatus)
{
    return host::count(walk_, ReturnStatus);
}

MStatus MItMeshVertex::getConnectedVertices(MIntArray &vertexList)
{
    MStatus status;
    if (PointWalk *walk = host::currentWalk(walk_, &status)) {
        const std::vector<int> list = walk->neighbours();
        vertexList = MIntArray(list.data(), static_cast<unsigned int>(list.size()));
    }
    return status;
}

MStatus MItMeshVertex::setIndex(int index, int &prevIndex)
{
    if (!walk_)
        return MStatus::kFailure;
    const int before = walk_->isDone() ? 0 : walk_->vertex();
    if (!walk_->goTo(index))
        return MStatus::kInvalidParameter;
    prevIndex = before;
    return MStatus::kSuccess;
}
