// SPDX-License-Identifier: Apache-2.0
// The parts of the skinCluster command: what creating, querying and editing share.
#pragma once

#include <vector>

#include "mel/command.h"
#include "mel/commands/bindPose.h"
#include "scene/skinCluster.h"

namespace host::mel
{

// A flag that is an attribute of the node, in all modes.
struct SkinSetting {
    Flag flag;
    const char *attribute;
    double least;
    double most;
    bool isEditable = true;
};
const std::vector<SkinSetting> &skinSettings();

// The value of the flag. REQUIRES: the flag is set. Throws Error when it is out of range.
double settingValue(const Arguments &arguments, const SkinSetting &setting);

// -dropoffRate: refused outside 0.1 to 10, the range of Maya's command.
double dropoffOf(const Arguments &arguments);

// -ignoreBindPose: which bind pose new influences join.
PoseChoice poseChoiceOf(const Arguments &arguments);

// The visible mesh, curve or surface that an item means: the shape itself, or the one below a
// transform. Null for joints and for transforms without any.
DagPath visibleShape(const SelectionItem &item);

// The skin cluster that the one operand or the selection means: the node, or a skinned object.
SkinCluster requireSkinCluster(Context &context, const Arguments &arguments);

// Physical index of the influence of that name; throws Error if it is none of the cluster's.
std::size_t requireInfluence(Context &context, const SkinCluster &cluster, std::string_view name);

// The vertices of the cluster's shapes that are selected, ascending; empty if there are none,
// whatever else of them is selected.
std::vector<int> selectedVertices(const Session &session, const SkinCluster &cluster);

// What joins the vertices of the shape that a cluster deforms. Refuses shapes without known faces.
// Valid until the next call.
const skin::Adjacency &requireAdjacency(Session &session, const SkinCluster &cluster);

// What a write could not do, a warning of each kind.
void showWarnings(Session &session, const SkinWriteResult &result);

// -smoothWeights: the selected vertices of the cluster's shape, or all of them.
void smoothSkinCluster(Context &context, const Arguments &arguments, const SkinCluster &cluster);

MelValue createSkinCluster(Context &context, const Arguments &arguments);
MelValue querySkinCluster(Context &context, const Arguments &arguments);
MelValue editSkinCluster(Context &context, const Arguments &arguments);

} // namespace host::mel
