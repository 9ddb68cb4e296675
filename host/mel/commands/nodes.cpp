// SPDX-License-Identifier: Apache-2.0
// createNode, delete, rename, lockNode, objExists, nodeType, objectType.
#include <algorithm>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/deformerNetwork.h"
#include "mel/commands/deleteHistory.h"
#include "scene/meshGeometry.h"

namespace host::mel
{

namespace
{

MelValue createNode(Context &context, const Arguments &arguments)
{
    const std::string_view type = arguments.objects.front().text;
    const std::string name = arguments.string("name");
    Scene &scene = context.scene();
    const NodePtr parent =
        arguments.has("parent") ? requireNode(context, arguments.string("parent")) : nullptr;
    const auto unknown =
        context.isReadingFile ? Scene::UnknownType::learn : Scene::UnknownType::refuse;
    const NodePtr node = arguments.has("shared") && !name.empty()
                             ? scene.createSharedNode(type, name, parent)
                             : scene.createNode(type, name, parent, unknown);
    if (context.currentNode)
        *context.currentNode = node;
    if (context.isReadingFile)
        return MelValue(); // nobody asks, and unique names take time where many nodes share one
    if (!arguments.has("skipSelect"))
        context.session.adjustSelection({itemOf(node)}, Session::Adjustment::replace);
    return node->uniqueName();
}

void refuseUndeletable(const NodePtr &node)
{
    if (node->isLocked())
        throw Error("Cannot delete locked node '" + node->uniqueName() + "'.");
    for (const NodePtr &child : node->children()) {
        if (child->parents().size() < 2)
            refuseUndeletable(child);
    }
}

std::vector<NodePtr> deletableNodes(Scene &scene)
{
    std::vector<NodePtr> nodes;
    for (const NodePtr &node : scene.nodes()) {
        if (!node->isDefault() && !node->isShared())
            nodes.push_back(node);
    }
    return nodes;
}

void deletePath(Scene &scene, const SelectionItem &item)
{
    if (!item.node->isInScene())
        return; // gone with its parent
    if (item.node->isA("skinCluster") && deformedShape(*item.node)) {
        detachDeformer(scene, item.node); // the shape is fed by what came before
        return;
    }
    const bool isInstance = !item.path.isNull() && item.node->parents().size() > 1;
    if (!isInstance) {
        scene.deleteNode(item.node);
        return;
    }
    const std::vector<NodePtr> &nodes = item.path.nodes();
    scene.removeInstance(item.node, nodes.size() > 1 ? nodes[nodes.size() - 2] : nullptr);
}

MelValue deleteCommand(Context &context, const Arguments &arguments)
{
    if (arguments.has("constructionHistory")) {
        for (const NodePtr &node : nodesOrSelection(context, arguments))
            deleteHistory(context.scene(), node);
        return MelValue();
    }
    std::vector<SelectionItem> items;
    if (arguments.has("all")) {
        for (const NodePtr &node : deletableNodes(context.scene()))
            items.push_back(itemOf(node));
    } else {
        items = objectsOrSelection(context, arguments);
        if (items.empty())
            throw Error("Nothing to delete: no objects were given and none is selected.");
    }
    for (const SelectionItem &item : items) {
        if (item.component || item.isPlug())
            throw Error("Cannot delete '" + item.names().front() + "': it is no node.");
        refuseUndeletable(item.node);
    }
    for (const SelectionItem &item : items)
        deletePath(context.scene(), item);
    context.session.dropDeletedFromLists();
    return MelValue();
}

MelValue setUuid(Context &context, const Arguments &arguments)
{
    const bool isRelative = arguments.objects.empty() && context.currentNode;
    const std::vector<NodePtr> nodes = isRelative ? std::vector<NodePtr>{*context.currentNode}
                                                  : nodesOrSelection(context, arguments);
    if (nodes.size() != 1 || !nodes.front())
        throw Error("rename: One node has to be given.");
    context.scene().setUuid(nodes.front(), arguments.string("uuid"));
    if (context.isReadingFile)
        return MelValue();
    return nodes.front()->uniqueName();
}

MelValue renameCommand(Context &context, const Arguments &arguments)
{
    if (arguments.has("uuid"))
        return setUuid(context, arguments);
    requireObjectCount("rename", arguments.objects.size(), {1, 2});
    const bool namesNode = arguments.objects.size() == 2;
    if (!namesNode && context.session.selection().isEmpty())
        throw Error("rename: No objects were specified and none is selected.");
    const NodePtr node = namesNode ? requireNode(context, arguments.objects[0].text)
                                   : context.session.selection().items().front().node;
    const std::string_view name = arguments.objects.back().text;
    // A path is where the node is, no part of its name.
    if (name.find('|') != std::string_view::npos)
        throw Error("New name has no legal characters.");
    context.scene().rename(node, name);
    return node->uniqueName();
}

std::vector<NodePtr> nodesToLock(Context &context, const Arguments &arguments)
{
    if (arguments.objects.empty() && context.currentNode && *context.currentNode)
        return {*context.currentNode};
    return nodesOrSelection(context, arguments);
}

MelValue lockNode(Context &context, const Arguments &arguments)
{
    const std::vector<NodePtr> nodes = nodesToLock(context, arguments);
    if (arguments.isQuery()) {
        std::vector<long long> states;
        for (const NodePtr &node : nodes)
            states.push_back(arguments.has("lockUnpublished") ? node->isLockUnpublished()
                                                              : node->isLocked());
        return states;
    }
    // Without flags the command locks.
    const bool fallback = arguments.order.empty();
    for (const NodePtr &node : nodes) {
        const bool lock = arguments.boolean("lock", fallback || node->isLocked());
        const bool unpublished = arguments.boolean("lockUnpublished", node->isLockUnpublished());
        context.scene().setNodeLock(node, lock, unpublished);
    }
    return MelValue();
}

MelValue objExists(Context &context, const Arguments &arguments)
{
    const std::string_view name = arguments.objects.front().text;
    try {
        const bool exists =
            !matchName(context.scene(), name).empty() || findPlug(context, name).has_value();
        return static_cast<long long>(exists);
    } catch (const Error &) {
        return 0LL; // a vertex beyond the mesh, say
    }
}

// The node that the one operand means; that of a component or a plug too.
const Node &askedNode(Context &context, const Arguments &arguments)
{
    const std::vector<SelectionItem> items =
        requireName(context.scene(), arguments.objects.front().text);
    if (items.size() > 1)
        throwAmbiguousName(arguments.objects.front().string());
    return *items.front().node; // the scene holds it
}

MelValue nodeType(Context &context, const Arguments &arguments)
{
    const NodeType &type = askedNode(context, arguments).type();
    if (!arguments.has("inherited"))
        return type.name;
    std::vector<std::string> names; // from the root down, without "node"
    for (const NodeType *step = &type; step && step->base; step = step->base)
        names.insert(names.begin(), step->name);
    return names;
}

// Type of a node, or whether it is of a type: exactly with -isType, derived from it with -isAType.
MelValue objectType(Context &context, const Arguments &arguments)
{
    const Node &node = askedNode(context, arguments);
    if (arguments.has("isType"))
        return static_cast<long long>(node.type().name == arguments.string("isType"));
    if (arguments.has("isAType"))
        return static_cast<long long>(node.isA(arguments.string("isAType")));
    return node.type().name;
}

} // namespace

void addNodeCommands(CommandTable &table)
{
    table.add(fileStatement(
        {"createNode",
         {{"n", "name", "s"}, {"p", "parent", "s"}, {"s", "shared"}, {"ss", "skipSelect"}},
         createNode,
         {1, 1}}));
    table.add({"delete", {{"all", "all"}, {"ch", "constructionHistory"}}, deleteCommand});
    table.add(fileStatement({"rename", {{"uid", "uuid", "s"}}, renameCommand, {0, 2}}));
    table.add(fileStatement({"lockNode",
                             {{"l", "lock", "b"}, {"lu", "lockUnpublished", "b"}},
                             lockNode,
                             {},
                             Modes::create | Modes::query}));
    table.add({"objExists", {}, objExists, {1, 1}});
    table.add({"nodeType", {{"i", "inherited"}}, nodeType, {1, 1}});
    table.add({"objectType", {{"i", "isType", "s"}, {"isa", "isAType", "s"}}, objectType, {1, 1}});
}

} // namespace host::mel
