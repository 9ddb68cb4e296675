// SPDX-License-Identifier: Apache-2.0
// connectAttr, disconnectAttr, listConnections, isConnected.
#include <algorithm>
#include <set>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "scene/plugAccess.h"

namespace host::mel
{

namespace
{

// The name with every parent in it, as the result lines show it: "a.outColor.outColorR".
std::string fullName(const Plug &plug)
{
    std::string path;
    for (Plug step = plug; !step.isNull();) {
        const int index = step.ownIndex();
        const std::string element = index == kNoIndex ? "" : '[' + std::to_string(index) + ']';
        path = step.attribute->longName + element + (path.empty() ? "" : "." + path);
        step = index == kNoIndex ? step.parent() : step.array().parent();
    }
    return plug.node->uniqueName() + '.' + path;
}

enum class DataClass { any, number, tuple, text, matrix };

DataClass dataClassOf(const Attribute &attribute)
{
    if (attribute.isNumber())
        return DataClass::number;
    if (attribute.isTuple())
        return DataClass::tuple;
    switch (attribute.kind) {
    case AttributeKind::string:
    case AttributeKind::stringList:
        return DataClass::text;
    case AttributeKind::matrix:
        return DataClass::matrix;
    default:
        return DataClass::any;
    }
}

void refuseIncompatible(const Plug &source, const Plug &destination)
{
    const DataClass from = dataClassOf(*source.attribute);
    const DataClass to = dataClassOf(*destination.attribute);
    if (from != to && from != DataClass::any && to != DataClass::any)
        throw Error("The attribute '" + source.name() + "' cannot be connected to '" +
                    destination.name() + "': the types of their data are not compatible.");
    if (!source.attribute->isReadable || !destination.attribute->isWritable)
        throw Error("The attribute '" + source.name() + "' cannot be connected to '" +
                    destination.name() + "': one can not be read or the other not be written.");
}

// connectAttr names an array for its next free element with -nextAvailable. Files name arrays
// without it in rare cases; the element is then the next free one too.
Plug destinationOf(Context &context, const Arguments &arguments)
{
    const Plug plug = requireConnectionEnd(context, arguments.objects[1].text);
    const bool takesNext = arguments.has("nextAvailable") || context.isReadingFile;
    // The flag tells what the attribute is; it is written with the flag again.
    if (arguments.has("nextAvailable"))
        learnShape(context, plug, LearnedShape::unorderedArray);
    if (!takesNext || !plug.isWholeArray())
        return plug;
    return plug.element(context.scene().nextAvailable(plug));
}

void requireComplete(const Plug &plug)
{
    if (!plug.isComplete())
        throw Error("'" + plug.name() + "' is a multi; an index has to be given.");
}

// A file may connect what is locked. As in Maya, the first of two connections into one plug stays.
void refuseInFile(const Plug &source, const Plug &destination)
{
    const Connection *existing = destination.node->source(destination);
    if (existing && existing->plug() != source)
        throw Error("'" + destination.name() + "' already has an incoming connection from '" +
                    existing->plug().name() + "'.");
    if (destination.attribute->longName == "dagSetMembers" && source.node->type().isKnown &&
        AttributeChain(*source.attribute)[0]->isLearned())
        throw Error("'" + source.name() + "' is nothing that a set can hold.");
}

MelValue connectAttr(Context &context, const Arguments &arguments)
{
    const Plug source = requireConnectionEnd(context, arguments.objects[0].text);
    const Plug destination = destinationOf(context, arguments);
    requireComplete(source);
    requireComplete(destination);
    const bool lock = arguments.boolean("lock", false);
    if (context.isReadingFile) {
        refuseInFile(source, destination);
        context.scene().connect(source, destination, true, lock);
        return MelValue();
    }
    refuseIncompatible(source, destination);
    const Connection *existing = destination.node->source(destination);
    if (existing && existing->plug() == source) {
        context.session.output().warning("'" + source.name() + "' is already connected to '" +
                                         destination.name() + "'.");
        return MelValue();
    }
    context.scene().connect(source, destination, arguments.has("force"), lock);
    return "Connected " + fullName(source) + " to " + fullName(destination) + ".";
}

// With -nextAvailable: the element of `array` that `source` feeds.
Plug connectedElement(const Plug &source, const Plug &array)
{
    for (const Connection &end : source.node->destinations(source)) {
        const Plug plug = end.plug();
        if (plug.isElement() && plug.array() == array)
            return plug;
    }
    return array;
}

MelValue disconnectAttr(Context &context, const Arguments &arguments)
{
    const Plug source = requireConnectionEnd(context, arguments.objects[0].text);
    Plug destination = requireConnectionEnd(context, arguments.objects[1].text);
    if (arguments.has("nextAvailable") && destination.isWholeArray())
        destination = connectedElement(source, destination);
    const Connection *existing = destination.node->source(destination);
    if (existing && existing->isLocked)
        throw Error("disconnectAttr: The connection to '" + destination.name() + "' is locked.");
    context.scene().disconnect(source, destination);
    return "Disconnect " + fullName(source) + " from " + fullName(destination) + ".";
}

MelValue isConnected(Context &context, const Arguments &arguments)
{
    const Plug source = requireConnectionEnd(context, arguments.objects[0].text);
    const Plug destination = requireConnectionEnd(context, arguments.objects[1].text);
    const Connection *existing = destination.node->source(destination);
    return static_cast<long long>(existing && existing->plug() == source);
}

// One line of listConnections: the asked node's own plug and the plug at the other end.
struct Link {
    Plug own;
    Plug other;
};

// True for `plug` and everything below it: children, elements.
bool isAtOrBelow(const Plug &plug, const Plug &top)
{
    for (Plug step = plug; !step.isNull(); step = step.parent()) {
        if (step == top)
            return true;
    }
    return false;
}

// `top` null: of the whole node.
std::vector<Link> linksOf(const NodePtr &node, const Plug &top, bool sources, bool destinations)
{
    std::vector<Link> links;
    const auto isWanted = [&top](const Plug &plug) {
        return top.isNull() || isAtOrBelow(plug, top);
    };
    if (sources) {
        for (const auto &[key, source] : node->sources()) {
            if (const Plug own = node->plugOf(key); isWanted(own))
                links.push_back({own, source.plug()});
        }
    }
    if (destinations) {
        for (const auto &[key, ends] : node->allDestinations()) {
            const Plug own = node->plugOf(key);
            if (!isWanted(own))
                continue;
            for (const Connection &end : ends)
                links.push_back({own, end.plug()});
        }
    }
    return links;
}

bool isConversion(const Node &node)
{
    const std::string &type = node.type().name;
    return type == "unitConversion" || type == "timeToUnitConversion" ||
           type == "unitToTimeConversion";
}

// The other end; with -skipConversionNodes what lies behind a node that only converts units.
std::vector<Plug> endsOf(const Link &link, const Arguments &arguments)
{
    const Node &node = *link.other.node;
    if (!arguments.boolean("skipConversionNodes", false) || !isConversion(node))
        return {link.other};
    std::vector<Plug> ends;
    if (node.source(link.other)) {
        for (const auto &[key, destinations] : node.allDestinations())
            for (const Connection &destination : destinations)
                ends.push_back(destination.plug());
    } else {
        for (const auto &[key, source] : node.sources())
            ends.push_back(source.plug());
    }
    return ends;
}

bool hasWantedType(const Node &node, const Arguments &arguments)
{
    if (!arguments.has("type"))
        return true;
    const std::string type = arguments.string("type");
    return arguments.boolean("exactType", false) ? node.type().name == type : node.isA(type);
}

std::string nameOfEnd(const Plug &plug, const Arguments &arguments)
{
    if (arguments.boolean("plugs", false))
        return plug.name();
    const bool wantsShapes = arguments.boolean("shapes", false);
    return (wantsShapes ? plug.node : objectOf(plug.node))->uniqueName();
}

MelValue listConnections(Context &context, const Arguments &arguments)
{
    const bool sources = arguments.boolean("source", true);
    const bool destinations = arguments.boolean("destination", true);
    std::vector<std::string> names;
    const auto append = [&](const NodePtr &node, const Plug &top) {
        for (const Link &link : linksOf(node, top, sources, destinations)) {
            for (const Plug &other : endsOf(link, arguments)) {
                if (!hasWantedType(*other.node, arguments))
                    continue;
                if (arguments.boolean("connections", false))
                    names.push_back(link.own.name());
                names.push_back(nameOfEnd(other, arguments));
            }
        }
    };
    if (arguments.objects.empty()) {
        for (const SelectionItem &item : context.session.selection().items())
            append(item.node, item.plug);
        return names;
    }
    for (const Operand &object : arguments.objects) {
        if (splitPlugName(object.text).attribute.empty()) {
            append(requireNode(context, object.text), Plug());
        } else {
            const Plug plug = requireSinglePlug(context, object.text);
            append(plug.node, plug);
        }
    }
    return names;
}

} // namespace

void addConnectionCommands(CommandTable &table)
{
    table.add(fileStatement({"connectAttr",
                             {{"f", "force"}, {"na", "nextAvailable"}, {"l", "lock", "b"}},
                             connectAttr,
                             {2, 2}}));
    table.add({"disconnectAttr", {{"na", "nextAvailable"}}, disconnectAttr, {2, 2}});
    table.add({"isConnected", {}, isConnected, {2, 2}});
    table.add({"listConnections",
               {{"s", "source", "b"},
                {"d", "destination", "b"},
                {"p", "plugs", "b"},
                {"c", "connections", "b"},
                {"t", "type", "s"},
                {"et", "exactType", "b"},
                {"sh", "shapes", "b"},
                {"scn", "skipConversionNodes", "b"}},
               listConnections});
}

} // namespace host::mel
