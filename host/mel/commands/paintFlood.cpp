// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/paintFlood.h"

#include <algorithm>

#include "mel/commands/bindSkin.h"
#include "mel/commands/skinClusterCommand.h"

namespace host::mel
{

namespace
{

// One mesh under the brush: the new weights of the influence, ready to be written.
struct Flood {
    SkinCluster cluster;
    int influence; // physical index
    std::vector<int> vertices;
    std::vector<double> weights; // one per vertex
};

// The skin clusters of the selected shapes, each once.
std::vector<NodePtr> selectedSkinClusters(const Session &session)
{
    std::vector<NodePtr> clusters;
    for (const SelectionItem &item : session.selection().items()) {
        const DagPath shape = visibleShape(item);
        const std::vector<NodePtr> found =
            shape.isNull() ? std::vector<NodePtr>() : skinClustersOf(*shape.node());
        if (!found.empty() &&
            std::find(clusters.begin(), clusters.end(), found.front()) == clusters.end())
            clusters.push_back(found.front());
    }
    return clusters;
}

// The vertices that take paint. Those outside the deformer have no row and get none.
std::vector<int> paintedVertices(const Session &session, const SkinCluster &cluster)
{
    std::vector<int> vertices = selectedVertices(session, cluster);
    if (vertices.empty())
        vertices = allVertices(cluster);
    const skin::WeightStore &weights = *cluster.node()->weights();
    vertices.erase(std::remove_if(vertices.begin(), vertices.end(),
                                  [&](int vertex) { return !weights.hasRow(std::size_t(vertex)); }),
                   vertices.end());
    return vertices;
}

Flood prepare(Session &session, const SkinCluster &cluster, int influence,
              const skin::PaintSettings &brush)
{
    static const skin::Adjacency kNotNeeded;
    const bool isSmooth = brush.operation == skin::PaintOperation::smooth;
    const skin::Adjacency &adjacency = isSmooth ? requireAdjacency(session, cluster) : kNotNeeded;
    Flood flood{cluster, influence, paintedVertices(session, cluster), {}};
    const std::vector<std::uint32_t> rows(flood.vertices.begin(), flood.vertices.end());
    flood.weights =
        skin::paintedWeights(*cluster.node()->weights(), adjacency, rows,
                             cluster.influences()[std::size_t(influence)].logicalIndex, brush);
    return flood;
}

} // namespace

bool isInfluence(const Node &node)
{
    for (const auto &output : node.allDestinations()) {
        for (const Connection &end : output.second) {
            if (end.node->isA("skinCluster") && end.attribute->longName == "matrix")
                return true;
        }
    }
    return false;
}

void floodWeights(Context &context, const SkinPaintTool &tool)
{
    const NodePtr influence = tool.influence.lock();
    if (!influence || !influence->isInScene())
        throw Error("No influence has been selected to paint.");
    bool isOnAnyMesh = false;
    std::vector<Flood> floods;
    for (const NodePtr &node : selectedSkinClusters(context.session)) {
        const SkinCluster cluster(node);
        const int index = cluster.indexOf(*influence);
        if (index < 0)
            continue;
        isOnAnyMesh = true;
        if (!cluster.locks()[std::size_t(index)])
            floods.push_back(prepare(context.session, cluster, index, tool.brush));
    }
    if (!isOnAnyMesh)
        throw Error("'" + influence->uniqueName() +
                    "' is no influence of a skinned object that is selected.");
    SkinWriteResult all;
    for (const Flood &flood : floods) {
        const SkinWriteResult result =
            flood.cluster.write(flood.vertices, {flood.influence}, flood.weights, true);
        all.couldNotSet = all.couldNotSet || result.couldNotSet;
        all.locksPreventedMax = all.locksPreventedMax || result.locksPreventedMax;
    }
    showWarnings(context.session, all);
}

} // namespace host::mel
