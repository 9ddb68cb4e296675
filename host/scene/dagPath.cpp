// SPDX-License-Identifier: Apache-2.0
#include "scene/dagPath.h"

#include <algorithm>

#include "scene/scene.h"

namespace host
{

namespace
{

// Extends every way up from `node`; `below` is the path from `node`'s child down, reversed.
void collectPaths(Node *node, std::vector<NodePtr> &below, std::vector<DagPath> &paths)
{
    below.push_back(node->shared_from_this());
    for (Node *parent : node->parents()) {
        if (node->scene() && parent == node->scene()->world().get())
            paths.emplace_back(std::vector<NodePtr>(below.rbegin(), below.rend()));
        else
            collectPaths(parent, below, paths);
    }
    below.pop_back();
}

} // namespace

DagPath DagPath::first(const NodePtr &node)
{
    std::vector<NodePtr> upwards;
    const Node *world = node->scene() ? node->scene()->world().get() : nullptr;
    for (Node *step = node.get(); step && step != world;
         step = step->parents().empty() ? nullptr : step->parents().front())
        upwards.push_back(step->shared_from_this());
    return DagPath(std::vector<NodePtr>(upwards.rbegin(), upwards.rend()));
}

std::vector<DagPath> DagPath::all(const NodePtr &node)
{
    std::vector<DagPath> paths;
    std::vector<NodePtr> below;
    collectPaths(node.get(), below, paths);
    return paths;
}

bool DagPath::isValid() const
{
    if (isNull() || !nodes_.front()->isInScene())
        return false;
    const Node *above = nodes_.front()->scene()->world().get();
    for (const NodePtr &node : nodes_) {
        const auto &parents = node->parents();
        if (!node->isInScene() || std::find(parents.begin(), parents.end(), above) == parents.end())
            return false;
        above = node.get();
    }
    return true;
}

DagPath DagPath::child(const NodePtr &node) const
{
    std::vector<NodePtr> nodes = nodes_;
    nodes.push_back(node);
    return DagPath(std::move(nodes));
}

DagPath DagPath::parent() const
{
    return isNull() ? DagPath() : DagPath(std::vector<NodePtr>(nodes_.begin(), nodes_.end() - 1));
}

std::string DagPath::fullName() const
{
    std::string name;
    for (const NodePtr &node : nodes_)
        name += '|' + node->name();
    return name;
}

std::string DagPath::partialName() const
{
    if (isNull())
        return std::string();
    const Scene *scene = node()->scene();
    std::string name = node()->name();
    if (!scene)
        return name;
    for (std::size_t i = nodes_.size() - 1; scene->isAmbiguous(name); --i) {
        if (i == 0)
            return '|' + name;
        name = nodes_[i - 1]->name() + '|' + name;
    }
    return name;
}

unsigned DagPath::instanceNumber() const
{
    const std::vector<DagPath> paths = all(node());
    const auto found = std::find(paths.begin(), paths.end(), *this);
    return found == paths.end() ? 0 : unsigned(found - paths.begin());
}

} // namespace host
