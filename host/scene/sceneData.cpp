// SPDX-License-Identifier: Apache-2.0
// The values of attributes.
#include <algorithm>
#include <cmath>

#include "scene/plugAccess.h"
#include "scene/sceneEdit.h"

namespace host
{

namespace
{

double roundedToKind(double number, AttributeKind kind)
{
    switch (kind) {
    case AttributeKind::boolean:
        return number != 0.0 ? 1.0 : 0.0;
    case AttributeKind::integer:
    case AttributeKind::enumeration:
        return std::trunc(number);
    case AttributeKind::floating:
        return double(float(number));
    default:
        return number;
    }
}

} // namespace

void Scene::setValue(const Plug &plug, Value value)
{
    if (double *number = std::get_if<double>(&value))
        *number = roundedToKind(*number, plug.attribute->kind);
    SceneEdit::run(*this, plug, [&] {
        Node &node = *plug.node;
        if (isWeight(plug)) {
            node.weights_->setWeight(std::size_t(plug.indices[0]), std::uint32_t(plug.indices[1]),
                                     toNumber(value));
            return;
        }
        const PackedPlace place = packedPlace(plug);
        if (place.array.attribute) {
            const double fill = plug.attribute->defaultNumber;
            double *element = SceneEdit::block(node, place.array).findOrAdd(place.index, fill);
            element[place.component] = toNumber(value);
        } else {
            node.mutableDatum(plug, true)->value = std::move(value);
        }
    });
}

void Scene::setNumbers(const Plug &wholeArray, int first, const std::vector<double> &numbers)
{
    const Attribute &attribute = *wholeArray.attribute;
    const AttributeKind kind =
        attribute.isCompound() ? attribute.children.front()->kind : attribute.kind;
    std::vector<double> rounded = numbers;
    if (kind != AttributeKind::real) {
        for (double &number : rounded)
            number = roundedToKind(number, kind);
    }
    SceneEdit::run(*this, wholeArray, [&] {
        SceneEdit::block(*wholeArray.node, wholeArray)
            .setRun(first, rounded.data(), rounded.size() / attribute.tupleSize());
    });
}

void Scene::setOpaqueRange(const Plug &wholeArray, int first, int last, OpaqueValue value)
{
    SceneEdit::run(*this, wholeArray.element(first), [&] {
        Datum &element = *wholeArray.node->mutableDatum(wholeArray.element(first), true);
        element.value = std::move(value);
        element.rangeLast = last;
    });
}

void Scene::moveData(const NodePtr &from, const NodePtr &to, std::string_view attribute)
{
    const AttributePtr top = from->findAttribute(attribute);
    if (!top || to->findAttribute(attribute) != top)
        throw Error("'" + std::string(attribute) + "' can not be moved to '" + to->uniqueName() +
                    "'.");
    const auto data = from->data_.find(top.get());
    Datum moved = data == from->data_.end() ? Datum() : data->second;
    SceneEdit::run(*this, Plug(to, top), [&] { to->data_[top.get()] = std::move(moved); });
    SceneEdit::run(*this, Plug(from, top), [&] { from->data_.erase(top.get()); });
}

void Scene::addElement(const Plug &element)
{
    if (element.node->hasElement(element))
        return;
    SceneEdit::run(*this, element, [&] {
        Node &node = *element.node;
        if (isWeightList(element.array())) {
            node.weights_->addRow(std::size_t(element.ownIndex()));
        } else if (element.attribute->isPackedArray()) {
            const Attribute &attribute = *element.attribute;
            const std::vector<AttributePtr> &children = attribute.children;
            double *numbers = SceneEdit::block(node, element.array()).findOrAdd(element.ownIndex());
            for (unsigned i = 0; i < attribute.tupleSize(); ++i)
                numbers[i] =
                    children.empty() ? attribute.defaultNumber : children[i]->defaultNumber;
        } else if (!isWeightRow(element.array())) {
            node.mutableDatum(element, true);
        }
    });
}

void Scene::removeElement(const Plug &element)
{
    SceneEdit::run(*this, element, [&] {
        Node &node = *element.node;
        const Plug array = element.array();
        if (isWeightList(array))
            node.weights_->removeRow(std::size_t(element.ownIndex()));
        else if (isWeightRow(array))
            node.weights_->setWeight(std::size_t(array.indices[0]),
                                     std::uint32_t(element.ownIndex()), 0.0);
        else if (element.attribute->isPackedArray())
            SceneEdit::block(node, array).erase(element.ownIndex());
        else if (Datum *datum = node.mutableDatum(array, false))
            datum->elements.erase(element.ownIndex());
    });
}

void Scene::setState(const Plug &plug, const PlugState &state)
{
    const auto set = [node = plug.node, key = PlugKey(plug),
                      attribute = plug.attribute](const PlugState &value) {
        if (value.isDefault())
            node->states_.erase(key);
        else
            node->states_[key] = value;
    };
    perform([set, state] { set(state); }, [set, before = plug.node->state(plug)] { set(before); });
}

void Scene::setWeightRows(const NodePtr &skinCluster, const std::vector<std::size_t> &vertices,
                          const std::vector<std::vector<skin::WeightStore::Entry>> &rows)
{
    changeWeights(skinCluster, [&](skin::WeightStore &weights) {
        for (std::size_t i = 0; i < vertices.size(); ++i)
            weights.setRow(vertices[i], rows[i]);
    });
}

void Scene::changeWeights(const NodePtr &skinCluster,
                          const std::function<void(skin::WeightStore &weights)> &change)
{
    SceneEdit::run(*this, skinCluster->plug("weightList"), [&] { change(*skinCluster->weights_); });
}

skin::WeightStore &Scene::editWeights(const NodePtr &skinCluster)
{
    isModified_ = true;
    return *skinCluster->weights_;
}

} // namespace host
