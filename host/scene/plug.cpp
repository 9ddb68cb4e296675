// SPDX-License-Identifier: Apache-2.0
#include "scene/plug.h"

#include "scene/node.h"

namespace host
{

namespace
{

// The attributes from the top level down to `attribute`; returns how many.
unsigned chainOf(const Attribute *attribute,
                 std::array<const Attribute *, kMaxAttributeDepth> &chain)
{
    const unsigned depth = attribute->depth();
    unsigned place = depth;
    for (const Attribute *step = attribute; step; step = step->parent)
        chain[--place] = step;
    return depth;
}

} // namespace

Plug::Plug(NodePtr plugNode, AttributePtr plugAttribute)
    : node(std::move(plugNode)), attribute(std::move(plugAttribute))
{
    indices.fill(kNoIndex);
}

int Plug::ownIndex() const
{
    return indices[attribute->depth() - 1];
}

bool Plug::isWholeArray() const
{
    return attribute->isArray && ownIndex() == kNoIndex;
}

bool Plug::isElement() const
{
    return attribute->isArray && ownIndex() != kNoIndex;
}

bool Plug::isComplete() const
{
    std::array<const Attribute *, kMaxAttributeDepth> chain;
    const unsigned depth = chainOf(attribute.get(), chain);
    for (unsigned i = 0; i < depth; ++i) {
        if (chain[i]->isArray && indices[i] == kNoIndex)
            return false;
    }
    return true;
}

Plug Plug::element(int logicalIndex) const
{
    Plug result = *this;
    result.indices[attribute->depth() - 1] = logicalIndex;
    return result;
}

Plug Plug::array() const
{
    return element(kNoIndex);
}

Plug Plug::child(const AttributePtr &childAttribute) const
{
    Plug result = *this;
    result.attribute = childAttribute;
    return result;
}

Plug Plug::parent() const
{
    if (isElement())
        return array();
    if (!attribute->parent)
        return Plug();
    Plug result = *this;
    const Attribute *above = attribute->parent;
    // The shared pointer of the parent is held by its own parent, or by the node.
    result.attribute = above->parent ? above->parent->child(above->longName)
                                     : node->findAttribute(above->longName);
    return result;
}

std::string Plug::path(bool shortNames) const
{
    std::array<const Attribute *, kMaxAttributeDepth> chain;
    const unsigned depth = chainOf(attribute.get(), chain);
    std::string text;
    for (unsigned i = 0; i < depth; ++i) {
        // A child is named through its parents only where an index has to be given, as Maya does:
        // "translateX", but "instObjGroups[0].objectGroups[1]".
        if (i + 1 < depth && !chain[i]->isArray && text.empty() && !chain[i + 1]->isArray &&
            chain[i]->isTuple())
            continue;
        if (!text.empty())
            text += '.';
        text += shortNames ? chain[i]->shortName : chain[i]->longName;
        if (indices[i] != kNoIndex)
            text += '[' + std::to_string(indices[i]) + ']';
    }
    return text;
}

std::string Plug::name(bool shortNames) const
{
    return node->uniqueName() + '.' + path(shortNames);
}

Plug PlugRange::at(unsigned offset) const
{
    Plug result = plug;
    if (rangeDepth >= 0)
        result.indices[unsigned(rangeDepth)] += int(offset);
    return result;
}

} // namespace host
