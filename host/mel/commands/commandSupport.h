// SPDX-License-Identifier: Apache-2.0
// What the command families share: what a name means, what a command works on, how it answers.
//
// Names are looked up in context.scene(), the scene of the session or, while a file is read, the
// one that is being filled. All functions throw host::Error with Maya's text when they refuse.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mel/command.h"

namespace host::mel
{

// --- Names ---------------------------------------------------------------------------------------

// The one node of a name or path ("hip", "|left|hip", ":lambert1").
NodePtr requireNode(Context &context, std::string_view name);
// The path that a name means; the first one of a node with instances. Refuses non-DAG nodes.
DagPath requirePath(Context &context, std::string_view name);
// The skinCluster, joint, ... of that name. Refuses a node of any other type.
NodePtr requireNodeOfType(Context &context, std::string_view name, std::string_view type);

// "node.attr[3].child[0:7]", or ".attr" on context.currentNode. While a file is read, attributes
// that the node does not have are learned. A per-instance array without an index stands for the
// element of the instance that the name's path selects where a child follows it.
PlugRange requirePlug(Context &context, std::string_view name);
// The same for a command that sets the plug: an index tells that a learned attribute that holds
// nothing is an array.
PlugRange requirePlugToWrite(Context &context, std::string_view name);
// Takes in what the way in which a plug is named or filled tells of its attribute, if that is a
// learned one. Refuses to make an array of what holds anything as none, unless a file says so.
void learnShape(Context &context, const Plug &plug, LearnedShape shape);
// The plug that a connection to or from `name` means: one plug, and of an array with one element
// per instance the element of the instance that the name selects ("|a|aShape.iog").
Plug requireConnectionEnd(Context &context, std::string_view name);
// The same for a name that means one plug: refuses a range.
Plug requireSinglePlug(Context &context, std::string_view name);
// Nothing instead of an error when the node or the attribute is not there; learns nothing.
std::optional<PlugRange> findPlug(Context &context, std::string_view name);
// "node.attr" cut at its first dot; the attribute is empty if there is none.
struct PlugName {
    std::string_view node;
    std::string_view attribute;
};
PlugName splitPlugName(std::string_view name);

// --- What a command works on ---------------------------------------------------------------------

// What the operands mean (patterns too, each must match something), in order; without operands the
// selection. May be empty.
std::vector<SelectionItem> objectsOrSelection(Context &context, const Arguments &arguments);
// The same as nodes, each once. Components and plugs stand for their node.
std::vector<NodePtr> nodesOrSelection(Context &context, const Arguments &arguments);
// The same as paths, each once. Refuses nodes outside the DAG.
std::vector<DagPath> pathsOrSelection(Context &context, const Arguments &arguments);

// The row with the mark that scene files may contain the command.
Command fileStatement(Command command);

// "No flag to query was given.": a query says what it wants to know.
[[noreturn]] void throwNoQuestion();

// --- Values and results --------------------------------------------------------------------------

// A number that stands in `text` as MEL and Maya ASCII write it, words such as yes and off too.
double requireNumber(std::string_view text);
// An announced size or an index: not negative and no more than kMaxElements.
constexpr long long kMaxElements = 100'000'000;
std::size_t requireCount(std::string_view text);
void checkIndex(long long index, long long most = kMaxElements);

// A whole node or path as the selection holds it.
SelectionItem itemOf(const NodePtr &node);
SelectionItem itemOf(const DagPath &path);

// Shortest unique names, as commands give them back.
std::vector<std::string> uniqueNames(const std::vector<NodePtr> &nodes);
std::string uniqueName(const SelectionItem &item);
// The transform above a shape, for commands that mean objects; the node itself if it is no shape.
NodePtr objectOf(const NodePtr &node);
bool isShape(const Node &node);
// How Maya names the shape of a transform, the word before the number: "pCubeShape1" for "pCube1".
std::string shapeNameFor(const std::string &transform);

} // namespace host::mel
