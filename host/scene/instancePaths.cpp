// SPDX-License-Identifier: Apache-2.0
#include "scene/instancePaths.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "scene/node.h"

namespace host
{

namespace
{

using PathCounts = std::unordered_map<const Node *, std::size_t>;

// The number of paths from the top to `node`, no more than one above the bound. `known` holds those
// that were counted.
std::size_t pathCount(const Node &node, PathCounts &known)
{
    const auto found = known.find(&node);
    if (found != known.end())
        return found->second;
    std::size_t count = node.parents().empty() ? 1 : 0; // the world
    for (const Node *parent : node.parents()) {
        count += pathCount(*parent, known);
        if (count > kMaxPathsPerNode)
            break;
    }
    return known[&node] = count;
}

} // namespace

bool isAtOrAbove(const Node &node, const Node &other)
{
    std::vector<const Node *> waiting = {&other};
    std::unordered_set<const Node *> seen;
    while (!waiting.empty()) {
        const Node *step = waiting.back();
        waiting.pop_back();
        if (step == &node)
            return true;
        if (seen.insert(step).second)
            waiting.insert(waiting.end(), step->parents().begin(), step->parents().end());
    }
    return false;
}

bool wouldHaveTooManyPaths(const Node &node, const Node &parent)
{
    PathCounts before;
    const std::size_t paths = pathCount(node, before) + pathCount(parent, before);
    PathCounts counts = {{&node, paths}}; // of what lies below: with the new parent
    std::vector<const Node *> waiting = {&node};
    std::unordered_set<const Node *> seen;
    while (!waiting.empty()) {
        const Node *step = waiting.back();
        waiting.pop_back();
        if (pathCount(*step, counts) > kMaxPathsPerNode)
            return true;
        for (const NodePtr &child : step->children()) {
            if (seen.insert(child.get()).second)
                waiting.push_back(child.get());
        }
    }
    return false;
}

} // namespace host
