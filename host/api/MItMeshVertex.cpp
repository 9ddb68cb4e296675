// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MIntArray.h>
#include <maya/MItMeshVertex.h>

#include "api/pointWalk.h"
#include "api/status.h"

using host::answer;
using host::PointWalk;

namespace
{

// The walk if it stands on a vertex, else null; reports which.
PointWalk *currentWalk(const std::unique_ptr<PointWalk> &walk, MStatus *status)
{
    PointWalk *current = walk && !walk->isDone() ? walk.get() : nullptr;
    return answer(status, current ? MStatus::kSuccess : MStatus::kFailure, current);
}

} // namespace

MItMeshVertex::MItMeshVertex(MObject &polyObject, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(polyObject), nullptr, MObject()))
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

MItMeshVertex::MItMeshVertex(const MDagPath &polyObject, MObject &component, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(polyObject.node()), host::pathOf(polyObject), component))
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

MItMeshVertex::~MItMeshVertex() = default;
const char *MItMeshVertex::className()
{
    return "MItMeshVertex";
}

bool MItMeshVertex::isDone(MStatus *ReturnStatus)
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kFailure);
    return !walk_ || walk_->isDone();
}

MStatus MItMeshVertex::next()
{
    MStatus status;
    if (PointWalk *walk = currentWalk(walk_, &status))
        walk->next();
    return status;
}

MStatus MItMeshVertex::reset()
{
    if (!walk_)
        return MStatus::kFailure;
    walk_->reset();
    return MStatus::kSuccess;
}

int MItMeshVertex::count(MStatus *ReturnStatus)
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kFailure);
    return walk_ ? static_cast<int>(walk_->count()) : 0;
}

int MItMeshVertex::index(MStatus *ReturnStatus)
{
    const PointWalk *walk = currentWalk(walk_, ReturnStatus);
    return walk ? walk->vertex() : 0;
}

MObject MItMeshVertex::currentItem(MStatus *ReturnStatus)
{
    const PointWalk *walk = currentWalk(walk_, ReturnStatus);
    return walk ? walk->currentItem() : MObject();
}

MPoint MItMeshVertex::position(MSpace::Space space, MStatus *ReturnStatus)
{
    MPoint point;
    PointWalk *walk = currentWalk(walk_, ReturnStatus);
    if (walk && !walk->position(space, point))
        host::report(ReturnStatus, MStatus::kFailure);
    return point;
}

MStatus MItMeshVertex::getConnectedVertices(MIntArray &vertexList)
{
    MStatus status;
    if (PointWalk *walk = currentWalk(walk_, &status)) {
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
