// SPDX-License-Identifier: Apache-2.0
#include "model/lockAttributes.h"

#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnData.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MGlobal.h>
#include <maya/MPlug.h>

namespace
{

MObject createLockedJointNames()
{
    return MFnTypedAttribute().create(kLockedJointNames, kLockedJointNames, MFnData::kStringArray,
                                      MObject::kNullObj);
}

MObject createLockedVertexIndices()
{
    MFnNumericAttribute attribute;
    const MObject object =
        attribute.create(kLockedVertexIndices, kLockedVertexIndices, MFnNumericData::kBoolean, 0.0);
    attribute.setArray(true);
    return object;
}

MObject createLockedCellIndices()
{
    MFnTypedAttribute joints;
    const MObject child =
        joints.create(kLockedLocalJoints, kLockedLocalJoints, MFnData::kString, MObject::kNullObj);
    joints.setArray(true);

    MFnCompoundAttribute cells;
    const MObject object = cells.create(kLockedCellIndices, kLockedCellIndices);
    cells.addChild(child);
    cells.setArray(true);
    return object;
}

const struct {
    const char *name;
    MObject (*create)();
} kAttributes[] = {
    {kLockedJointNames, createLockedJointNames},
    {kLockedVertexIndices, createLockedVertexIndices},
    {kLockedCellIndices, createLockedCellIndices},
};

// A plug without elements where the attribute is missing.
MPlug plugOf(const MObject &skinCluster, const char *name)
{
    const MFnDependencyNode node(skinCluster);
    return node.hasAttribute(name) ? node.findPlug(name, false) : MPlug();
}

} // namespace

void addMissingLockAttributes(const MObject &skinCluster)
{
    MFnDependencyNode node(skinCluster);
    // Maya would show an error for each.
    if (node.isLocked())
        return;
    for (const auto &attribute : kAttributes) {
        if (!node.hasAttribute(attribute.name))
            node.addAttribute(attribute.create());
    }
}

// By commands that are not undoable: what the user undoes next is what it would have been.
void addMissingLockAttributesQuietly(const MObject &skinCluster)
{
    if (hasLockAttributes(skinCluster))
        return;
    int wasModified = 1;
    MGlobal::executeCommand("file -query -modified", wasModified);
    addMissingLockAttributes(skinCluster);
    if (wasModified == 0)
        MGlobal::executeCommand("file -modified 0");
}

bool hasLockAttributes(const MObject &skinCluster)
{
    const MFnDependencyNode node(skinCluster);
    for (const auto &attribute : kAttributes) {
        if (!node.hasAttribute(attribute.name))
            return false;
    }
    return true;
}

MStringArray storedJointLocks(const MObject &skinCluster)
{
    MStringArray names;
    MObject data;
    const MPlug plug = plugOf(skinCluster, kLockedJointNames);
    // An attribute that was never set has no data.
    if (!plug.isNull() && plug.getValue(data) && !data.isNull())
        MFnStringArrayData(data).copyTo(names);
    return names;
}

QVector<int> storedVertexLocks(const MObject &skinCluster)
{
    QVector<int> vertices;
    const MPlug plug = plugOf(skinCluster, kLockedVertexIndices);
    const unsigned int count = plug.isNull() ? 0 : plug.numElements();
    for (unsigned int i = 0; i < count; ++i) {
        const MPlug element = plug.elementByPhysicalIndex(i);
        if (element.asBool())
            vertices.append(static_cast<int>(element.logicalIndex()));
    }
    return vertices;
}

QVector<storedCellLock> storedCellLocks(const MObject &skinCluster)
{
    QVector<storedCellLock> locks;
    const MPlug plug = plugOf(skinCluster, kLockedCellIndices);
    const unsigned int count = plug.isNull() ? 0 : plug.numElements();
    for (unsigned int i = 0; i < count; ++i) {
        const MPlug element = plug.elementByPhysicalIndex(i);
        const MPlug joints = element.child(0);
        for (unsigned int n = 0; n < joints.numElements(); ++n) {
            storedCellLock lock;
            lock.vertex = static_cast<int>(element.logicalIndex());
            lock.jointPath = joints.elementByPhysicalIndex(n).asString();
            locks.append(lock);
        }
    }
    return locks;
}
