// SPDX-License-Identifier: Apache-2.0
// In what two scenes differ, as far as a file would say it: what reads back equal is equal.
//
// `before` is what a file says, `now` the scene that is to be saved. Nothing is kept of the scenes
// but pointers.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ma/nodePairs.h"
#include "ma/valueWriter.h"

namespace host::ma
{

// A top-level attribute in both scenes; null where its node has none of that name.
struct AttributePair {
    AttributePtr before;
    AttributePtr now;
};

// What makes a node what it is beside its values and connections.
bool hasSameHead(const NodePairs &pairs, const Node &before, const Node &now);

// Whether the same plugs have connections: what these bring back is not written.
bool haveSamePlugs(const Node &before, const Node &now);

// The top-level attributes whose values, or states of plugs, differ; those of no value in either
// scene are not looked at.
std::vector<AttributePair> differentValues(const NodePtr &before, const NodePtr &now);

// Dynamic attributes that are defined otherwise or in one of the scenes only.
std::vector<AttributePair> differentDefinitions(const Node &before, const Node &now);

// The attribute or plug of `now` that is the same as one of `before`; null if there is none.
AttributePtr attributeNow(const Attribute &before, const Node &now);
Plug plugNow(const NodePairs &pairs, const Plug &before);

// Whether a connection into `before` comes from the same plug in both scenes.
bool isSameConnection(const NodePairs &pairs, const Connection &before, const Connection &now);

// The first thing that tells the scenes apart, in words for a developer; empty if they are equal.
// Attributes with other values go into `values`, which are no such thing, unless it is null.
using DifferentValues = std::vector<std::pair<const Node *, const Attribute *>>; // of `now`
std::string firstDifference(const Scene &before, const Scene &now, DifferentValues *values);

} // namespace host::ma
