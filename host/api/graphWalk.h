// SPDX-License-Identifier: Apache-2.0
// Walking along connections: what MItDependencyGraph does.
//
// Upstream, a node is entered through the plug that feeds what was seen before, and left through
// everything that comes into it; downstream the other way round. A node that was reached through
// its `message` is not gone through: nothing affects a message. Nodes come once, and so do plugs.
#pragma once

#include <deque>
#include <set>
#include <utility>
#include <vector>

#include <maya/MItDependencyGraph.h>

#include "scene/node.h"

namespace host
{

class GraphWalk
{
public:
    struct Settings {
        MFn::Type filter = MFn::kInvalid; // kInvalid: everything
        MItDependencyGraph::Direction direction = MItDependencyGraph::kDownstream;
        MItDependencyGraph::Traversal traversal = MItDependencyGraph::kDepthFirst;
        MItDependencyGraph::Level level = MItDependencyGraph::kNodeLevel;
        bool prunesOnFilter = false; // does not go past nodes that do not pass the filter
    };

    // From a node, or from one plug of it.
    GraphWalk(NodePtr rootNode, Settings settings);
    GraphWalk(Plug rootPlug, Settings settings);

    Settings settings;
    void restart();
    bool isDone() const { return isDone_; }
    void next();
    void prune() { isPruned_ = true; } // nothing behind the current item
    NodePtr node() const { return current_.node; }
    Plug plug() const { return current_.plug; }         // on this side; null for a root node
    Plug previousPlug() const { return current_.from; } // on the other side; null for the root
    std::vector<NodePtr> nodePath() const;              // from the root to the current node

private:
    struct Item {
        NodePtr node;
        Plug plug;
        Plug from;
        int parent = -1; // place in trail_ of the item before
    };
    void advance(); // to the next item, whether it passes the filter or not
    bool passes(const Item &item) const;
    bool isNew(const Item &item);
    void expand(const Item &item, int place);
    void collectNext(const Item &item, std::vector<Item> &found) const;

    NodePtr rootNode_;
    Plug rootPlug_;
    std::deque<Item> waiting_;
    std::vector<Item> trail_; // items that were expanded
    std::set<const Node *> seenNodes_;
    std::set<std::pair<const Node *, PlugKey>> seenPlugs_;
    Item current_;
    bool isDone_ = true;
    bool isPruned_ = false;
};

} // namespace host
