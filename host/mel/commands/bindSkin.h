// SPDX-License-Identifier: Apache-2.0
// Binding a mesh to joints: the skin cluster, its influences and its first weights.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "mel/commands/bindPose.h"
#include "scene/dagPath.h"
#include "scene/output.h"
#include "scene/scene.h"
#include "scene/skinCluster.h"

namespace host::mel
{

struct BindOptions {
    std::string name; // empty: skinCluster1, skinCluster2, ...
    std::vector<DagPath> influences;
    DagPath shape;
    double dropoff = 4;
    PoseChoice pose = PoseChoice::any;
    std::vector<std::pair<std::string, double>> settings; // attributes of the skin cluster
};

// Makes the skin cluster with everything that Maya makes along with it, and gives it the weights of
// closest distance. Refuses shapes that are no mesh, have no points or are skinned already.
NodePtr bindSkin(Scene &scene, const BindOptions &options);

// Connects an influence at a logical index; how it stands now is its bind pose. It gets the
// attribute lockInfluenceWeights if it has none.
void connectInfluence(Scene &scene, const NodePtr &skinCluster, const DagPath &influence, int index,
                      double dropoff);

// Warns, once, of influences that are moved by a node that the host does not evaluate.
void warnOfUnevaluated(Output &output, const std::vector<DagPath> &influences);

// Spreads the weights of an influence over the others, if the skin cluster normalises, and cuts its
// connections. Its bindPreMatrix stays, as in Maya. Who gets the weights is a guess: the others
// that are not locked in proportion to what they have, as wherever weights are normalised.
void removeInfluence(Scene &scene, const SkinCluster &cluster, std::size_t influence);

// Removes the influences of which no vertex has a weight.
void removeUnusedInfluences(Scene &scene, const SkinCluster &cluster);

// Replaces the weights of the vertices with those of binding. That locks do not hold here is a
// guess.
void resetToBindWeights(Scene &scene, const SkinCluster &cluster, const std::vector<int> &vertices);

// Vertices that a skin cluster deforms: 0 to n - 1.
std::vector<int> allVertices(const SkinCluster &cluster);

// For each influence, in physical order, whether any vertex has a weight of it.
std::vector<bool> influencesInUse(const SkinCluster &cluster);

} // namespace host::mel
