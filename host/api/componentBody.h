// SPDX-License-Identifier: Apache-2.0
// Components as MObject sees them: single-indexed ones, in ascending order without duplicates.
#pragma once

#include <vector>

#include "api/objectBody.h"
#include "scene/component.h"

namespace host
{

class ComponentBody : public ObjectBody
{
public:
    explicit ComponentBody(MFn::Type type) : type_(type) {}
    // A component of a selection.
    explicit ComponentBody(const Component &component);

    MFn::Type apiType() const override { return type_; }
    bool hasFn(MFn::Type type) const override;
    bool sameAs(const ObjectBody &other) const override;

    bool isComplete() const { return isComplete_; }
    // 0 to count - 1, without listing them.
    void setComplete(int count);
    void setIncomplete();
    int count() const { return isComplete_ ? completeCount_ : static_cast<int>(elements_.size()); }
    int element(int position) const; // REQUIRES: 0 <= position < count()
    // Constant time as long as elements come in ascending order. Makes the component incomplete.
    void add(int element);
    std::vector<int> elements() const;

private:
    MFn::Type type_;
    std::vector<int> elements_; // ascending, each once
    bool isComplete_ = false;
    int completeCount_ = 0;
};

// Kinds of mesh components in the scene and in the API; false if there is no counterpart.
bool toComponentKind(MFn::Type type, ComponentKind &kind);
MFn::Type toFnType(ComponentKind kind);

MObject toObject(const Component &component);
// False if the object is no component of a mesh.
bool toComponent(const MObject &object, Component &component);

} // namespace host
