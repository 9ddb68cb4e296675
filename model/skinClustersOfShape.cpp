// SPDX-License-Identifier: Apache-2.0
#include "model/skinClustersOfShape.h"

#include <maya/MFn.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

// The way from a shape to its skin clusters, as Maya wires a deformer set:
//
//     skinCluster.message -> set.usedBy[u]
//     set.memberWireframeColor -> shape.instObjGroups[i].objectGroups[j].objectGrpColor

namespace
{

// objectGroups and objectGrpColor among the children of their compounds.
const unsigned int kObjectGroups = 0;
const unsigned int kObjectGroupColor = 2;

MPlugArray sourcesOf(const MPlug &plug)
{
    MPlugArray sources;
    plug.connectedTo(sources, true, false);
    return sources;
}

// `position` is that of the set among the group's connections. Deliberate: it is used for the
// connections of usedBy as well, and once for each of them; with one set per group, which is how
// Maya wires them, it is 0 and there is one of each.
void appendUsersOfSet(const MObject &set, unsigned int position, MObjectArray &skinClusters)
{
    const MPlug usedBy = MFnDependencyNode(set).findPlug("usedBy", true);
    for (unsigned int u = 0; u < usedBy.numElements(); ++u) {
        const MPlugArray users = sourcesOf(usedBy[u]);
        for (unsigned int repetition = 0; repetition < users.length(); ++repetition) {
            if (position >= users.length())
                continue;
            const MObject user = users[position].node();
            if (user.apiType() == MFn::kSkinClusterFilter)
                skinClusters.append(user);
        }
    }
}

void appendUsersOfGroup(const MPlug &group, MObjectArray &skinClusters)
{
    const MPlugArray colors = sourcesOf(group.child(kObjectGroupColor));
    for (unsigned int position = 0; position < colors.length(); ++position) {
        const MObject set = colors[position].node();
        if (set.apiType() == MFn::kSet)
            appendUsersOfSet(set, position, skinClusters);
    }
}

} // namespace

MObjectArray skinClustersOfShape(const MDagPath &shape)
{
    MObjectArray skinClusters;
    MStatus status;
    const MFnDependencyNode node(shape.node());
    const MPlug instances = node.findPlug("instObjGroups", true, &status);
    if (!status)
        return skinClusters;
    for (unsigned int i = 0; i < instances.numElements(); ++i) {
        const MPlug groups = instances[i].child(kObjectGroups);
        for (unsigned int j = 0; j < groups.numElements(); ++j)
            appendUsersOfGroup(groups[j], skinClusters);
    }
    return skinClusters;
}
