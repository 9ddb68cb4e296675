// SPDX-License-Identifier: Apache-2.0
#include "scene/sceneEdit.h"

#include <algorithm>

namespace host
{

namespace
{

void enterNames(std::unordered_map<std::string, AttributePtr> &byName,
                const AttributePtr &attribute)
{
    byName.emplace(attribute->longName, attribute);
    byName.emplace(attribute->shortName, attribute);
    if (attribute->isLearned())
        return; // children of learned attributes are known by their path only
    for (const AttributePtr &child : attribute->children)
        enterNames(byName, child);
}

void eraseNames(std::unordered_map<std::string, AttributePtr> &byName,
                const AttributePtr &attribute)
{
    for (const std::string &name : {attribute->longName, attribute->shortName}) {
        const auto found = byName.find(name);
        if (found != byName.end() && found->second == attribute)
            byName.erase(found);
    }
    for (const AttributePtr &child : attribute->children)
        eraseNames(byName, child);
}

} // namespace

int SceneEdit::elementOf(const Plug &plug, const Attribute &top)
{
    const bool isWeights = plug.node->weights_ && top.longName == "weightList";
    return top.isArray && !isWeights ? plug.indices[0] : kNoIndex;
}

SceneEdit::SnapshotPtr SceneEdit::take(const Node &node, const Attribute *top, int element)
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

void SceneEdit::restore(Node &node, const Attribute *top, int element, const Snapshot &snapshot)
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

void SceneEdit::putBack(Node &node, const Attribute *top, int element, Snapshot &snapshot)
{
    if (snapshot.weights)
        node.weights_.swap(snapshot.weights);
    snapshot.weights.reset(); // first of all: this gives back what the change has taken
    if (element == kNoIndex && snapshot.datum) {
        std::swap(node.data_[top], *snapshot.datum);
        return;
    }
    restore(node, top, element, snapshot);
}

void SceneEdit::restoreElement(Datum &array, const Attribute &top, int element,
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

void SceneEdit::record(Scene &scene, const Plug &plug, const SnapshotPtr &before)
{
    const NodePtr node = plug.node;
    const Attribute *top = AttributeChain(*plug.attribute)[0];
    const int element = elementOf(plug, *top);
    const SnapshotPtr after = take(*node, top, element);
    // The attribute is held too: the node may lose it while the change sits in the queue.
    const AttributePtr held = plug.attribute;
    const auto change = [node, held, top, element](const SnapshotPtr &snapshot) {
        return [node, held, top, element, snapshot] {
            restore(*node, top, element, *snapshot);
            if (Scene *owner = node->scene())
                owner->isModified_ = true; // if it was saved meanwhile
        };
    };
    scene.recorder_->recordChange({change(before), change(after)});
}

PackedNumbers &SceneEdit::block(Datum &datum, const Attribute &array)
{
    if (!datum.packed)
        datum.packed = std::make_shared<PackedNumbers>(array.tupleSize());
    else if (datum.packed.use_count() > 1)
        datum.packed = std::make_shared<PackedNumbers>(*datum.packed);
    return *datum.packed;
}

void SceneEdit::addOwn(Node &node, const AttributePtr &attribute, std::size_t place)
{
    node.ownAttributes_.insert(node.ownAttributes_.begin() + long(place), attribute);
    try {
        enterNames(node.ownByName_, attribute);
    } catch (...) {
        removeOwn(node, attribute);
        throw;
    }
}

void SceneEdit::removeOwn(Node &node, const AttributePtr &attribute)
{
    auto &own = node.ownAttributes_;
    own.erase(std::remove(own.begin(), own.end(), attribute), own.end());
    eraseNames(node.ownByName_, attribute);
}

void SceneEdit::number(Node &node, Attribute &attribute)
{
    attribute.order = node.nextAttributeOrder_++;
    for (std::size_t i = 0; i < attribute.children.size(); ++i)
        number(node, *attribute.newChild(i));
}

} // namespace host
