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
    // Made by a function set: may be changed until a node has it.
    explicit AttributeBody(const NewAttributePtr &newAttribute)
        : attribute(newAttribute), draft(newAttribute)
    {
    }
    MFn::Type apiType() const override;
    bool hasFn(MFn::Type type) const override;
    bool sameAs(const ObjectBody &other) const override;

    const AttributePtr attribute; // never null
    // `attribute` as long as no node has it, then null: one attribute goes to one node only.
    NewAttributePtr draft;
};

MObject toObject(const AttributePtr &attribute); // the null object for none
AttributePtr attributeOf(const MObject &object);
AttributePtr attributeOf(const MFnBase &functionSet);
NewAttributePtr draftOf(const MFnBase &functionSet); // null once a node has the attribute

// A new attribute for a function set's create(), with the defaults of Maya's (stored, readable,
// writable, connectable, cached). Null if the host has no such type or the long name is empty.
NewAttributePtr newAttribute(const MString &longName, const MString &shortName,
                             const char *typeName);
// The object of a new attribute, attached to `functionSet`.
MObject attachNew(MFnBase &functionSet, const NewAttributePtr &attribute, MStatus *status);

} // namespace host
