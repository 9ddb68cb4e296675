// SPDX-License-Identifier: Apache-2.0
#include "api/graphWalk.h"

#include <algorithm>

#include "api/nodeBody.h"

namespace host
{

namespace
{

bool isAtOrBelow(const Plug &plug, const Plug &ancestor)
{
    for (Plug step = plug; !step.isNull(); step = step.parent())
        if (step == ancestor)
            return true;
    return false;
}

bool isMessage(const Plug &plug)
{
    return !plug.isNull() && plug.attribute->kind == AttributeKind::message;
}

} // namespace

GraphWalk::GraphWalk(NodePtr rootNode, Settings walkSettings)
    : settings(walkSettings), rootNode_(std::move(rootNode))
{
    restart();
}

GraphWalk::GraphWalk(Plug rootPlug, Settings walkSettings)
    : settings(walkSettings), rootNode_(rootPlug.node), rootPlug_(std::move(rootPlug))
{
    restart();
}

void GraphWalk::restart()
{
    waiting_.clear();
    trail_.clear();
    seenNodes_.clear();
    seenPlugs_.clear();
    isPruned_ = false;
    isDone_ = false;
    current_ = Item();
    current_.node = rootNode_;
    current_.plug = rootPlug_;
    isNew(current_);
    if (!passes(current_))
        next();
}

bool GraphWalk::passes(const Item &item) const
{
    return settings.filter == MFn::kInvalid || toObject(item.node).hasFn(settings.filter);
}

// Takes note of an item; false if it was there before.
bool GraphWalk::isNew(const Item &item)
{
    if (settings.level == MItDependencyGraph::kNodeLevel || item.plug.isNull())
        return seenNodes_.insert(item.node.get()).second;
    return seenPlugs_.insert({item.node.get(), PlugKey(item.plug)}).second;
}

void GraphWalk::next()
{
    do {
        advance();
    } while (!isDone_ && !passes(current_));
}

void GraphWalk::advance()
{
    const bool isBarred = settings.prunesOnFilter && !passes(current_);
    if (!isPruned_ && !isBarred) {
        trail_.push_back(current_);
        expand(current_, static_cast<int>(trail_.size()) - 1);
    }
    isPruned_ = false;
    while (!waiting_.empty()) {
        current_ = std::move(waiting_.front());
        waiting_.pop_front();
        if (isNew(current_))
            return;
    }
    isDone_ = true;
}

// Puts what comes next into the queue: at its front for depth first, at its end for breadth first.
void GraphWalk::expand(const Item &item, int place)
{
    std::vector<Item> found;
    collectNext(item, found);
    for (Item &step : found)
        step.parent = place;
    const auto where =
        settings.traversal == MItDependencyGraph::kDepthFirst ? waiting_.begin() : waiting_.end();
    waiting_.insert(where, found.begin(), found.end());
}

void GraphWalk::collectNext(const Item &item, std::vector<Item> &found) const
{
    const bool isRoot = item.from.isNull();
    const Plug &gate = isRoot ? rootPlug_ : item.plug;
    const bool isUpstream = settings.direction == MItDependencyGraph::kUpstream;
    if (!isRoot && isUpstream && isMessage(gate))
        return;
    // From a root plug only what is connected to it, or to its children and elements.
    const auto isOpen = [&](const Plug &plug) {
        if (isRoot && !gate.isNull())
            return isAtOrBelow(plug, gate);
        return isRoot || isUpstream || !isMessage(plug);
    };
    const auto add = [&](const Plug &near, const Connection &connection) {
        Item step;
        step.plug = connection.plug();
        step.node = step.plug.node;
        step.from = near;
        found.push_back(std::move(step));
    };
    if (isUpstream) {
        for (const auto &source : item.node->sources())
            if (const Plug near = item.node->plugOf(source.first); isOpen(near))
                add(near, source.second);
        return;
    }
    for (const auto &destination : item.node->allDestinations())
        if (const Plug near = item.node->plugOf(destination.first); isOpen(near))
            for (const Connection &connection : destination.second)
                add(near, connection);
}

std::vector<NodePtr> GraphWalk::nodePath() const
{
    std::vector<NodePtr> path = {current_.node};
    for (int place = current_.parent; place >= 0;
         place = trail_[static_cast<std::size_t>(place)].parent)
        path.push_back(trail_[static_cast<std::size_t>(place)].node);
    std::reverse(path.begin(), path.end());
    return path;
}

} // namespace host
