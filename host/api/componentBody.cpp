// SPDX-License-Identifier: Apache-2.0
#include "api/componentBody.h"

#include <algorithm>
#include <numeric>

namespace host
{

namespace
{

struct KindPair {
    ComponentKind kind;
    MFn::Type type;
};

constexpr KindPair kKindPairs[] = {
    {ComponentKind::vertex, MFn::kMeshVertComponent},
    {ComponentKind::edge, MFn::kMeshEdgeComponent},
    {ComponentKind::face, MFn::kMeshPolygonComponent},
    {ComponentKind::uv, MFn::kMeshMapComponent},
};

} // namespace

bool toComponentKind(MFn::Type type, ComponentKind &kind)
{
    for (const KindPair &pair : kKindPairs) {
        if (pair.type == type) {
            kind = pair.kind;
            return true;
        }
    }
    return false;
}

MFn::Type toFnType(ComponentKind kind)
{
    for (const KindPair &pair : kKindPairs)
        if (pair.kind == kind)
            return pair.type;
    return MFn::kInvalid;
}

ComponentBody::ComponentBody(const Component &component)
    : type_(toFnType(component.kind)), elements_(component.elements)
{
}

bool ComponentBody::hasFn(MFn::Type type) const
{
    ComponentKind kind;
    return type == type_ || type == MFn::kBase || type == MFn::kComponent ||
           type == MFn::kSingleIndexedComponent ||
           (type == MFn::kMeshComponent && toComponentKind(type_, kind));
}

bool ComponentBody::sameAs(const ObjectBody &other) const
{
    const auto *body = dynamic_cast<const ComponentBody *>(&other);
    return body && (body == this || (body->type_ == type_ && body->elements() == elements()));
}

void ComponentBody::setComplete(int count)
{
    isComplete_ = true;
    completeCount_ = std::max(count, 0);
    elements_.clear();
}

void ComponentBody::setIncomplete()
{
    elements_ = elements();
    isComplete_ = false;
}

int ComponentBody::element(int position) const
{
    return isComplete_ ? position : elements_[static_cast<std::size_t>(position)];
}

void ComponentBody::add(int element)
{
    if (isComplete_) {
        if (element < completeCount_)
            return;
        setIncomplete();
    }
    if (elements_.empty() || element > elements_.back()) {
        elements_.push_back(element);
        return;
    }
    const auto place = std::lower_bound(elements_.begin(), elements_.end(), element);
    if (*place != element)
        elements_.insert(place, element);
}

std::vector<int> ComponentBody::elements() const
{
    if (!isComplete_)
        return elements_;
    std::vector<int> all(static_cast<std::size_t>(completeCount_));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

MObject toObject(const Component &component)
{
    return makeObject(std::make_shared<ComponentBody>(component));
}

bool toComponent(const MObject &object, Component &component)
{
    const auto body = bodyOf<ComponentBody>(object);
    if (!body || !toComponentKind(body->apiType(), component.kind))
        return false;
    component.elements = body->elements();
    return true;
}

} // namespace host
