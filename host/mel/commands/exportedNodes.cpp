// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/exportedNodes.h"

#include <algorithm>

#include "scene/scene.h"

namespace host::mel
{

namespace
{

class Collection
{
public:
    std::unordered_set<const Node *> nodes;

    void take(const Node &node)
    {
        const bool isWorld = node.isDag() && node.parents().empty();
        if (!isWorld && !node.isDefault() && nodes.insert(&node).second)
            waiting_.push_back(&node);
    }

    void takeBelow(const Node &node)
    {
        std::vector<const Node *> open{&node};
        std::unordered_set<const Node *> seen;
        while (!open.empty()) {
            const Node *step = open.back();
            open.pop_back();
            if (!seen.insert(step).second)
                continue;
            take(*step);
            for (const NodePtr &child : step->children())
                open.push_back(child.get());
        }
    }

    void takeMembers(const Node &set)
    {
        for (const auto &[key, source] : set.sources()) {
            if (isMembership(*key.attribute))
                takeBelow(*source.node);
        }
    }

    void takeWhatTheyNeed()
    {
        while (!waiting_.empty()) {
            const Node &node = *waiting_.back();
            waiting_.pop_back();
            for (const Node *parent : node.parents())
                take(*parent);
            takeSources(node);
            takeShading(node);
        }
    }

private:
    // A set is needed by its members, the other members are not.
    static bool isMembership(const Attribute &attribute)
    {
        const std::string &name = attribute.longName;
        return name == "dagSetMembers" || name == "dnSetMembers" || name == "groupNodes";
    }

    void takeSources(const Node &node)
    {
        const bool isSet = node.isA("objectSet");
        for (const auto &[key, source] : node.sources()) {
            if (!isSet || !isMembership(*key.attribute))
                take(*source.node);
        }
    }

    // Shading groups of a shape, and what the editors of Maya know a material by.
    void takeShading(const Node &node)
    {
        const bool isGroup = node.isA("shadingEngine");
        if (!isGroup && !node.isDag())
            return;
        for (const auto &entry : node.allDestinations()) {
            for (const Connection &end : entry.second) {
                if (end.node->isA(isGroup ? "materialInfo" : "shadingEngine"))
                    take(*end.node);
            }
        }
    }

    std::vector<const Node *> waiting_; // taken, but not what they need
};

} // namespace

std::unordered_set<const Node *> nodesToExport(const std::vector<SelectionItem> &selection)
{
    Collection collection;
    for (const SelectionItem &item : selection) {
        collection.takeBelow(*item.node);
        if (item.node->isA("objectSet"))
            collection.takeMembers(*item.node);
    }
    collection.takeWhatTheyNeed();
    return std::move(collection.nodes);
}

} // namespace host::mel
