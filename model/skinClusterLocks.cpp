// SPDX-License-Identifier: Apache-2.0
#include "model/skinClusterLocks.h"

#include "model/lockAttributes.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MIntArray.h>

namespace
{

// Where the next joint goes: the number of elements. Maya does not save emptied elements, so after
// a reopening there are gaps, and a name may stand there; then it goes behind the last.
unsigned int nextIndex(MPlug joints)
{
    MIntArray indices;
    const unsigned int count = joints.getExistingArrayAttributeIndices(indices);
    if (count == 0)
        return 0;
    const unsigned int last = static_cast<unsigned int>(indices[count - 1]);
    if (last < count)
        return count;
    joints.selectAncestorLogicalIndex(count);
    for (unsigned int i = 0; i < count; ++i) {
        if (static_cast<unsigned int>(indices[i]) == count && joints.asString().length() > 0)
            return last + 1;
    }
    return count;
}

} // namespace

skinClusterLocks::skinClusterLocks(const MObject &skinCluster) : skinCluster_(skinCluster)
{
    addMissingLockAttributes(skinCluster);
    const MFnDependencyNode node(skinCluster);
    if (!hasLockAttributes(skinCluster))
        return;
    jointNames_ = node.findPlug(kLockedJointNames, false);
    vertices_ = node.findPlug(kLockedVertexIndices, false);
    localJoints_ = node.findPlug(kLockedLocalJoints, false);
    cells_ = node.attribute(kLockedCellIndices);
}

MString skinClusterLocks::name() const
{
    return skinCluster_.isNull() ? MString("a deleted skin cluster")
                                 : MFnDependencyNode(skinCluster_).name();
}

void skinClusterLocks::storeJoint(const MString &jointPath)
{
    if (!canWrite(jointNames_))
        return;
    MStringArray paths = storedJointLocks(skinCluster_);
    paths.append(jointPath);
    writeJoints(paths);
}

void skinClusterLocks::removeJoint(const MString &jointPath)
{
    MStringArray paths = storedJointLocks(skinCluster_);
    unsigned int place = 0;
    while (place < paths.length() && paths[place] != jointPath)
        ++place;
    if (place == paths.length() || !canWrite(jointNames_))
        return;
    paths.remove(place);
    writeJoints(paths);
}

void skinClusterLocks::writeJoints(const MStringArray &paths)
{
    MFnStringArrayData data;
    MObject object = data.create(paths);
    if (!jointNames_.setMObject(object))
        hasFailed_ = true;
}

void skinClusterLocks::storeVertex(int vertex, bool isLocked)
{
    if (!canWrite(vertices_))
        return;
    MPlug element = vertices_.elementByLogicalIndex(static_cast<unsigned int>(vertex));
    if (!canWrite(element) || !element.setBool(isLocked))
        hasFailed_ = true;
}

bool skinClusterLocks::hasCell(int vertex, const MString &jointPath)
{
    const MPlug joints = jointsOfVertex(vertex);
    const unsigned int count = joints.numElements();
    for (unsigned int i = 0; i < count; ++i) {
        if (joints.elementByPhysicalIndex(i).asString() == jointPath)
            return true;
    }
    return false;
}

void skinClusterLocks::storeCell(int vertex, const MString &jointPath)
{
    MPlug element = jointsOfVertex(vertex);
    element.selectAncestorLogicalIndex(nextIndex(element));
    if (!canWrite(element) || !element.setString(jointPath))
        hasFailed_ = true;
}

void skinClusterLocks::removeCell(int vertex, const MString &jointPath)
{
    MObject nothing;
    const MPlug joints = jointsOfVertex(vertex);
    const unsigned int count = joints.numElements();
    for (unsigned int i = 0; i < count; ++i) {
        MPlug element = joints.elementByPhysicalIndex(i);
        if (element.asString() != jointPath)
            continue;
        if (!canWrite(element) || !element.setMObject(nothing))
            hasFailed_ = true;
    }
}

// Asked before each write, since Maya shows an error for one that it refuses.
bool skinClusterLocks::canWrite(const MPlug &plug)
{
    const bool can = !plug.isNull() && plug.isFreeToChange() == MPlug::kFreeToChange;
    hasFailed_ = hasFailed_ || !can;
    return can;
}

MPlug skinClusterLocks::jointsOfVertex(int vertex) const
{
    MPlug joints = localJoints_;
    if (!joints.isNull())
        joints.selectAncestorLogicalIndex(static_cast<unsigned int>(vertex), cells_);
    return joints;
}
