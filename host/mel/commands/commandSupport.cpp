// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/commandSupport.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <unordered_set>

#include "mel/commands/attributeAlias.h"
#include "scene/error.h"
#include "scene/instancePaths.h"
#include "scene/plugAccess.h"

namespace host::mel
{

namespace
{

// The node itself or, where a transform lacks the attribute and a shape of it has it, that shape:
// "pCube1.vrts" is understood.
NodePtr ownerOfAttribute(const NodePtr &node, std::string_view attribute)
{
    if (node->findAttribute(attribute) || !node->isA("transform"))
        return node;
    for (const NodePtr &child : node->children()) {
        if (isShape(*child) && !child->isIntermediate() && child->findAttribute(attribute))
            return child;
    }
    return node;
}

std::string_view firstStep(std::string_view path)
{
    return path.substr(0, path.find_first_of(".["));
}

int instanceOf(Context &context, std::string_view nodeName, const Node &node)
{
    if (nodeName.empty() || !hasSeveralPaths(node))
        return 0;
    const std::vector<DagPath> paths = context.scene().pathsMatching(nodeName);
    return paths.empty() ? 0 : int(paths.front().instanceNumber());
}

// A path through another instance than the first means that instance's element of the arrays that
// have one element per instance.
void selectInstance(Context &context, const PlugName &name, PlugRange &range)
{
    const std::string_view step = firstStep(name.attribute);
    const bool hasIndex = step.size() < name.attribute.size() && name.attribute[step.size()] == '[';
    const bool hasChild = range.plug.indices[0] != kNoIndex;
    const Node &node = *range.plug.node;
    if (!hasIndex && hasChild && node.findAttribute(step)->isPerInstance)
        range.plug.indices[0] = instanceOf(context, name.node, node);
}

// Points, edges and faces are as many as their highest index says. A file has all of them: a small
// one can't announce millions.
long long greatestIndex(const Context &context, const Node &node, const Attribute &attribute)
{
    constexpr std::string_view kGeometry[] = {"vrts", "edge", "face"};
    constexpr long long kAlwaysFine = 1'000'000;
    const bool isGeometry =
        node.isA("mesh") && std::find(std::begin(kGeometry), std::end(kGeometry),
                                      attribute.longName) != std::end(kGeometry);
    return context.isReadingFile && isGeometry
               ? std::clamp<long long>(context.fileSize, kAlwaysFine, kMaxElements)
               : kMaxElements;
}

PlugRange resolve(Context &context, const NodePtr &start, const PlugName &name,
                  UnknownAttribute unknown)
{
    const std::string_view step = firstStep(name.attribute);
    const NodePtr node = unknown == UnknownAttribute::learn ? start : ownerOfAttribute(start, step);
    if (!node->findAttribute(step)) {
        std::string path = resolveAlias(*node, step);
        if (!path.empty()) {
            path += name.attribute.substr(step.size());
            return resolvePlugPath(node, path, UnknownAttribute::refuse);
        }
    }
    PlugRange range = resolvePlugPath(node, name.attribute, unknown);
    const long long most = greatestIndex(context, *node, *range.plug.attribute);
    for (int index : range.plug.indices)
        checkIndex(index, most);
    checkIndex(range.last, most);
    selectInstance(context, name, range);
    return range;
}

} // namespace

NodePtr requireNode(Context &context, std::string_view name)
{
    return context.scene().node(name);
}

DagPath requirePath(Context &context, std::string_view name)
{
    const NodePtr node = requireNode(context, name);
    if (!node->isDag())
        throw Error("'" + std::string(name) + "' is not a DAG object.");
    return context.scene().pathsMatching(name).front();
}

NodePtr requireNodeOfType(Context &context, std::string_view name, std::string_view type)
{
    NodePtr node = requireNode(context, name);
    if (!node->isA(type))
        throw Error("Object '" + std::string(name) + "' is not a " + std::string(type) + ".");
    return node;
}

PlugName splitPlugName(std::string_view name)
{
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos)
        return {name, {}};
    return {name.substr(0, dot), name.substr(dot + 1)};
}

namespace
{

PlugRange requirePlug(Context &context, std::string_view name, UnknownAttribute unknown)
{
    const PlugName parts = splitPlugName(name);
    const bool isRelative = parts.node.empty();
    if (parts.attribute.empty() || (isRelative && !(context.currentNode && *context.currentNode)))
        throwNoSuchObject(std::string(name));
    const NodePtr node = isRelative ? *context.currentNode : requireNode(context, parts.node);
    return resolve(context, node, parts, context.isReadingFile ? UnknownAttribute::learn : unknown);
}

} // namespace

PlugRange requirePlug(Context &context, std::string_view name)
{
    return requirePlug(context, name, UnknownAttribute::refuse);
}

PlugRange requirePlugToWrite(Context &context, std::string_view name)
{
    return requirePlug(context, name, UnknownAttribute::learnShape);
}

void learnShape(Context &context, const Plug &plug, LearnedShape shape)
{
    const Attribute &attribute = *plug.attribute;
    if (!attribute.isLearned())
        return;
    if (!attribute.isArray && !context.isReadingFile && holdsAnything(*plug.node, attribute))
        throw Error("'" + plug.name() + "' is not a multi.");
    context.scene().learn(plug.node, plug.attribute, shape);
}

Plug requireSinglePlug(Context &context, std::string_view name)
{
    const PlugRange range = requirePlug(context, name);
    if (range.rangeDepth >= 0)
        throw Error("'" + std::string(name) + "' means several attributes; one is expected.");
    return range.plug;
}

Plug requireConnectionEnd(Context &context, std::string_view name)
{
    const Plug plug = requireSinglePlug(context, name);
    if (!plug.isWholeArray() || !plug.attribute->isPerInstance)
        return plug;
    return plug.element(instanceOf(context, splitPlugName(name).node, *plug.node));
}

std::optional<PlugRange> findPlug(Context &context, std::string_view name)
{
    const PlugName parts = splitPlugName(name);
    const NodePtr node = parts.node.empty() ? nullptr : context.scene().findNode(parts.node);
    if (!node || parts.attribute.empty())
        return std::nullopt;
    try {
        return resolve(context, node, parts, UnknownAttribute::refuse);
    } catch (const Error &) {
        return std::nullopt;
    }
}

std::vector<SelectionItem> objectsOrSelection(Context &context, const Arguments &arguments)
{
    if (arguments.objects.empty())
        return context.session.selection().items();
    std::vector<SelectionItem> items;
    for (const Operand &object : arguments.objects) {
        std::vector<SelectionItem> found = requireName(context.scene(), object.text);
        std::move(found.begin(), found.end(), std::back_inserter(items));
    }
    return items;
}

std::vector<NodePtr> nodesOrSelection(Context &context, const Arguments &arguments)
{
    std::vector<NodePtr> nodes;
    std::unordered_set<const Node *> seen;
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (seen.insert(item.node.get()).second)
            nodes.push_back(item.node);
    }
    return nodes;
}

std::vector<DagPath> pathsOrSelection(Context &context, const Arguments &arguments)
{
    std::vector<DagPath> paths;
    std::set<std::vector<NodePtr>> seen;
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (item.path.isNull())
            throw Error("'" + item.node->uniqueName() + "' is not a DAG object.");
        if (seen.insert(item.path.nodes()).second)
            paths.push_back(item.path);
    }
    return paths;
}

Command fileStatement(Command command)
{
    command.isFileStatement = true;
    return command;
}

void throwNoQuestion()
{
    throw Error("No flag to query was given.");
}

double requireNumber(std::string_view text)
{
    double number = 0.0;
    if (!parseNumber(text.data(), text.data() + text.size(), number))
        throw Error("Invalid arguments: '" + std::string(text) + "' is not a number.");
    return number;
}

std::size_t requireCount(std::string_view text)
{
    const double number = requireNumber(text);
    if (!(number >= 0.0) || number > double(kMaxElements))
        throw Error("The size " + std::string(text) + " is out of range.");
    return static_cast<std::size_t>(number);
}

void checkIndex(long long index, long long most)
{
    if (index > most)
        throw Error("The index " + std::to_string(index) + " is out of range.");
}

SelectionItem itemOf(const NodePtr &node)
{
    SelectionItem item;
    item.node = node;
    if (node->isDag())
        item.path = DagPath::first(node);
    return item;
}

SelectionItem itemOf(const DagPath &path)
{
    SelectionItem item;
    item.node = path.node();
    item.path = path;
    return item;
}

std::vector<std::string> uniqueNames(const std::vector<NodePtr> &nodes)
{
    std::vector<std::string> names;
    names.reserve(nodes.size());
    for (const NodePtr &node : nodes)
        names.push_back(node->uniqueName());
    return names;
}

std::string uniqueName(const SelectionItem &item)
{
    return item.path.isNull() ? item.node->uniqueName() : item.path.partialName();
}

NodePtr objectOf(const NodePtr &node)
{
    if (!isShape(*node) || node->parents().empty())
        return node;
    return node->parents().front()->shared_from_this();
}

std::string shapeNameFor(const std::string &transform)
{
    std::size_t stem = transform.size();
    while (stem > 0 && std::isdigit(static_cast<unsigned char>(transform[stem - 1])))
        --stem;
    return transform.substr(0, stem) + "Shape" + transform.substr(stem);
}

bool isShape(const Node &node)
{
    return node.isA("shape");
}

} // namespace host::mel
