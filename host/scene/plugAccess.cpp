// SPDX-License-Identifier: Apache-2.0
#include "scene/plugAccess.h"

namespace host
{

std::size_t placeAmongSiblings(const Attribute &attribute)
{
    if (!attribute.parent)
        return 0;
    const std::vector<AttributePtr> &siblings = attribute.parent->children;
    std::size_t place = 0;
    while (siblings[place].get() != &attribute)
        ++place;
    return place;
}

AttributePtr ownerOf(const Node &node, const Attribute &attribute)
{
    if (attribute.parent)
        return attribute.parent->children[placeAmongSiblings(attribute)];
    const AttributePtr byName = node.findAttribute(attribute.longName);
    if (byName.get() == &attribute)
        return byName;
    for (const AttributePtr &top : node.attributes()) {
        if (top.get() == &attribute)
            return top;
    }
    return nullptr;
}

PackedPlace packedPlace(const Plug &plug)
{
    PackedPlace place;
    const AttributePtr &attribute = plug.attribute;
    if (attribute->isPackedArray() && plug.isElement() && !attribute->isCompound()) {
        place.array = plug.array();
        place.index = plug.ownIndex();
    } else if (attribute->parent && attribute->parent->isPackedArray()) {
        const Plug element = plug.parent();
        if (!element.isElement())
            return place;
        place.array = element.array();
        place.index = element.ownIndex();
        place.component = unsigned(placeAmongSiblings(*attribute));
    }
    return place;
}

bool isWeightList(const Plug &plug)
{
    return plug.node->weights() && !plug.attribute->parent && plug.isWholeArray() &&
           plug.attribute->longName == "weightList";
}

namespace
{

bool isBelowWeightList(const Plug &plug)
{
    return plug.node->weights() && plug.attribute->parent && plug.indices[0] != kNoIndex &&
           plug.attribute->parent->longName == "weightList";
}

} // namespace

bool isWeightRow(const Plug &plug)
{
    return isBelowWeightList(plug) && plug.isWholeArray();
}

bool isWeight(const Plug &plug)
{
    return isBelowWeightList(plug) && plug.isElement();
}

} // namespace host
