// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MItGeometry.h>

#include "api/pointWalk.h"

using host::PointWalk;

MItGeometry::MItGeometry(const MDagPath &dagPath, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(dagPath.node()), host::pathOf(dagPath), MObject()))
{
    host::reportWalk(walk_, ReturnStatus);
}

MItGeometry::MItGeometry(const MDagPath &dagPath, MObject &component, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(dagPath.node()), host::pathOf(dagPath), component))
{
    host::reportWalk(walk_, ReturnStatus);
}

MItGeometry::MItGeometry(MObject &dagObject, MStatus *ReturnStatus)
    : walk_(PointWalk::over(host::nodeOf(dagObject), nullptr, MObject()))
{
    host::reportWalk(walk_, ReturnStatus);
}

MItGeometry::~MItGeometry() = default;

const char *MItGeometry::className()
{
    return "MItGeometry";
}

bool MItGeometry::isDone(MStatus *ReturnStatus) const
{
    return host::isDone(walk_, ReturnStatus);
}

MStatus MItGeometry::next()
{
    return host::next(walk_);
}

MStatus MItGeometry::reset()
{
    return host::reset(walk_);
}

MPoint MItGeometry::position(MSpace::Space space, MStatus *ReturnStatus) const
{
    return host::positionOf(walk_, space, ReturnStatus);
}

int MItGeometry::index(MStatus *ReturnStatus) const
{
    return host::vertexOf(walk_, ReturnStatus);
}

MObject MItGeometry::currentItem(MStatus *ReturnStatus) const
{
    return host::currentItem(walk_, ReturnStatus);
}

int MItGeometry::count(MStatus *ReturnStatus) const
{
    return host::count(walk_, ReturnStatus);
}

int MItGeometry::exactCount(MStatus *ReturnStatus)
{
    return count(ReturnStatus);
}
