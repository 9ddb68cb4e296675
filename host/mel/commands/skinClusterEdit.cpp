// SPDX-License-Identifier: Apache-2.0
// skinCluster -edit: settings, influences, normalising and unbinding.
#include <algorithm>

#include "mel/commands/bindSkin.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/deformerNetwork.h"
#include "mel/commands/skinClusterCommand.h"

namespace host::mel
{

namespace
{

// One call on one cluster. Edits that change the influences leave `cluster` behind: they come last.
struct Edit {
    Context &context;
    const Arguments &arguments;
    const SkinCluster &cluster;
    const NodePtr &node = cluster.node();
};

void setInfluenceLock(Scene &scene, const Node &influence, bool isLocked)
{
    scene.setValue(influence.plug("lockInfluenceWeights"), isLocked ? 1.0 : 0.0);
}

void smooth(const Edit &edit)
{
    smoothSkinCluster(edit.context, edit.arguments, edit.cluster);
}

// -influence with -lockWeights or -dropoffRate.
void editInfluence(const Edit &edit)
{
    const Influence &influence = edit.cluster.influences()[requireInfluence(
        edit.context, edit.cluster, edit.arguments.string("influence"))];
    Scene &scene = edit.context.scene();
    if (edit.arguments.has("lockWeights"))
        setInfluenceLock(scene, *influence.path.node(),
                         edit.arguments.boolean("lockWeights", false));
    if (edit.arguments.has("dropoffRate"))
        scene.setValue(edit.node->plug("dropoff").element(int(influence.logicalIndex)),
                       dropoffOf(edit.arguments));
}

void applySettings(const Edit &edit)
{
    std::vector<std::pair<const char *, double>> values;
    for (const SkinSetting &setting : skinSettings()) {
        if (!edit.arguments.has(setting.flag.longName))
            continue;
        if (!setting.isEditable)
            throw Error(std::string("Flag '-") + setting.flag.shortName + "' can't be edited.");
        values.emplace_back(setting.attribute, settingValue(edit.arguments, setting));
    }
    for (const auto &[attribute, value] : values)
        edit.context.scene().setValue(edit.node->plug(attribute), value);
    // A new limit throws the weights away and binds again (Maya's command reference, skinCluster).
    if (edit.arguments.has("maximumInfluences"))
        resetToBindWeights(edit.context.scene(), edit.cluster, allVertices(edit.cluster));
}

int nextLogicalIndex(const SkinCluster &cluster)
{
    const std::vector<Influence> &influences = cluster.influences();
    return influences.empty() ? 0 : int(influences.back().logicalIndex) + 1;
}

// What each vertex gets of a new influence: the weight that is given, else its share at binding.
// The latter is a guess; Maya's documentation names no value for a call without -weight.
std::vector<double> newWeights(const Arguments &arguments, const SkinCluster &cluster,
                               std::size_t influence, const std::vector<int> &vertices)
{
    if (arguments.has("weight"))
        return {arguments.number("weight", 0)};
    std::vector<double> shares(vertices.size(), 0.0);
    cluster.visitBindWeights(vertices, [&](int vertex, const std::vector<double> &weights) {
        shares[std::size_t(vertex)] = weights[influence];
    });
    return shares;
}

void addOneInfluence(const Edit &edit, const DagPath &path)
{
    Scene &scene = edit.context.scene();
    if (SkinCluster(edit.node).indexOf(*path.node()) >= 0)
        throw Error("'" + path.partialName() + "' is an influence already.");
    const int index = nextLogicalIndex(SkinCluster(edit.node));
    connectInfluence(scene, edit.node, path, index, dropoffOf(edit.arguments));
    provideBindPose(scene, {path}, poseChoiceOf(edit.arguments));
    const SkinCluster cluster(edit.node);
    const auto influence = std::size_t(cluster.indexOf(*path.node()));
    // Nothing is written for a weight of 0: that would normalise the others.
    if (!edit.arguments.has("weight") || edit.arguments.number("weight", 0) != 0.0) {
        const std::vector<int> vertices = allVertices(cluster);
        cluster.write(vertices, {int(influence)},
                      newWeights(edit.arguments, cluster, influence, vertices), true);
    }
    if (edit.arguments.has("lockWeights"))
        setInfluenceLock(scene, *path.node(), edit.arguments.boolean("lockWeights", false));
}

void addInfluences(const Edit &edit)
{
    std::vector<DagPath> paths;
    for (std::size_t use = 0; use < edit.arguments.uses("addInfluence"); ++use) {
        paths.push_back(requirePath(edit.context, edit.arguments.of("addInfluence", use)[0].text));
        if (!paths.back().node()->isA("transform"))
            throw Error("'" + paths.back().partialName() + "' can not be an influence.");
    }
    for (const DagPath &path : paths)
        addOneInfluence(edit, path);
    warnOfUnevaluated(edit.context.session.output(), paths);
}

void removeInfluences(const Edit &edit)
{
    std::vector<NodePtr> nodes;
    for (std::size_t use = 0; use < edit.arguments.uses("removeInfluence"); ++use) {
        const std::string_view name = edit.arguments.of("removeInfluence", use)[0].text;
        requireInfluence(edit.context, edit.cluster, name);
        nodes.push_back(requireNode(edit.context, name));
    }
    for (const NodePtr &influence : nodes) {
        const SkinCluster cluster(edit.node);
        const int index = cluster.indexOf(*influence);
        if (index >= 0)
            removeInfluence(edit.context.scene(), cluster, std::size_t(index));
    }
}

void forceNormalize(const Edit &edit)
{
    const std::size_t count = edit.cluster.influences().size();
    edit.cluster.edit(
        allVertices(edit.cluster),
        [count](std::size_t, const SkinCluster::RowRule &row) {
            skin::normalizeRow(row.weights, count, row.locked, row.createWeights);
            return skin::WriteOutcome();
        },
        true);
}

// The vertices that an influence moves.
void selectVertices(const Edit &edit)
{
    const std::size_t influence =
        requireInfluence(edit.context, edit.cluster, edit.arguments.string("selectInfluenceVerts"));
    const unsigned index = edit.cluster.influences()[influence].logicalIndex;
    SelectionItem item;
    item.node = edit.cluster.shape();
    if (!item.node)
        return;
    item.path = DagPath::first(item.node);
    item.component.emplace();
    for (const int vertex : allVertices(edit.cluster)) {
        if (edit.node->weights()->weight(std::size_t(vertex), index) != 0.0)
            item.component->elements.push_back(vertex);
    }
    const Session::Adjustment adjustment =
        edit.arguments.has("addToSelection")        ? Session::Adjustment::add
        : edit.arguments.has("removeFromSelection") ? Session::Adjustment::remove
                                                    : Session::Adjustment::replace;
    edit.context.session.adjustSelection(
        item.component->elements.empty() ? std::vector<SelectionItem>() : std::vector{item},
        adjustment);
}

// The bind pose goes with the last skin cluster that uses it.
void unbind(const Edit &edit)
{
    Scene &scene = edit.context.scene();
    const Connection *source = edit.node->source(edit.node->plug("bindPose"));
    const NodePtr pose = source ? source->node->shared_from_this() : nullptr;
    detachDeformer(scene, NodePtr(edit.node));
    if (pose && pose->destinations(pose->plug("message")).empty())
        scene.deleteNode(pose);
    edit.context.session.dropDeletedFromLists();
}

struct Step {
    const char *flag;
    void (*run)(const Edit &edit);
};

// Settings come first, then these in the order of the table. A call with several of them is rare,
// and Maya's order is not published: the order is a guess.
const Step kSteps[] = {{"influence", editInfluence},
                       {"smoothWeights", smooth},
                       {"selectInfluenceVerts", selectVertices},
                       {"addInfluence", addInfluences},
                       {"removeInfluence", removeInfluences},
                       {"unbind", unbind}};

} // namespace

MelValue editSkinCluster(Context &context, const Arguments &arguments)
{
    const SkinCluster cluster = requireSkinCluster(context, arguments);
    const Edit edit{context, arguments, cluster};
    applySettings(edit);
    if (arguments.boolean("forceNormalizeWeights", false))
        forceNormalize(edit);
    if (arguments.boolean("removeUnusedInfluence", false))
        removeUnusedInfluences(context.scene(), cluster);
    for (const Step &step : kSteps) {
        if (arguments.has(step.flag))
            step.run(edit);
    }
    return {};
}

} // namespace host::mel
