// SPDX-License-Identifier: Apache-2.0
// skinCluster -edit -smoothWeights, and what it shares with the flood of the paint tool.
#include <algorithm>
#include <utility>

#include "mel/commands/commandSupport.h"
#include "mel/commands/skinClusterCommand.h"
#include "scene/adjacencyCache.h"

namespace host::mel
{

namespace
{

skin::SmoothSettings smoothSettings(const Arguments &arguments, const SkinCluster &cluster)
{
    const Operand &tolerance = arguments.of("smoothWeights")[0];
    skin::SmoothSettings smooth;
    smooth.tolerance = tolerance.number();
    if (!(smooth.tolerance >= 0 && smooth.tolerance <= 1))
        throw Error("The value " + tolerance.string() +
                    " of flag 'sw' is out of range or not supported.");
    const long long rounds = arguments.integer("smoothWeightsMaxIterations", smooth.iterations);
    smooth.iterations = unsigned(std::clamp(rounds, 0LL, 1'000'000LL));
    const skin::WriteSettings rules = cluster.settings(true);
    smooth.normalize = rules.mode == skin::NormalizeMode::interactive;
    smooth.obeyMax = rules.maintainMaxInfluences; // -obeyMaxInfluences has been set on the node
    smooth.maxInfluences = rules.maxInfluences;
    return smooth;
}

// By logical index, as smoothing wants it. What no influence stands behind stays as it is.
std::vector<bool> logicalLocks(const SkinCluster &cluster)
{
    const std::vector<Influence> &influences = cluster.influences();
    const std::vector<bool> locks = cluster.locks();
    std::vector<bool> logical(influences.empty() ? 0 : influences.back().logicalIndex + 1, true);
    for (std::size_t i = 0; i < influences.size(); ++i)
        logical[influences[i].logicalIndex] = locks[i];
    return logical;
}

bool exceedsLimit(const skin::RowView &row, unsigned limit)
{
    const auto isAboveZero = [](const skin::Entry &entry) { return entry.weight > 0; };
    return std::count_if(row.begin(), row.end(), isAboveZero) > std::ptrdiff_t(limit);
}

} // namespace

std::vector<int> selectedVertices(const Session &session, const SkinCluster &cluster)
{
    Component vertices;
    for (const SelectionItem &item : session.selection().items()) {
        const bool isVertices = item.component && item.component->kind == ComponentKind::vertex;
        if (isVertices && cluster.deforms(*item.path.node()))
            vertices.merge(*item.component);
    }
    return vertices.elements;
}

const skin::Adjacency &requireAdjacency(Session &session, const SkinCluster &cluster)
{
    const NodePtr shape = cluster.shape();
    const std::string name = (shape ? shape : cluster.node())->uniqueName();
    if (!shape || !shape->isA("mesh"))
        throw Error("'" + name + "' has no mesh whose weights could be smoothed.");
    const skin::Adjacency &adjacency = session.adjacencies().of(*shape);
    if (adjacency.neighbours.empty())
        throw Error("The faces of '" + name + "' are not known: its weights can not be smoothed.");
    return adjacency;
}

void showWarnings(Session &session, const SkinWriteResult &result)
{
    if (result.couldNotSet)
        session.output().warning(skin::kWeightTotalWarning);
    if (result.locksPreventedMax)
        session.output().warning(skin::kMaxInfluencesWarning);
}

void smoothSkinCluster(Context &context, const Arguments &arguments, const SkinCluster &cluster)
{
    const skin::SmoothSettings settings = smoothSettings(arguments, cluster);
    const skin::Adjacency &adjacency = requireAdjacency(context.session, cluster);
    const std::vector<int> selected = selectedVertices(context.session, cluster);
    const std::vector<std::uint32_t> vertices(selected.begin(), selected.end());
    skin::WeightStore weights = *cluster.node()->weights();
    const std::vector<std::uint32_t> changed =
        skin::smoothWeights(weights, adjacency, vertices, logicalLocks(cluster), settings);

    SkinWriteResult result;
    result.locksPreventedMax =
        settings.obeyMax && std::any_of(changed.begin(), changed.end(), [&](std::uint32_t vertex) {
            return exceedsLimit(weights.row(vertex), settings.maxInfluences);
        });
    if (!changed.empty())
        context.scene().changeWeights(
            cluster.node(), [&](skin::WeightStore &stored) { stored = std::move(weights); });
    showWarnings(context.session, result);
}

} // namespace host::mel
