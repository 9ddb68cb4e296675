// SPDX-License-Identifier: Apache-2.0
// deleteAttr and removeMultiInstance: dropping attributes and elements of arrays.
#include "mel/commands/attributeCommands.h"
#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

bool isBelow(const Attribute &attribute, const Attribute &top)
{
    const Attribute *root = &attribute;
    while (root->parent)
        root = root->parent;
    return root == &top;
}

void disconnectAll(Scene &scene, const NodePtr &node, const Attribute &top)
{
    std::vector<std::pair<Plug, Plug>> connections;
    for (const auto &[key, source] : node->sources()) {
        if (isBelow(*key.attribute, top))
            connections.emplace_back(source.plug(), node->plugOf(key));
    }
    for (const auto &[key, destinations] : node->allDestinations()) {
        if (!isBelow(*key.attribute, top))
            continue;
        for (const Connection &destination : destinations)
            connections.emplace_back(node->plugOf(key), destination.plug());
    }
    for (const auto &[source, destination] : connections) {
        if (destination.node->source(destination))
            scene.disconnect(source, destination);
    }
}

MelValue deleteAttr(Context &context, const Arguments &arguments)
{
    std::string name = arguments.objects.front().string();
    if (arguments.has("attribute"))
        name += '.' + arguments.string("attribute");
    const Plug plug = requireSinglePlug(context, name);
    if (!plug.attribute->isDynamic || plug.attribute->parent || plug.isElement())
        throw Error("deleteAttr: Cannot delete the attribute '" + name + "'.");
    if (plug.node->isLocked() || plug.node->state(plug).isLocked)
        throw Error("deleteAttr: The attribute '" + name + "' is locked.");
    disconnectAll(context.scene(), plug.node, *plug.attribute);
    context.scene().removeAttribute(plug.node, plug.attribute);
    return MelValue();
}

MelValue removeMultiInstance(Context &context, const Arguments &arguments)
{
    const Plug plug = requireSinglePlug(context, arguments.objects.front().text);
    if (!plug.isElement())
        throw Error("removeMultiInstance: '" + plug.name() + "' is no element of a multi.");
    if (const Connection *source = plug.node->source(plug)) {
        if (!arguments.boolean("break", false))
            throw Error("removeMultiInstance: '" + plug.name() + "' is connected.");
        context.scene().disconnect(source->plug(), plug);
    }
    context.scene().removeElement(plug);
    return MelValue();
}

} // namespace

void addDeleteAttrCommands(CommandTable &table)
{
    table.add({"deleteAttr", {{"at", "attribute", "s"}}, deleteAttr, {1, 1}});
    table.add({"removeMultiInstance", {{"b", "break", "b"}}, removeMultiInstance, {1, 1}});
}

} // namespace host::mel
