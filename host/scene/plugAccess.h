// SPDX-License-Identifier: Apache-2.0
// How plugs map to stored data: shared by the sources of Node and Scene.
#pragma once

#include <array>

#include "scene/node.h"

namespace host
{

// The attributes from the top level down to one attribute.
class AttributeChain
{
public:
    explicit AttributeChain(const Attribute &attribute)
    {
        size_ = attribute.depth();
        unsigned place = size_;
        for (const Attribute *step = &attribute; step; step = step->parent)
            steps_[--place] = step;
    }
    unsigned size() const { return size_; }
    const Attribute *operator[](unsigned depth) const { return steps_[depth]; }

private:
    std::array<const Attribute *, kMaxAttributeDepth> steps_;
    unsigned size_;
};

// Position among the children of its parent; 0 at top level.
std::size_t placeAmongSiblings(const Attribute &attribute);

// The shared pointer to an attribute of a node, found through its parents.
AttributePtr ownerOf(const Node &node, const Attribute &attribute);

// Whether a node has data or connections at an attribute or below, in any element above it.
bool holdsAnything(const Node &node, const Attribute &attribute);

// Where a number of a packed array lies. `array` is a null plug when the plug is no such number.
struct PackedPlace {
    Plug array;
    int index = kNoIndex;
    unsigned component = 0;
};
PackedPlace packedPlace(const Plug &plug);

// weightList itself, weightList[v].weights, and weightList[v].weights[i] of a skin cluster.
bool isWeightList(const Plug &plug);
bool isWeightRow(const Plug &plug);
bool isWeight(const Plug &plug);

} // namespace host
