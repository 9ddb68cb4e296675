// SPDX-License-Identifier: Apache-2.0
// Attributes as MObject sees them, before and after they are added to a node.
#pragma once

#include <maya/MFnBase.h>

#include "api/objectBody.h"
#include "scene/attribute.h"

namespace host
{

class AttributeBody : public ObjectBody
{
public:
    explicit AttributeBody(AttributePtr attributePtr) : attribute(std::move(attributePtr)) {}
    MFn::Type apiType() const override;
    bool hasFn(MFn::Type type) const override;
    bool sameAs(const ObjectBody &other) const override;

    const AttributePtr attribute; // never null
    // Made by a function set and not yet on a node: one attribute goes to one node only.
    bool isFree = false;
};

MObject toObject(const AttributePtr &attribute); // the null object for none
AttributePtr attributeOf(const MObject &object);
AttributePtr attributeOf(const MFnBase &functionSet);

// A new attribute for a function set's create(), with the defaults of Maya's (stored, readable,
// writable, connectable, cached). Null if the host has no such type or the long name is empty.
AttributePtr newAttribute(const MString &longName, const MString &shortName, const char *typeName);
// The object of a new attribute, attached to `functionSet`.
MObject attachNew(MFnBase &functionSet, const AttributePtr &attribute, MStatus *status);

} // namespace host
