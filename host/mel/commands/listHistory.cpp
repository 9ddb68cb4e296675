// SPDX-License-Identifier: Apache-2.0
// listHistory: the nodes that a node is made from, or with -future those that are made from it.
//
// Maya follows what a node says about which of its plugs depend on which. The host does not know
// that, and goes by guesses that hold for meshes and their deformers: the geometry of a shape
// depends on the plug that feeds it, every output of another node on all its inputs, and nothing on
// a message. -allConnections follows everything.
#include <algorithm>
#include <unordered_set>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "scene/history.h"

namespace host::mel
{

namespace
{

struct Walk {
    bool isFuture = false;
    bool takesAll = false;       // -allConnections
    bool takesAllFuture = false; // of a shape not only what its geometry feeds
    bool prunesDag = false;
};

// The plugs by which shapes give their geometry out.
constexpr std::string_view kOutputs[] = {"outMesh",    "worldMesh",     "local",
                                         "worldSpace", "latticeOutput", "worldLattice"};

bool isGeometryOutput(const Attribute &attribute)
{
    return std::find(std::begin(kOutputs), std::end(kOutputs), attribute.longName) !=
           std::end(kOutputs);
}

std::vector<Node *> upstream(const Node &node, const Walk &walk)
{
    std::vector<Node *> nodes;
    const Plug geometry = shapeInput(node);
    for (const auto &[key, source] : node.sources()) {
        const bool isWay = geometry.isNull() || key.attribute == geometry.attribute.get();
        if (walk.takesAll || (isWay && source.attribute->kind != AttributeKind::message))
            nodes.push_back(source.node);
    }
    return nodes;
}

std::vector<Node *> downstream(const Node &node, const Walk &walk)
{
    std::vector<Node *> nodes;
    const bool takesGeometryOnly = isShape(node) && !walk.takesAllFuture;
    for (const auto &[key, ends] : node.allDestinations()) {
        const bool isWay = key.attribute->kind != AttributeKind::message &&
                           (!takesGeometryOnly || isGeometryOutput(*key.attribute));
        if (!walk.takesAll && !isWay)
            continue;
        for (const Connection &end : ends)
            nodes.push_back(end.node);
    }
    return nodes;
}

std::vector<Node *> neighbours(const Node &node, const Walk &walk)
{
    std::vector<Node *> nodes = walk.isFuture ? downstream(node, walk) : upstream(node, walk);
    if (walk.prunesDag)
        nodes.erase(std::remove_if(nodes.begin(), nodes.end(),
                                   [](const Node *other) { return other->isDag(); }),
                    nodes.end());
    return nodes;
}

// All that is reached in at most `levels` steps (0: any number), nearest first.
std::vector<Node *> breadthFirst(const std::vector<Node *> &starts, const Walk &walk,
                                 std::size_t levels)
{
    std::vector<Node *> reached;
    std::unordered_set<const Node *> seen;
    const auto take = [&](const std::vector<Node *> &nodes) {
        for (Node *node : nodes) {
            if (seen.insert(node).second)
                reached.push_back(node);
        }
    };
    take(starts);
    std::size_t first = 0;
    for (std::size_t level = 0; first < reached.size() && (levels == 0 || level < levels);
         ++level) {
        const std::size_t end = reached.size();
        for (; first < end; ++first)
            take(neighbours(*reached[first], walk));
    }
    return reached;
}

// The same nodes, each way followed to its end before the next one is begun.
std::vector<Node *> depthFirst(const std::vector<Node *> &starts,
                               const std::vector<Node *> &reached, const Walk &walk)
{
    std::unordered_set<const Node *> open(reached.begin(), reached.end());
    std::vector<Node *> ordered;
    std::vector<Node *> waiting(starts.rbegin(), starts.rend());
    while (!waiting.empty()) {
        Node *node = waiting.back();
        waiting.pop_back();
        if (open.erase(node) == 0)
            continue;
        ordered.push_back(node);
        const std::vector<Node *> nodes = neighbours(*node, walk);
        waiting.insert(waiting.end(), nodes.rbegin(), nodes.rend());
    }
    return ordered;
}

// A transform's history is that of its shapes, unless -leaf is off.
std::vector<Node *> startsOf(Context &context, const Arguments &arguments)
{
    std::vector<Node *> starts;
    for (const NodePtr &node : nodesOrSelection(context, arguments)) {
        const std::size_t before = starts.size();
        if (arguments.boolean("leaf", true) && node->isA("transform")) {
            for (const NodePtr &child : node->children()) {
                if (isShape(*child) && !child->isIntermediate())
                    starts.push_back(child.get());
            }
        }
        if (starts.size() == before)
            starts.push_back(node.get());
    }
    return starts;
}

MelValue listHistory(Context &context, const Arguments &arguments)
{
    Walk walk;
    walk.isFuture = arguments.boolean("future", false);
    walk.takesAll = arguments.has("allConnections");
    walk.takesAllFuture = arguments.has("allFuture");
    walk.prunesDag = arguments.boolean("pruneDagObjects", false);
    const std::vector<Node *> starts = startsOf(context, arguments);
    std::vector<Node *> nodes =
        breadthFirst(starts, walk, std::size_t(arguments.integer("levels", 0)));
    if (!arguments.has("breadthFirst"))
        nodes = depthFirst(starts, nodes, walk);
    std::vector<std::string> names;
    const double interest = arguments.number("interestLevel", 0);
    for (const Node *node : nodes) {
        const bool isInteresting =
            interest <= 0 || evaluateNumber(node->plug("isHistoricallyInteresting")) >= interest;
        if (isInteresting && !(walk.prunesDag && node->isDag()))
            names.push_back(node->uniqueName());
    }
    return names;
}

} // namespace

void addListHistoryCommand(CommandTable &table)
{
    table.add({"listHistory",
               {{"f", "future", "b"},
                {"ac", "allConnections"},
                {"af", "allFuture"},
                {"bf", "breadthFirst"},
                {"il", "interestLevel", "i"},
                {"lf", "leaf", "b"},
                {"lv", "levels", "u"},
                {"pdo", "pruneDagObjects", "b"}},
               listHistory});
}

} // namespace host::mel
