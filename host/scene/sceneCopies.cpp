// SPDX-License-Identifier: Apache-2.0
// Giving a node what another one holds.
#include <unordered_map>

#include "scene/sceneEdit.h"

namespace host
{

namespace
{

using Copies = std::unordered_map<const Attribute *, AttributePtr>;

// A copy with copies of all children; it has no parent.
NewAttributePtr copyOf(const AttributePtr &original, Copies &copies)
{
    const auto copy = std::make_shared<Attribute>(*original);
    copy->parent = nullptr;
    copy->children.clear();
    for (const AttributePtr &child : original->children)
        copy->addChild(copyOf(child, copies));
    copies.emplace(original.get(), copy);
    return copy;
}

} // namespace

void Scene::copyData(const NodePtr &from, const NodePtr &to)
{
    const RecordingPause pause(*this);
    Copies copies;
    for (const AttributePtr &attribute : from->ownAttributes()) {
        const NewAttributePtr copy = copyOf(attribute, copies);
        SceneEdit::number(*to, *copy);
        SceneEdit::addOwn(*to, copy, to->ownAttributes().size());
    }
    for (const auto &[attribute, datum] : from->data_) {
        const auto copy = copies.find(attribute);
        if (!attribute->isPerInstance)
            to->data_[copy == copies.end() ? attribute : copy->second.get()] = datum;
    }
    for (const auto &[key, state] : from->states_) {
        Plug plug = from->plugOf(key);
        const auto copy = copies.find(key.attribute);
        plug.node = to;
        if (copy != copies.end())
            plug.attribute = copy->second;
        setState(plug, state);
    }
    ++to->dataRevision_;
    isModified_ = true;
}

void Scene::copyData(const NodePtr &from, const NodePtr &to, std::string_view attribute)
{
    const AttributePtr top = from->findAttribute(attribute);
    if (!top || to->findAttribute(attribute) != top)
        throw Error("'" + std::string(attribute) + "' can not be copied to '" + to->uniqueName() +
                    "'.");
    const auto data = from->data_.find(top.get());
    if (data == from->data_.end())
        to->data_.erase(top.get());
    else
        to->data_[top.get()] = data->second;
    ++to->dataRevision_;
    isModified_ = true;
}

} // namespace host
