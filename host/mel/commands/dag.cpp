// SPDX-License-Identifier: Apache-2.0
// parent, group, listRelatives, instanceable.
#include <algorithm>
#include <unordered_set>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/jointScale.h"
#include "mel/commands/matrixParts.h"

namespace host::mel
{

namespace
{

NodePtr parentOf(const DagPath &path)
{
    const std::vector<NodePtr> &nodes = path.nodes();
    return nodes.size() > 1 ? nodes[nodes.size() - 2] : nullptr;
}

// The way down to `node` when it hangs below `parent` (null: the world).
DagPath pathBelow(const NodePtr &node, const DagPath &parent)
{
    return parent.isNull() ? DagPath({node}) : parent.child(node);
}

// Hangs `child` below `parent` (null path: the world) and, unless `keepLocal`, lets it stay where
// it is in the world.
void moveBelow(Scene &scene, const DagPath &child, const DagPath &parent, bool keepLocal)
{
    const NodePtr &node = child.node();
    const bool staysInPlace = !keepLocal && node->isA("transform");
    const Matrix world = worldMatrix(child);
    const NodePtr newParent = parent.isNull() ? nullptr : parent.node();
    scene.reparent(node, parentOf(child), newParent);
    connectInverseScale(scene, node, newParent);
    if (staysInPlace)
        setWorldMatrix(scene, pathBelow(node, parent), world, TurnJointBy::jointOrient);
}

struct ParentCall {
    std::vector<DagPath> children;
    DagPath parent; // null: the world
};

// Shapes go with their transform, unless -shape says that they are meant themselves.
DagPath meantBy(const DagPath &path, bool wantsShapes)
{
    return wantsShapes || !isShape(*path.node()) ? path : path.parent();
}

ParentCall parentCallOf(Context &context, const Arguments &arguments)
{
    ParentCall call;
    call.children = pathsOrSelection(context, arguments);
    if (!arguments.has("world") && !arguments.has("removeObject")) {
        if (call.children.size() < 2)
            throw Error("parent: A child and a parent have to be given.");
        call.parent = call.children.back();
        call.children.pop_back();
    }
    if (call.children.empty())
        throw Error("parent: No objects were specified and none is selected.");
    for (DagPath &child : call.children)
        child = meantBy(child, arguments.has("shape"));
    return call;
}

MelValue parentCommand(Context &context, const Arguments &arguments)
{
    Scene &scene = context.scene();
    const ParentCall call = parentCallOf(context, arguments);
    const NodePtr newParent = call.parent.isNull() ? nullptr : call.parent.node();
    std::vector<std::string> names;
    for (const DagPath &child : call.children) {
        if (arguments.has("removeObject")) {
            scene.removeInstance(child.node(), parentOf(child));
        } else if (arguments.has("addObject")) {
            scene.addInstance(child.node(), newParent);
            names.push_back(pathBelow(child.node(), call.parent).partialName());
        } else if (parentOf(child) == newParent) {
            context.session.output().warning("Object, '" + child.partialName() +
                                             "', skipped. It is already a child of the parent.");
        } else {
            moveBelow(scene, child, call.parent, arguments.has("relative"));
            names.push_back(pathBelow(child.node(), call.parent).partialName());
        }
    }
    return names;
}

// Where a new group goes: to -parent or -world, else below the parent that all members share.
DagPath placeOfGroup(Context &context, const Arguments &arguments,
                     const std::vector<DagPath> &members)
{
    if (arguments.has("parent"))
        return requirePath(context, arguments.string("parent"));
    if (arguments.has("world") || members.empty())
        return DagPath();
    const DagPath place = members.front().parent();
    const bool isShared = std::all_of(members.begin(), members.end(), [&place](const DagPath &one) {
        return one.parent() == place;
    });
    return isShared ? place : DagPath();
}

MelValue group(Context &context, const Arguments &arguments)
{
    std::vector<DagPath> members;
    if (!arguments.has("empty")) {
        members = pathsOrSelection(context, arguments);
        if (members.empty())
            throw Error("group: No objects were specified and none is selected.");
    }
    for (DagPath &member : members)
        member = meantBy(member, false);
    const DagPath place = placeOfGroup(context, arguments, members);
    Scene &scene = context.scene();
    const NodePtr node = scene.createNode("transform", arguments.string("name", "group#"),
                                          place.isNull() ? nullptr : place.node());
    const DagPath path = pathBelow(node, place);
    for (const DagPath &member : members)
        moveBelow(scene, member, path, arguments.has("relative"));
    context.session.adjustSelection({itemOf(path)}, Session::Adjustment::replace);
    return node->uniqueName();
}

void appendDescendents(const DagPath &path, std::vector<DagPath> &paths)
{
    // Grand-children before children, as Maya lists them.
    for (const NodePtr &child : path.node()->children()) {
        appendDescendents(path.child(child), paths);
        paths.push_back(path.child(child));
    }
}

std::vector<DagPath> relativesOf(const DagPath &path, const Arguments &arguments)
{
    std::vector<DagPath> relatives;
    if (arguments.has("parent") || arguments.has("allParents")) {
        const std::vector<DagPath> ways =
            arguments.has("allParents") ? DagPath::all(path.node()) : std::vector<DagPath>{path};
        for (const DagPath &way : ways) {
            if (!way.parent().isNull())
                relatives.push_back(way.parent());
        }
    } else if (arguments.has("allDescendents")) {
        appendDescendents(path, relatives);
    } else {
        for (const NodePtr &child : path.node()->children())
            relatives.push_back(path.child(child));
    }
    return relatives;
}

bool isWantedRelative(const Node &node, const Arguments &arguments)
{
    if (arguments.has("shapes") && !isShape(node))
        return false;
    if (arguments.has("noIntermediate") && isShape(node) && node.isIntermediate())
        return false;
    if (!arguments.has("type"))
        return true;
    for (std::size_t use = 0; use < arguments.uses("type"); ++use) {
        if (node.isA(arguments.of("type", use).front().text))
            return true;
    }
    return false;
}

MelValue listRelatives(Context &context, const Arguments &arguments)
{
    std::vector<std::string> names;
    std::unordered_set<const Node *> seen;
    for (const DagPath &path : pathsOrSelection(context, arguments)) {
        if (!seen.insert(path.node().get()).second)
            continue; // another instance
        for (const DagPath &relative : relativesOf(path, arguments)) {
            if (!isWantedRelative(*relative.node(), arguments))
                continue;
            names.push_back(arguments.has("fullPath") ? relative.fullName()
                            : arguments.has("path")   ? relative.partialName()
                                                      : relative.node()->name());
        }
    }
    return names;
}

// Whether a node may get instances is not looked at here; it is kept for the file.
MelValue instanceable(Context &context, const Arguments &arguments)
{
    const bool isRelative = arguments.objects.empty() && context.currentNode;
    const std::vector<NodePtr> nodes = isRelative ? std::vector<NodePtr>{*context.currentNode}
                                                  : nodesOrSelection(context, arguments);
    const bool allow = arguments.boolean("allow", true);
    for (const NodePtr &node : nodes) {
        if (node)
            context.scene().keepStatement(
                node, {allow ? "instanceable -a 1;" : "instanceable -a 0;", ""});
    }
    return MelValue();
}

} // namespace

void addDagCommands(CommandTable &table)
{
    table.add(fileStatement({"parent",
                             {{"w", "world"},
                              {"r", "relative"},
                              {"a", "absolute"},
                              {"s", "shape"},
                              {"nc", "noConnections"},
                              {"add", "addObject"},
                              {"rm", "removeObject"}},
                             parentCommand}));
    table.add({"group",
               {{"n", "name", "s"},
                {"em", "empty"},
                {"p", "parent", "s"},
                {"w", "world"},
                {"r", "relative"}},
               group});
    table.add({"listRelatives",
               {{"s", "shapes"},
                {"p", "parent"},
                {"c", "children"},
                {"ad", "allDescendents"},
                {"ap", "allParents"},
                {"pa", "path"},
                {"f", "fullPath"},
                {"typ", "type", "s", Flag::multiUse},
                {"ni", "noIntermediate"}},
               listRelatives});
    table.add(fileStatement({"instanceable", {{"a", "allow", "b"}}, instanceable}));
}

} // namespace host::mel
