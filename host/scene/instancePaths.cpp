// SPDX-License-Identifier: Apache-2.0
#include "scene/instancePaths.h"

#include <algorithm>
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

using Names = std::vector<std::string_view>;

// Paths from the top to a node that has the name names[place]: those of its parents that have the
// names before it, all where there are none.
std::size_t countUp(const Node &node, const Names &names, std::size_t place, std::size_t most)
{
    std::size_t count = 0;
    for (const Node *parent : node.parents()) {
        const bool isWorld = parent->parents().empty();
        if (place == 0)
            count += isWorld ? 1 : countUp(*parent, names, 0, most - count);
        else if (!isWorld && parent->name() == names[place - 1])
            count += countUp(*parent, names, place - 1, most - count);
        if (count >= most)
            break;
    }
    return count;
}

// Ways down from a node that has the name names[place] to the last name.
std::size_t countDown(const Node &node, const Names &names, std::size_t place, std::size_t most)
{
    if (place + 1 == names.size())
        return 1;
    std::size_t count = 0;
    for (const NodePtr &child : node.children()) {
        if (child->name() == names[place + 1])
            count += countDown(*child, names, place + 1, most - count);
        if (count >= most)
            break;
    }
    return count;
}

} // namespace

std::size_t pathsEndingAt(const Node &last, const Names &parts, std::size_t most)
{
    return std::min(most, countUp(last, parts, parts.size() - 1, most));
}

std::size_t pathsThrough(const Node &first, const Names &parts, std::size_t most)
{
    return std::min(most, countUp(first, parts, 0, most) * countDown(first, parts, 0, most));
}

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

bool hasSeveralPaths(const Node &node)
{
    const Node *step = &node;
    while (step->parents().size() == 1)
        step = step->parents().front();
    return step->parents().size() > 1;
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
