// SPDX-License-Identifier: Apache-2.0
// Which node of one scene is which of another, where one was read from an older file of the other.
#pragma once

#include <unordered_map>

#include "scene/scene.h"

namespace host::ma
{

// A node is found by its UUID where both have one, else by its name below the same parent, else
// (renamed, in files without UUIDs) as the next node of its type in the order of creation.
class NodePairs
{
public:
    NodePairs(const Scene &before, const Scene &now);

    Node *nowOf(const Node *before) const { return find(nowOf_, before); } // null: gone
    Node *beforeOf(const Node *now) const { return find(beforeOf_, now); } // null: new

private:
    using Map = std::unordered_map<const Node *, Node *>;
    static Node *find(const Map &map, const Node *node)
    {
        const auto found = map.find(node);
        return found == map.end() ? nullptr : found->second;
    }
    bool mayPair(const Node *before, const Node *now) const;
    void pair(const NodePtr &before, const NodePtr &now);

    Map nowOf_;
    Map beforeOf_;
};

} // namespace host::ma
