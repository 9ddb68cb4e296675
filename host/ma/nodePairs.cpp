// SPDX-License-Identifier: Apache-2.0
#include "ma/nodePairs.h"

#include <functional>

namespace host::ma
{

namespace
{

Node *parentOf(const Node &node)
{
    return node.isDag() && !node.parents().empty() ? node.parents().front() : nullptr;
}

// A name and the node below which it holds.
struct Place {
    const Node *parent;
    std::string name;
    bool operator==(const Place &other) const
    {
        return parent == other.parent && name == other.name;
    }
};
struct PlaceHash {
    std::size_t operator()(const Place &place) const
    {
        return std::hash<std::string>()(place.name) ^
               (std::hash<const void *>()(place.parent) << 1);
    }
};
using Places = std::unordered_map<Place, Node *, PlaceHash>;

Places placesOf(const std::vector<NodePtr> &nodes)
{
    Places places;
    for (const NodePtr &node : nodes)
        places.emplace(Place{parentOf(*node), node->name()}, node.get());
    return places;
}

template <typename Map, typename Key>
Node *findIn(const Map &map, const Key &key)
{
    const auto found = map.find(key);
    return found == map.end() ? nullptr : found->second;
}

} // namespace

NodePairs::NodePairs(const Scene &before, const Scene &now)
{
    pair(before.world(), now.world());
    const std::vector<NodePtr> nodesNow = now.nodes();
    const std::vector<NodePtr> nodesBefore = before.nodes();
    const Places placesNow = placesOf(nodesNow);
    const Places placesBefore = placesOf(nodesBefore);
    std::unordered_map<std::string, Node *> byUuid;
    std::unordered_map<const Node *, Node *> next; // in the order of creation
    for (std::size_t i = 0; i < nodesNow.size(); ++i) {
        if (!nodesNow[i]->uuid().empty())
            byUuid.emplace(nodesNow[i]->uuid(), nodesNow[i].get());
        next.emplace(i == 0 ? nullptr : nodesNow[i - 1].get(), nodesNow[i].get());
    }
    const Node *last = nullptr;
    for (const NodePtr &node : nodesBefore) {
        const Node *parent = parentOf(*node);
        const bool hasPlace = !parent || nowOf(parent);
        Node *found = node->uuid().empty() ? nullptr : findIn(byUuid, node->uuid());
        if (!mayPair(node.get(), found))
            found = hasPlace ? findIn(placesNow, Place{nowOf(parent), node->name()}) : nullptr;
        if (!mayPair(node.get(), found)) {
            found = findIn(next, last);
            const Node *above = found ? parentOf(*found) : nullptr;
            // Not where another node of before stands.
            if (found && (!above || beforeOf(above)) &&
                findIn(placesBefore, Place{beforeOf(above), found->name()}))
                found = nullptr;
        }
        if (!mayPair(node.get(), found))
            continue;
        pair(node, found->shared_from_this());
        last = found;
    }
}

bool NodePairs::mayPair(const Node *before, const Node *now) const
{
    return now && !beforeOf(now) && before->type().name == now->type().name &&
           before->isDefault() == now->isDefault() &&
           (before->uuid().empty() || now->uuid().empty() || before->uuid() == now->uuid());
}

void NodePairs::pair(const NodePtr &before, const NodePtr &now)
{
    nowOf_.emplace(before.get(), now.get());
    beforeOf_.emplace(now.get(), before.get());
}

} // namespace host::ma
