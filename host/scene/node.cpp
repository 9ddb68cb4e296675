// SPDX-License-Identifier: Apache-2.0
#include "scene/node.h"

#include <algorithm>

#include "scene/dagPath.h"
#include "scene/plugAccess.h"
#include "scene/scene.h"

namespace host
{

Plug Connection::plug() const
{
    Plug result(node->shared_from_this(), attribute);
    result.indices = indices;
    return result;
}

Node::Node(Scene &scene, const NodeType &type, std::string name)
    : scene_(&scene), type_(&type), name_(std::move(name)), nextAttributeOrder_(type.orderEnd)
{
    if (isA("skinCluster"))
        weights_ = std::make_unique<skin::WeightStore>();
}

std::string Node::uniqueName() const
{
    if (!scene_ || scene_->nodesNamed(name_).size() <= 1 || !isDag())
        return name_;
    const DagPath path = DagPath::first(std::const_pointer_cast<Node>(shared_from_this()));
    return path.isNull() ? name_ : path.partialName();
}

std::vector<AttributePtr> Node::attributes() const
{
    std::vector<AttributePtr> all = type_->attributes;
    all.insert(all.end(), ownAttributes_.begin(), ownAttributes_.end());
    return all;
}

AttributePtr Node::findAttribute(std::string_view name) const
{
    if (AttributePtr declared = type_->find(name))
        return declared;
    const auto own = ownByName_.find(std::string(name));
    return own == ownByName_.end() ? nullptr : own->second;
}

Plug Node::plug(std::string_view attributeName) const
{
    return Plug(std::const_pointer_cast<Node>(shared_from_this()), findAttribute(attributeName));
}

const Datum *Node::datum(const Plug &plug) const
{
    const AttributeChain chain(*plug.attribute);
    const auto top = data_.find(chain[0]);
    if (top == data_.end())
        return nullptr;
    const Datum *datum = &top->second;
    for (unsigned i = 0; i < chain.size(); ++i) {
        if (i > 0) {
            const std::size_t place = placeAmongSiblings(*chain[i]);
            if (place >= datum->children.size())
                return nullptr;
            datum = &datum->children[place];
        }
        if (plug.indices[i] == kNoIndex)
            continue;
        const auto element = datum->elements.find(plug.indices[i]);
        if (element == datum->elements.end())
            return nullptr;
        datum = &element->second;
    }
    return datum;
}

Datum *Node::mutableDatum(const Plug &plug, bool create)
{
    const AttributeChain chain(*plug.attribute);
    if (!create && data_.find(chain[0]) == data_.end())
        return nullptr;
    Datum *datum = &data_[chain[0]];
    for (unsigned i = 0; i < chain.size(); ++i) {
        if (i > 0) {
            const std::size_t place = placeAmongSiblings(*chain[i]);
            if (place >= datum->children.size()) {
                if (!create)
                    return nullptr;
                datum->children.resize(chain[i]->parent->children.size());
            }
            datum = &datum->children[place];
        }
        if (plug.indices[i] == kNoIndex)
            continue;
        if (!create && datum->elements.find(plug.indices[i]) == datum->elements.end())
            return nullptr;
        datum = &datum->elements[plug.indices[i]];
    }
    return datum;
}

const PackedNumbers *Node::numbers(const Plug &wholeArray) const
{
    const Datum *found = datum(wholeArray);
    return found ? found->packed.get() : nullptr;
}

Value Node::storedValue(const Plug &plug) const
{
    if (isWeight(plug))
        return weights_->weight(std::size_t(plug.indices[0]), std::uint32_t(plug.indices[1]));
    const PackedPlace place = packedPlace(plug);
    if (place.array.attribute) {
        const PackedNumbers *block = numbers(place.array);
        const double *element = block ? block->find(place.index) : nullptr;
        return element ? element[place.component] : plug.attribute->defaultNumber;
    }
    const Datum *found = datum(plug);
    if (found && !std::holds_alternative<std::monostate>(found->value))
        return found->value;
    if (plug.attribute->isNumber())
        return plug.attribute->defaultNumber;
    return Value();
}

std::vector<int> Node::elementIndices(const Plug &wholeArray) const
{
    std::vector<int> indices;
    if (isWeightList(wholeArray)) {
        for (std::size_t v = weights_->nextRow(0); v < weights_->vertexCount();
             v = weights_->nextRow(v + 1))
            indices.push_back(int(v));
        return indices;
    }
    if (isWeightRow(wholeArray)) {
        for (const skin::Entry &entry : weights_->row(std::size_t(wholeArray.indices[0])))
            indices.push_back(int(entry.influence));
        return indices;
    }
    if (const PackedNumbers *block = numbers(wholeArray))
        return block->indices();
    if (const Datum *found = datum(wholeArray)) {
        for (const auto &element : found->elements) {
            for (int i = element.first; i <= std::max(element.first, element.second.rangeLast); ++i)
                indices.push_back(i);
        }
    }
    return indices;
}

std::size_t Node::elementCount(const Plug &wholeArray) const
{
    if (isWeightList(wholeArray))
        return weights_->rowCount();
    if (isWeightRow(wholeArray))
        return weights_->row(std::size_t(wholeArray.indices[0])).size();
    if (const PackedNumbers *block = numbers(wholeArray))
        return block->elementCount();
    std::size_t count = 0;
    if (const Datum *found = datum(wholeArray)) {
        for (const auto &element : found->elements)
            count +=
                std::size_t(std::max(element.first, element.second.rangeLast) - element.first) + 1;
    }
    return count;
}

bool Node::hasElement(const Plug &element) const
{
    const Plug array = element.array();
    const int index = element.ownIndex();
    if (isWeightList(array))
        return weights_->hasRow(std::size_t(index));
    if (isWeightRow(array))
        return weights_->weight(std::size_t(array.indices[0]), std::uint32_t(index)) != 0.0;
    if (const PackedNumbers *block = numbers(array))
        return block->has(index);
    const Datum *found = datum(array);
    if (!found || found->elements.empty())
        return false;
    auto place = found->elements.upper_bound(index);
    if (place == found->elements.begin())
        return false;
    --place;
    return index <= std::max(place->first, place->second.rangeLast);
}

PlugState Node::state(const Plug &plug) const
{
    const auto found = states_.find(PlugKey(plug));
    return found == states_.end() ? PlugState() : found->second;
}

const Connection *Node::source(const Plug &plug) const
{
    const auto found = sources_.find(PlugKey(plug));
    return found == sources_.end() ? nullptr : &found->second;
}

std::vector<Connection> Node::destinations(const Plug &plug) const
{
    const auto found = destinations_.find(PlugKey(plug));
    return found == destinations_.end() ? std::vector<Connection>() : found->second;
}

Plug Node::plugOf(const PlugKey &key) const
{
    // The map keys point at attributes that the node or its type owns.
    Plug result(std::const_pointer_cast<Node>(shared_from_this()), ownerOf(*this, *key.attribute));
    result.indices = key.indices;
    return result;
}

bool Node::isIntermediate() const
{
    return isDag() && toNumber(storedValue(plug("intermediateObject"))) != 0.0;
}

} // namespace host
