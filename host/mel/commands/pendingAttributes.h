// SPDX-License-Identifier: Apache-2.0
// Compounds whose children are not all there yet.
//
// addAttr declares a compound with its number of children and then each child by a call of its own;
// the node gets the attribute when the last one, however deep, has come.
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "scene/scene.h"

namespace host::mel
{

class PendingAttributes
{
public:
    // Takes in an attribute that waits for `childCount` children (0 for a leaf) below the pending
    // compound `parent`, or at the top of `node` if that is null. Returns the top-level attribute
    // that this completed; it is no longer pending then. Null if something is still missing.
    NewAttributePtr add(const NodePtr &node, const NewAttributePtr &parent,
                        const NewAttributePtr &attribute, unsigned childCount);
    // The pending compound of that long or short name; null if there is none.
    NewAttributePtr find(const NodePtr &node, std::string_view name) const;
    // Drops what waits on nodes that are gone.
    void dropDeleted();

private:
    struct Tree {
        std::weak_ptr<Node> node;
        NewAttributePtr root;
        std::map<const Attribute *, unsigned> childCounts; // of the compounds, when complete
    };
    Tree *treeOf(const NodePtr &node, const Attribute &member);
    std::vector<Tree> trees_;
};

} // namespace host::mel
