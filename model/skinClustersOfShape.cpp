// SPDX-License-Identifier: Apache-2.0
#include "model/skinClustersOfShape.h"

#include <maya/MFn.h>
#include <maya/MFnAttribute.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

// The ways from a shape to its skin clusters. As Maya wires a deformer set:
//
//     skinCluster.message -> set.usedBy[u]
//     set.memberWireframeColor -> shape.instObjGroups[i].objectGroups[j].objectGrpColor
//
// As the geometry goes, which is all there is since component tags have replaced the sets:
//
//     skinCluster.outputGeometry[k] -> deformer.input[k].inputGeometry
//     deformer.outputGeometry[k] -> edit.inputPolymesh
//     edit.output -> shape.inMesh

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

// Nodes between a shape and where its geometry comes from, at most; more of them are a loop.
const int kMaxSteps = 1000;

void appendNew(const MObject &skinCluster, MObjectArray &skinClusters)
{
    for (unsigned int i = 0; i < skinClusters.length(); ++i) {
        if (skinClusters[i] == skinCluster)
            return;
    }
    skinClusters.append(skinCluster);
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
                appendNew(user, skinClusters);
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

void appendUsersOfGroups(const MFnDependencyNode &shape, MObjectArray &skinClusters)
{
    MStatus status;
    const MPlug instances = shape.findPlug("instObjGroups", true, &status);
    for (unsigned int i = 0; status && i < instances.numElements(); ++i) {
        const MPlug groups = instances[i].child(kObjectGroups);
        for (unsigned int j = 0; j < groups.numElements(); ++j)
            appendUsersOfGroup(groups[j], skinClusters);
    }
}

// Where the geometry that leaves at `output` entered the node: a deformer (blendShape, deltaMush,
// ...) works on each geometry by itself, a groupParts or an edit of the mesh has one. Null where
// geometry is made, and at another shape.
MPlug geometryInputOf(const MPlug &output)
{
    const MObject object = output.node();
    const MFnDependencyNode node(object);
    if (object.hasFn(MFn::kShape))
        return MPlug();
    if (!node.hasAttribute("inputGeometry"))
        return node.hasAttribute("inputPolymesh") ? node.findPlug("inputPolymesh", false) : MPlug();
    MPlug input = node.findPlug("inputGeometry", false);
    const MObject inputs = MFnAttribute(input.attribute()).parent();
    if (!inputs.isNull())
        input.selectAncestorLogicalIndex(output.isElement() ? output.logicalIndex() : 0, inputs);
    return input;
}

void appendUpstream(const MFnDependencyNode &shape, MObjectArray &skinClusters)
{
    MStatus status;
    MPlug input = shape.findPlug("inMesh", false, &status);
    for (int step = 0; status && step < kMaxSteps && !input.isNull(); ++step) {
        const MPlugArray sources = sourcesOf(input);
        if (sources.length() == 0)
            return;
        const MObject node = sources[0].node();
        if (node.apiType() == MFn::kSkinClusterFilter)
            appendNew(node, skinClusters);
        input = geometryInputOf(sources[0]);
    }
}

} // namespace

MObjectArray skinClustersOfShape(const MDagPath &shape)
{
    MObjectArray skinClusters;
    const MFnDependencyNode node(shape.node());
    appendUsersOfGroups(node, skinClusters);
    appendUpstream(node, skinClusters);
    return skinClusters;
}
