// SPDX-License-Identifier: Apache-2.0
// What an MObject refers to.
//
// Copies of an MObject share one body. Two objects are equal when their bodies mean the same thing,
// not only when they are the same body.
#pragma once

#include <memory>

#include <maya/MObject.h>

#include "api/apiAccess.h"

namespace host
{

class ObjectBody
{
public:
    virtual ~ObjectBody();
    virtual MFn::Type apiType() const = 0;
    virtual bool hasFn(MFn::Type type) const = 0;
    // REQUIRES: `other` may be of any kind.
    virtual bool sameAs(const ObjectBody &other) const { return this == &other; }
};

// An object on a body; null for none.
MObject makeObject(std::shared_ptr<ObjectBody> body);

// The body of an object, or of a function set, if it is of that kind; null otherwise.
template <class Body, class Handle>
std::shared_ptr<Body> bodyOf(const Handle &handle)
{
    return std::dynamic_pointer_cast<Body>(ApiAccess::body(handle));
}

// "kMesh" for MFn::kMesh; "kInvalid" for a number that is no kind.
const char *kindName(MFn::Type type);

} // namespace host
