// SPDX-License-Identifier: Apache-2.0
// Attributes of nodes and their values.
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "scene/plugAccess.h"
#include "scene/scene.h"

namespace host
{

// What Scene needs of a node's insides to put data back. A friend of both.
struct SceneEdit {
    // What is stored below one top-level attribute or, where a change stays within one element of a
    // top-level array, that element alone: undoing thousands of small edits must not keep thousands
    // of large arrays. Weights cost little whole, their copies share what was not written.
    struct Snapshot {
        std::optional<Datum> datum;
        std::vector<double> numbers; // of one element of a packed array; none if it did not exist
        std::unique_ptr<skin::WeightStore> weights;
    };
    using SnapshotPtr = std::shared_ptr<Snapshot>;

    // The element that a change at `plug` stays within; kNoIndex for the whole attribute.
    static int elementOf(const Plug &plug, const Attribute &top)
    {
        const bool isWeights = plug.node->weights_ && top.longName == "weightList";
        return top.isArray && !isWeights ? plug.indices[0] : kNoIndex;
    }

    static SnapshotPtr take(const Node &node, const Attribute *top, int element)
    {
        auto snapshot = std::make_shared<Snapshot>();
        const auto found = node.data_.find(top);
        const Datum *datum = found == node.data_.end() ? nullptr : &found->second;
        if (datum && element == kNoIndex) {
            snapshot->datum = *datum;
        } else if (datum && top->isPackedArray()) {
            const double *numbers = datum->packed ? datum->packed->find(element) : nullptr;
            if (numbers)
                snapshot->numbers.assign(numbers, numbers + top->tupleSize());
        } else if (datum) {
            const auto kept = datum->elements.find(element);
            if (kept != datum->elements.end())
                snapshot->datum = kept->second;
        }
        if (node.weights_ && top->longName == "weightList")
            snapshot->weights = std::make_unique<skin::WeightStore>(*node.weights_);
        return snapshot;
    }

    static void restore(Node &node, const Attribute *top, int element, const Snapshot &snapshot)
    {
        ++node.dataRevision_;
        if (element != kNoIndex)
            restoreElement(node.data_[top], *top, element, snapshot);
        else if (snapshot.datum)
            node.data_[top] = *snapshot.datum;
        if ((element == kNoIndex && !snapshot.datum) || node.data_[top].isEmpty())
            node.data_.erase(top);
        if (snapshot.weights)
            *node.weights_ = *snapshot.weights;
    }

    static void restoreElement(Datum &array, const Attribute &top, int element,
                               const Snapshot &snapshot)
    {
        if (!top.isPackedArray()) {
            if (snapshot.datum)
                array.elements[element] = *snapshot.datum;
            else
                array.elements.erase(element);
        } else if (snapshot.numbers.empty()) {
            block(array, top).erase(element);
        } else {
            std::copy(snapshot.numbers.begin(), snapshot.numbers.end(),
                      block(array, top).findOrAdd(element));
        }
    }

    // Runs `change` on the data at `plug` and records how to go back and forth.
    template <typename Function>
    static void run(Scene &scene, const Plug &plug, Function change)
    {
        const NodePtr node = plug.node;
        ++node->dataRevision_;
        if (!scene.isRecording()) {
            change();
            scene.isModified_ = true;
            return;
        }
        const Attribute *top = AttributeChain(*plug.attribute)[0];
        const int element = elementOf(plug, *top);
        const SnapshotPtr before = take(*node, top, element);
        change();
        const SnapshotPtr after = take(*node, top, element);
        scene.isModified_ = true;
        // The attribute is held too: the node may lose it while the change sits in the queue.
        const AttributePtr held = plug.attribute;
        scene.recorder_->recordChange(
            {[node, held, top, element, before] { restore(*node, top, element, *before); },
             [node, held, top, element, after] { restore(*node, top, element, *after); }});
    }

    // The block behind a packed array, ready to be written.
    static PackedNumbers &block(Datum &datum, const Attribute &array)
    {
        if (!datum.packed)
            datum.packed = std::make_shared<PackedNumbers>(array.tupleSize());
        else if (datum.packed.use_count() > 1)
            datum.packed = std::make_shared<PackedNumbers>(*datum.packed);
        return *datum.packed;
    }
    static PackedNumbers &block(Node &node, const Plug &wholeArray)
    {
        return block(*node.mutableDatum(wholeArray, true), *wholeArray.attribute);
    }

    static void addOwn(Node &node, const AttributePtr &attribute, std::size_t place)
    {
        node.ownAttributes_.insert(node.ownAttributes_.begin() + long(place), attribute);
        enterOwnNames(node, attribute);
    }

    static void removeOwn(Node &node, const AttributePtr &attribute)
    {
        auto &own = node.ownAttributes_;
        own.erase(std::remove(own.begin(), own.end(), attribute), own.end());
        node.ownByName_.clear();
        for (const AttributePtr &other : own)
            enterOwnNames(node, other);
    }

    static void number(Node &node, const AttributePtr &attribute)
    {
        attribute->order = node.nextAttributeOrder_++;
        for (const AttributePtr &child : attribute->children)
            number(node, child);
    }

private:
    static void enterOwnNames(Node &node, const AttributePtr &attribute)
    {
        node.ownByName_.emplace(attribute->longName, attribute);
        node.ownByName_.emplace(attribute->shortName, attribute);
        if (attribute->isLearned())
            return; // children of learned attributes are known by their path only
        for (const AttributePtr &child : attribute->children)
            enterOwnNames(node, child);
    }
};

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

void refuseTakenNames(const Node &node, const Attribute &attribute)
{
    for (const std::string &name : {attribute.longName, attribute.shortName}) {
        if (node.findAttribute(name))
            throw Error("Found an attribute named '" + name + "' on '" + node.uniqueName() +
                        "' already.");
    }
    for (const AttributePtr &child : attribute.children)
        refuseTakenNames(node, *child);
}

bool isBelow(const Attribute *attribute, const Attribute &top)
{
    while (attribute && attribute != &top)
        attribute = attribute->parent;
    return attribute != nullptr;
}

// Source and destination of each connection of the attribute and its children.
std::vector<std::pair<Plug, Plug>> connectionsBelow(const Node &node, const Attribute &top)
{
    std::vector<std::pair<Plug, Plug>> connections;
    for (const auto &[key, source] : node.sources()) {
        if (isBelow(key.attribute, top))
            connections.emplace_back(source.plug(), node.plugOf(key));
    }
    for (const auto &[key, ends] : node.allDestinations()) {
        for (const Connection &end : ends) {
            if (isBelow(key.attribute, top))
                connections.emplace_back(node.plugOf(key), end.plug());
        }
    }
    return connections;
}

std::vector<Plug> plugsWithStateBelow(const Node &node, const Attribute &top)
{
    std::vector<Plug> plugs;
    for (const auto &entry : node.states()) {
        if (isBelow(entry.first.attribute, top))
            plugs.push_back(node.plugOf(entry.first));
    }
    return plugs;
}

} // namespace

void Scene::addAttribute(const NodePtr &node, const AttributePtr &attribute)
{
    if (node->isLocked())
        throw Error("Can not add attributes to the locked node '" + node->uniqueName() + "'.");
    refuseTakenNames(*node, *attribute);
    SceneEdit::number(*node, attribute);
    perform(
        [node, attribute] { SceneEdit::addOwn(*node, attribute, node->ownAttributes().size()); },
        [node, attribute] { SceneEdit::removeOwn(*node, attribute); });
}

void Scene::removeAttribute(const NodePtr &node, const AttributePtr &attribute)
{
    const std::vector<AttributePtr> &own = node->ownAttributes();
    const auto found = std::find(own.begin(), own.end(), attribute);
    if (found == own.end())
        throw Error("'" + attribute->longName + "' is no dynamic attribute of '" +
                    node->uniqueName() + "'.");
    const std::size_t place = std::size_t(found - own.begin());
    for (const auto &[source, destination] : connectionsBelow(*node, *attribute)) {
        if (destination.node->source(destination)) // one within the attribute is listed twice
            disconnect(source, destination);
    }
    for (const Plug &plug : plugsWithStateBelow(*node, *attribute))
        setState(plug, PlugState());
    SceneEdit::run(*this, Plug(node, attribute), [&] { node->data_.erase(attribute.get()); });
    perform([node, attribute] { SceneEdit::removeOwn(*node, attribute); },
            [node, attribute, place] { SceneEdit::addOwn(*node, attribute, place); });
}

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
