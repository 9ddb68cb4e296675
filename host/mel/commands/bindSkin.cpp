// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/bindSkin.h"

#include <numeric>

#include "mel/commands/deformerNetwork.h"
#include "scene/evaluation.h"
#include "scene/transform.h"

namespace host::mel
{

namespace
{

void refuseShape(const DagPath &shape)
{
    const Node &mesh = *shape.node();
    if (!mesh.isA("mesh"))
        throw Error("Only polygon meshes can be bound: " + mesh.uniqueName());
    if (!skinClustersOf(mesh).empty())
        throw Error(mesh.uniqueName() + " is already connected to a skinCluster.");
    if (meshGeometry(mesh).points.empty())
        throw Error(mesh.uniqueName() + " has no points that could be bound.");
}

// The attribute by which an influence holds its weights. Maya adds it when a joint is bound first.
Plug lockPlug(Scene &scene, const NodePtr &influence)
{
    if (!influence->findAttribute("lockInfluenceWeights")) {
        const NewAttributePtr lock = makeAttribute("lockInfluenceWeights", "liw", "bool");
        lock->isDynamic = true;
        lock->minimum = 0.0;
        lock->maximum = 1.0;
        scene.addAttribute(influence, lock);
    }
    return influence->plug("lockInfluenceWeights");
}

// Where the influence's plugs go: the arrays of the skin cluster that have one element for each.
struct InfluenceWire {
    Plug source;
    const char *array;
};

std::vector<InfluenceWire> wiresOf(Scene &scene, const DagPath &influence)
{
    const NodePtr &node = influence.node();
    return {{node->plug("worldMatrix").element(int(influence.instanceNumber())), "matrix"},
            {lockPlug(scene, node), "lockWeights"},
            {node->plug("objectColorRGB"), "influenceColor"}};
}

} // namespace

void connectInfluence(Scene &scene, const NodePtr &skinCluster, const DagPath &influence, int index,
                      double dropoff)
{
    for (const InfluenceWire &wire : wiresOf(scene, influence))
        scene.connect(wire.source, skinCluster->plug(wire.array).element(index));
    scene.setValue(skinCluster->plug("bindPreMatrix").element(index),
                   inverse(worldMatrix(influence)));
    scene.setValue(skinCluster->plug("dropoff").element(index), dropoff);
}

NodePtr bindSkin(Scene &scene, const BindOptions &options)
{
    refuseShape(options.shape);
    if (options.influences.empty())
        throw Error("There is no joint to bind to.");
    NodePtr node = scene.createNode("skinCluster", options.name);
    for (const auto &[attribute, value] : options.settings)
        scene.setValue(node->plug(attribute), value);
    scene.setValue(node->plug("useComponentsMatrix"), 1.0);
    for (std::size_t i = 0; i < options.influences.size(); ++i)
        connectInfluence(scene, node, options.influences[i], int(i), options.dropoff);
    scene.setValue(node->plug("geomMatrix"), worldMatrix(options.shape));
    attachDeformer(scene, node, options.shape);
    const NodePtr pose = provideBindPose(scene, options.influences, options.pose);
    scene.connect(pose->plug("message"), node->plug("bindPose"));
    const SkinCluster cluster(node);
    resetToBindWeights(scene, cluster, allVertices(cluster));
    return node;
}

void warnOfUnevaluated(Output &output, const std::vector<DagPath> &influences)
{
    std::string text;
    std::size_t others = 0;
    for (const DagPath &influence : influences) {
        const NodePtr mover = unevaluatedMover(influence);
        if (mover && !text.empty())
            ++others;
        else if (mover)
            text = "skinCluster: '" + influence.partialName() + "' hangs on '" +
                   mover->uniqueName() + "' (" + mover->type().name +
                   "), which is not evaluated: its bind matrix may be wrong.";
    }
    if (others > 0)
        text += " So may those of " + std::to_string(others) + " other influences.";
    if (!text.empty())
        output.warning(text);
}

void removeInfluence(Scene &scene, const SkinCluster &cluster, std::size_t influence)
{
    std::vector<int> holders;
    const auto index = cluster.influences()[influence].logicalIndex;
    for (const int vertex : allVertices(cluster)) {
        if (cluster.node()->weights()->weight(std::size_t(vertex), index) != 0.0)
            holders.push_back(vertex);
    }
    std::vector<bool> locked = cluster.locks();
    locked[influence] = true; // it must get nothing of what is spread
    const std::size_t count = cluster.influences().size();
    cluster.edit(
        holders,
        [&](std::size_t, const SkinCluster::RowRule &row) {
            row.weights[influence] = 0;
            if (row.settings.mode == skin::NormalizeMode::interactive)
                skin::normalizeRow(row.weights, count, locked, row.createWeights);
            return skin::WriteOutcome();
        },
        true);
    const NodePtr &node = cluster.node();
    for (const char *array : {"matrix", "lockWeights", "influenceColor"}) {
        const Plug element = node->plug(array).element(int(index));
        if (const Connection *source = node->source(element))
            scene.disconnect(source->plug(), element);
        scene.removeElement(element);
    }
}

void resetToBindWeights(Scene &scene, const SkinCluster &cluster, const std::vector<int> &vertices)
{
    std::vector<std::size_t> numbers;
    std::vector<std::vector<skin::Entry>> rows;
    cluster.visitBindWeights(vertices, [&](int vertex, const std::vector<double> &weights) {
        std::vector<skin::Entry> row;
        for (std::size_t i = 0; i < weights.size(); ++i) {
            if (weights[i] != 0.0)
                row.push_back({cluster.influences()[i].logicalIndex, weights[i]});
        }
        numbers.push_back(std::size_t(vertex));
        rows.push_back(std::move(row));
    });
    scene.setWeightRows(cluster.node(), numbers, rows);
}

std::vector<int> allVertices(const SkinCluster &cluster)
{
    std::vector<int> vertices(cluster.vertexCount());
    std::iota(vertices.begin(), vertices.end(), 0);
    return vertices;
}

std::vector<bool> influencesInUse(const SkinCluster &cluster)
{
    const skin::WeightStore &weights = *cluster.node()->weights();
    std::vector<bool> byLogical;
    for (std::size_t v = weights.nextRow(0); v < weights.vertexCount();
         v = weights.nextRow(v + 1)) {
        for (const skin::Entry &entry : weights.row(v)) {
            if (byLogical.size() <= entry.influence)
                byLogical.resize(entry.influence + 1);
            byLogical[entry.influence] = true;
        }
    }
    std::vector<bool> used;
    for (const Influence &influence : cluster.influences())
        used.push_back(influence.logicalIndex < byLogical.size() &&
                       byLogical[influence.logicalIndex]);
    return used;
}

void removeUnusedInfluences(Scene &scene, const SkinCluster &cluster)
{
    const std::vector<bool> used = influencesInUse(cluster);
    for (std::size_t i = 0; i < used.size(); ++i) {
        if (!used[i])
            removeInfluence(scene, cluster, i);
    }
}

} // namespace host::mel
