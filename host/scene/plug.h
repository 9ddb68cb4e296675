// SPDX-License-Identifier: Apache-2.0
// A plug: one attribute of one node, with the logical indices of the arrays on the way to it.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "scene/attribute.h"

namespace host
{

class Node;
using NodePtr = std::shared_ptr<Node>;

// Stands where an array has no index chosen: the plug is then the array itself, or (on an ancestor)
// not yet complete.
constexpr int kNoIndex = -1;

// indices[k] belongs to the k-th attribute from the top level down; it is kNoIndex for attributes
// that are no arrays.
using PlugIndices = std::array<int, kMaxAttributeDepth>;

struct Plug {
    NodePtr node;
    AttributePtr attribute;
    PlugIndices indices;

    Plug() { indices.fill(kNoIndex); }
    Plug(NodePtr plugNode, AttributePtr plugAttribute);

    bool isNull() const { return !attribute; }
    // The index of this plug's own attribute; kNoIndex for the array itself and for no array.
    int ownIndex() const;
    // True for an array plug without an index: the whole multi.
    bool isWholeArray() const;
    // True for an element of an array.
    bool isElement() const;
    // True when every array on the way has its index, the attribute's own too if it is an array.
    bool isComplete() const;

    Plug element(int logicalIndex) const; // REQUIRES: isWholeArray()
    Plug array() const;                   // REQUIRES: isElement()
    Plug child(const AttributePtr &childAttribute) const;
    Plug parent() const; // the element or compound that holds it; null plug at top level

    // "weightList[3].weights[0]", short names on request; the own index only where there is one.
    std::string path(bool shortNames = false) const;
    // "node.weightList[3].weights[0]" with the node's shortest unique name.
    std::string name(bool shortNames = false) const;

    bool operator==(const Plug &other) const
    {
        return node == other.node && attribute == other.attribute && indices == other.indices;
    }
    bool operator!=(const Plug &other) const { return !(*this == other); }
};

// What identifies a plug among those of its node; orders them as the node lists its attributes.
struct PlugKey {
    const Attribute *attribute;
    PlugIndices indices;
    explicit PlugKey(const Plug &plug) : attribute(plug.attribute.get()), indices(plug.indices) {}
    bool operator<(const PlugKey &other) const
    {
        return attribute != other.attribute ? attribute->order < other.attribute->order
                                            : indices < other.indices;
    }
};

// What setAttr -lock, -keyable, -channelBox and -alteredValue left on a plug.
struct PlugState {
    bool isLocked = false;
    std::optional<bool> isKeyable; // unset: as the attribute says
    std::optional<bool> isChannelBox;
    bool isAltered = false; // the value is only kept beneath a connection (-av)
    bool isDefault() const { return !isLocked && !isKeyable && !isChannelBox && !isAltered; }
};

// A plug path with at most one range of indices: "wl[0:2].w", "vt[0:165]", "tx".
struct PlugRange {
    Plug plug;           // at the range's first index
    int rangeDepth = -1; // which entry of plug.indices runs; -1: no range
    int last = kNoIndex; // the range's last index, included

    int first() const { return rangeDepth < 0 ? 0 : plug.indices[unsigned(rangeDepth)]; }
    unsigned count() const { return rangeDepth < 0 ? 1u : unsigned(last - first()) + 1u; }
    Plug at(unsigned offset) const; // REQUIRES: offset < count()
};

// What to do with a name that says more than is known: an attribute that the node does not have, an
// index on a learned attribute that is no array so far.
enum class UnknownAttribute {
    refuse,     // for questions: nothing changes
    learnShape, // attributes are refused, and indices where the attribute holds anything as no
                // array
    learn       // for files, which know better
};

// Finds "attr[3].child[0:7]" (long or short names, without node and dot) on `node`. A per-instance
// array that is followed by a child gets index 0 when the path leaves it out. Throws Error on a
// syntax error, nesting beyond kMaxAttributeDepth, and, as `unknown` says, "No object matches
// name".
PlugRange resolvePlugPath(const NodePtr &node, std::string_view path, UnknownAttribute unknown);

} // namespace host
