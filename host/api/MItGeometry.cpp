// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MItGeometry.h>

#include "api/pointWalk.h"
#include "api/status.h"

using host::answer;
using host::PointWalk;

namespace
{

PointWalk *currentWalk(const std::unique_ptr<PointWalk> &walk, MStatus *status)
{
    PointWalk *current = walk && !walk->isDone() ? walk.get() : nullptr;
    return answer(status, current ? MStatus::kSuccess : MStatus::kFailure, current);
}

} // namespace

MItGeometry::MItGeometry(const MDagPath &dagPath, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(dagPath.node()), host::pathOf(dagPath), MObject()))
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

MItGeometry::MItGeometry(const MDagPath &dagPath, MObject &component, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(dagPath.node()), host::pathOf(dagPath), component))
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

MItGeometry::MItGeometry(MObject &dagObject, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(dagObject), nullptr, MObject()))
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

MItGeometry::~MItGeometry() = default;
const char *MItGeometry::className()
{
    return "MItGeometry";
}

bool MItGeometry::isDone(MStatus *ReturnStatus) const
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kFailure);
    return !walk_ || walk_->isDone();
}

MStatus MItGeometry::next()
{
    MStatus status;
    if (PointWalk *walk = currentWalk(walk_, &status))
        walk->next();
    return status;
}

MStatus MItGeometry::reset()
{
    if (!walk_)
        return MStatus::kFailure;
    walk_->reset();
    return MStatus::kSuccess;
}

MPoint MItGeometry::position(MSpace::Space space, MStatus *ReturnStatus) const
{
    MPoint point;
    PointWalk *walk = currentWalk(walk_, ReturnStatus);
    if (walk && !walk->position(space, point))
        host::report(ReturnStatus, MStatus::kFailure);
    return point;
}

int MItGeometry::index(MStatus *ReturnStatus) const
{
    const PointWalk *walk = currentWalk(walk_, ReturnStatus);
    return walk ? walk->vertex() : 0;
}

MObject MItGeometry::currentItem(MStatus *ReturnStatus) const
{
    const PointWalk *walk = currentWalk(walk_, ReturnStatus);
    return walk ? walk->currentItem() : MObject();
}

int MItGeometry::count(MStatus *ReturnStatus) const
{
    host::report(ReturnStatus, walk_ ? MStatus::kSuccess : MStatus::kFailure);
    return walk_ ? static_cast<int>(walk_->count()) : 0;
}

int MItGeometry::exactCount(MStatus *ReturnStatus)
{
    return count(ReturnStatus);
}
