// SPDX-License-Identifier: Apache-2.0
// skinPercent: sets, prunes, resets and asks the weights of single vertices.
//
// Every write goes through SkinCluster, so that locks, normalisation and the limit of influences
// hold as they do for the API.
#include <algorithm>

#include "mel/commands/bindSkin.h"
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/skinClusterCommand.h"

namespace host::mel
{

namespace
{

const std::vector<Flag> kFlags = {{"tv", "transformValue", "sd", Flag::multiUse},
                                  {"r", "relative", "b"},
                                  {"nrm", "normalize", "b"},
                                  {"prw", "pruneWeights", "d"},
                                  {"zri", "zeroRemainingInfluences", "b"},
                                  {"rtd", "resetToDefault"},
                                  {"v", "value"},
                                  {"t", "transform", "s"},
                                  {"ib", "ignoreBelow", "d", Flag::queryTakesValue}};

// One call: the skin cluster that is named first, and the vertices named after it or selected.
struct Call {
    Context &context;
    const Arguments &arguments;
    SkinCluster cluster;
    std::vector<int> vertices; // each once
};

// The vertices of the cluster's shapes that an item means; a whole object means all of them.
std::vector<int> verticesOf(const SkinCluster &cluster, const SelectionItem &item)
{
    const DagPath shape = visibleShape(item);
    if (shape.isNull() || !cluster.deforms(*shape.node()))
        throw Error("'" + item.names().front() + "' is not deformed by " +
                    cluster.node()->uniqueName() + ".");
    if (!item.component)
        return allVertices(cluster);
    if (item.component->kind != ComponentKind::vertex)
        throw Error("Weights belong to vertices: " + item.names().front());
    return item.component->elements;
}

std::vector<SelectionItem> componentItems(Context &context, const Arguments &arguments)
{
    std::vector<SelectionItem> items;
    for (std::size_t i = 1; i < arguments.objects.size(); ++i) {
        const auto found = requireName(context.scene(), arguments.objects[i].text);
        items.insert(items.end(), found.begin(), found.end());
    }
    return arguments.objects.size() > 1 ? items : context.session.selection().items();
}

Call takeCall(Context &context, const Arguments &arguments)
{
    Call call{context,
              arguments,
              SkinCluster(requireNodeOfType(context, arguments.objects[0].text, "skinCluster")),
              {}};
    std::vector<bool> isTaken(call.cluster.vertexCount());
    for (const SelectionItem &item : componentItems(context, arguments)) {
        for (const int vertex : verticesOf(call.cluster, item)) {
            if (std::size_t(vertex) < isTaken.size() && !isTaken[std::size_t(vertex)])
                call.vertices.push_back(vertex);
            if (std::size_t(vertex) < isTaken.size())
                isTaken[std::size_t(vertex)] = true;
        }
    }
    if (call.vertices.empty())
        throw Error("There are no components to work on.");
    return call;
}

double weightOf(const Call &call, int vertex, int influence)
{
    const unsigned logical = call.cluster.influences()[std::size_t(influence)].logicalIndex;
    return call.cluster.node()->weights()->weight(std::size_t(vertex), logical);
}

// --- Writing -------------------------------------------------------------------------------------

// What -transformValue gives, one value per influence; with -zeroRemainingInfluences the others
// that are not locked get 0. That locked ones are spared is a guess.
struct Assigned {
    std::vector<int> indices;
    std::vector<double> values;
};

Assigned assignedValues(const Call &call)
{
    Assigned assigned;
    for (std::size_t use = 0; use < call.arguments.uses("transformValue"); ++use) {
        const std::vector<Operand> &pair = call.arguments.of("transformValue", use);
        assigned.indices.push_back(int(requireInfluence(call.context, call.cluster, pair[0].text)));
        assigned.values.push_back(pair[1].number());
    }
    if (!call.arguments.boolean("zeroRemainingInfluences", false))
        return assigned;
    const std::vector<bool> locks = call.cluster.locks();
    const std::vector<int> given = assigned.indices;
    for (int i = 0; i < int(locks.size()); ++i) {
        if (!locks[std::size_t(i)] && std::find(given.begin(), given.end(), i) == given.end()) {
            assigned.indices.push_back(i);
            assigned.values.push_back(0.0);
        }
    }
    return assigned;
}

SkinWriteResult writeValues(const Call &call, bool normalize)
{
    const Assigned assigned = assignedValues(call);
    if (!call.arguments.boolean("relative", false))
        return call.cluster.write(call.vertices, assigned.indices, assigned.values, normalize);
    const std::size_t given = call.arguments.uses("transformValue");
    std::vector<double> rows;
    rows.reserve(call.vertices.size() * assigned.indices.size());
    for (const int vertex : call.vertices) {
        for (std::size_t i = 0; i < assigned.indices.size(); ++i)
            rows.push_back(assigned.values[i] +
                           (i < given ? weightOf(call, vertex, assigned.indices[i]) : 0.0));
    }
    return call.cluster.write(call.vertices, assigned.indices, rows, normalize);
}

void prune(const Call &call, bool normalize)
{
    const double threshold = call.arguments.number("pruneWeights", 0);
    const std::size_t count = call.cluster.influences().size();
    call.cluster.edit(
        call.vertices,
        [=](std::size_t, const SkinCluster::RowRule &row) {
            skin::pruneRow(row.weights, count, threshold, row.locked, row.settings);
            return skin::WriteOutcome();
        },
        normalize);
}

void normalizeWeights(const Call &call)
{
    const std::size_t count = call.cluster.influences().size();
    call.cluster.edit(
        call.vertices,
        [=](std::size_t, const SkinCluster::RowRule &row) {
            if (row.settings.mode == skin::NormalizeMode::interactive)
                skin::normalizeRow(row.weights, count, row.locked, row.createWeights);
            return skin::WriteOutcome();
        },
        true);
}

MelValue write(const Call &call)
{
    const bool normalize = call.arguments.boolean("normalize", true);
    const bool hasValues = call.arguments.has("transformValue") ||
                           call.arguments.boolean("zeroRemainingInfluences", false);
    SkinWriteResult result;
    if (call.arguments.has("resetToDefault"))
        resetToBindWeights(call.context.scene(), call.cluster, call.vertices);
    if (hasValues)
        result = writeValues(call, normalize);
    if (call.arguments.has("pruneWeights"))
        prune(call, normalize);
    else if (!hasValues && call.arguments.has("normalize") && normalize)
        normalizeWeights(call);
    showWarnings(call.context.session, result);
    return {};
}

// --- Queries -------------------------------------------------------------------------------------

// Several components answer with the mean of their weights. Maya documents that for the weight of
// one influence (-query -transform NAME); that -query -value does the same is a guess.
double meanWeight(const Call &call, int influence)
{
    double sum = 0;
    for (const int vertex : call.vertices)
        sum += weightOf(call, vertex, influence);
    return sum / double(call.vertices.size());
}

MelValue query(const Call &call)
{
    const bool asksTransform = call.arguments.has("transform");
    if (asksTransform && !call.arguments.of("transform").empty()) {
        const std::string_view name = call.arguments.of("transform")[0].text;
        return meanWeight(call, int(requireInfluence(call.context, call.cluster, name)));
    }
    if (!asksTransform && !call.arguments.has("value"))
        throwNoQuestion();
    std::vector<std::string> names;
    std::vector<double> weights;
    const bool isLimited = call.arguments.has("ignoreBelow");
    for (int i = 0; i < int(call.cluster.influences().size()); ++i) {
        const double weight = meanWeight(call, i);
        if (isLimited && weight < call.arguments.number("ignoreBelow", 0))
            continue;
        names.push_back(call.cluster.influences()[std::size_t(i)].path.partialName());
        weights.push_back(weight);
    }
    return asksTransform ? MelValue(names) : MelValue(weights);
}

MelValue skinPercent(Context &context, const Arguments &arguments)
{
    const Call call = takeCall(context, arguments);
    return arguments.isQuery() ? query(call) : write(call);
}

} // namespace

void addSkinPercentCommands(CommandTable &table)
{
    table.add(
        {"skinPercent", kFlags, skinPercent, {1, Objects::kAny}, Modes::create | Modes::query});
}

} // namespace host::mel
