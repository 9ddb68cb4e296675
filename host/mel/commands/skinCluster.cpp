// SPDX-License-Identifier: Apache-2.0
// The skinCluster command: its flags, what its operands mean, and binding.
#include <algorithm>

#include "mel/commands/bindSkin.h"
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/skinClusterCommand.h"

namespace host::mel
{

namespace
{

// Beside the settings. -useGeometry, -nurbsSamples and -polySmoothness shape influences that are
// surfaces, which the host does not have; -ignoreHierarchy is deprecated. Maya's own menus send
// them along, so they are accepted.
const std::vector<Flag> kFlags = {{"n", "name", "s"},
                                  {"tsb", "toSelectedBones"},
                                  {"ih", "ignoreHierarchy"},
                                  {"ibp", "ignoreBindPose"},
                                  {"dr", "dropoffRate", "d"},
                                  {"inf", "influence", "s"},
                                  {"wi", "weightedInfluence"},
                                  {"g", "geometry", "s", Flag::multiUse},
                                  {"gi", "geometryIndices"},
                                  {"lw", "lockWeights", "b"},
                                  {"rui", "removeUnusedInfluence", "b"},
                                  {"ai", "addInfluence", "s", Flag::multiUse},
                                  {"wt", "weight", "d"},
                                  {"ug", "useGeometry"},
                                  {"ns", "nurbsSamples", "i"},
                                  {"ps", "polySmoothness", "d"},
                                  {"ri", "removeInfluence", "s", Flag::multiUse},
                                  {"fnw", "forceNormalizeWeights", "b"},
                                  {"sw", "smoothWeights", "d"},
                                  {"swi", "smoothWeightsMaxIterations", "i"},
                                  {"siv", "selectInfluenceVerts", "s"},
                                  {"ats", "addToSelection"},
                                  {"rfs", "removeFromSelection"},
                                  {"ub", "unbind"}};

template <typename T>
void appendOnce(std::vector<T> &list, const T &entry)
{
    if (std::find(list.begin(), list.end(), entry) == list.end())
        list.push_back(entry);
}

void addJointsBelow(const DagPath &path, std::vector<DagPath> &joints)
{
    if (path.node()->isA("joint"))
        appendOnce(joints, path);
    for (const NodePtr &child : path.node()->children())
        addJointsBelow(path.child(child), joints);
}

// The highest joint above a joint, itself if there is none.
DagPath skeletonRoot(const DagPath &joint)
{
    DagPath root = joint;
    for (DagPath above = joint.parent(); !above.isNull(); above = above.parent()) {
        if (above.node()->isA("joint"))
            root = above;
    }
    return root;
}

// Without -toSelectedBones a joint stands for its whole skeleton, each joint before those below it.
std::vector<DagPath> wholeSkeletons(const std::vector<DagPath> &named)
{
    std::vector<DagPath> influences;
    for (const DagPath &path : named) {
        if (path.node()->isA("joint"))
            addJointsBelow(skeletonRoot(path), influences);
        else
            appendOnce(influences, path);
    }
    return influences;
}

// Sorts what was named into influences and the one shape.
void takeOperands(Context &context, const Arguments &arguments, BindOptions &options)
{
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        const DagPath shape = visibleShape(item);
        if (shape.isNull() && !item.path.isNull() && item.node->isA("transform")) {
            appendOnce(options.influences, item.path);
            continue;
        }
        if (shape.isNull())
            throw Error("'" + item.node->uniqueName() + "' can not be bound.");
        if (!options.shape.isNull() && !(options.shape == shape))
            throw Error("Only one geometry can be bound at a time.");
        options.shape = shape;
    }
    if (options.shape.isNull())
        throw Error("There is no geometry to bind.");
    if (!arguments.has("toSelectedBones"))
        options.influences = wholeSkeletons(options.influences);
}

MelValue run(Context &context, const Arguments &arguments)
{
    if (arguments.isQuery())
        return querySkinCluster(context, arguments);
    if (arguments.isEdit())
        return editSkinCluster(context, arguments);
    return createSkinCluster(context, arguments);
}

} // namespace

const std::vector<SkinSetting> &skinSettings()
{
    static const std::vector<SkinSetting> settings = {
        {{"mi", "maximumInfluences", "i"}, "maxInfluences", 1, 1e6},
        {{"omi", "obeyMaxInfluences", "b"}, "maintainMaxInfluences", 0, 1},
        {{"nw", "normalizeWeights", "i"}, "normalizeWeights", 0, 2},
        {{"wd", "weightDistribution", "i"}, "weightDistribution", 0, 1},
        {{"sm", "skinMethod", "i"}, "skinningMethod", 0, 2},
        // Heat map (2) and geodesic voxel (3) binding are not there. Closest in hierarchy (1) has
        // no published law; it binds as closest distance (0).
        {{"bm", "bindMethod", "i"}, "bindMethod", 0, 1, false},
    };
    return settings;
}

double settingValue(const Arguments &arguments, const SkinSetting &setting)
{
    const Operand &operand = arguments.of(setting.flag.longName)[0];
    const double value = setting.flag.arguments[0] == 'b' ? operand.boolean() : operand.number();
    if (value < setting.least || value > setting.most)
        throw Error("The value " + operand.string() + " of flag '" + setting.flag.shortName +
                    "' is out of range or not supported.");
    return value;
}

double dropoffOf(const Arguments &arguments)
{
    const double dropoff = arguments.number("dropoffRate", 4);
    if (!(dropoff >= 0.1 && dropoff <= 10))
        throw Error("The dropoff rate must be from 0.1 to 10.");
    return dropoff;
}

PoseChoice poseChoiceOf(const Arguments &arguments)
{
    return arguments.has("ignoreBindPose") ? PoseChoice::asTheyStand : PoseChoice::any;
}

DagPath visibleShape(const SelectionItem &item)
{
    if (item.path.isNull() || item.isPlug() || item.node->isA("joint"))
        return {};
    if (isShape(*item.node))
        return item.path;
    for (const NodePtr &child : item.node->children()) {
        if (isShape(*child) && !child->isIntermediate())
            return item.path.child(child);
    }
    return {};
}

SkinCluster requireSkinCluster(Context &context, const Arguments &arguments)
{
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (item.node->isA("skinCluster"))
            return SkinCluster(item.node);
        const DagPath shape = visibleShape(item);
        if (shape.isNull())
            continue;
        const std::vector<NodePtr> clusters = skinClustersOf(*shape.node());
        if (!clusters.empty())
            return SkinCluster(clusters.front());
    }
    throw Error("No skinCluster was given, and none belongs to what is selected.");
}

std::size_t requireInfluence(Context &context, const SkinCluster &cluster, std::string_view name)
{
    const int index = cluster.indexOf(*requireNode(context, name));
    if (index < 0)
        throw Error("'" + std::string(name) + "' is no influence of " +
                    cluster.node()->uniqueName() + ".");
    return std::size_t(index);
}

MelValue createSkinCluster(Context &context, const Arguments &arguments)
{
    Scene &scene = context.scene();
    BindOptions options;
    options.name = arguments.string("name");
    options.dropoff = dropoffOf(arguments);
    options.pose = poseChoiceOf(arguments);
    for (const SkinSetting &setting : skinSettings()) {
        if (arguments.has(setting.flag.longName))
            options.settings.emplace_back(setting.attribute, settingValue(arguments, setting));
    }
    takeOperands(context, arguments, options);
    const NodePtr node = bindSkin(scene, options);
    warnOfUnevaluated(context.session.output(), options.influences);
    if (arguments.boolean("removeUnusedInfluence", false))
        removeUnusedInfluences(scene, SkinCluster(node));
    return std::vector<std::string>{node->name()};
}

void addSkinClusterCommands(CommandTable &table)
{
    Command command{"skinCluster", kFlags, run, {}, Modes::create | Modes::query | Modes::edit};
    for (const SkinSetting &setting : skinSettings())
        command.flags.push_back(setting.flag);
    table.add(std::move(command));
}

} // namespace host::mel
