// SPDX-License-Identifier: Apache-2.0
#include <maya/MObjectHandle.h>

#include <functional>

#include "api/nodeBody.h"

namespace
{

// Objects other than nodes live as long as something refers to them.
bool isKept(const MObject &object)
{
    const auto body = host::bodyOf<host::NodeBody>(object);
    return body ? body->node() != nullptr : !object.isNull();
}

} // namespace

MObjectHandle::MObjectHandle() = default;
MObjectHandle::MObjectHandle(const MObject &object) : object_(object) {}
MObjectHandle::MObjectHandle(const MObjectHandle &other) = default;
MObjectHandle::~MObjectHandle() = default;
MObjectHandle &MObjectHandle::operator=(const MObjectHandle &other) = default;

MObjectHandle &MObjectHandle::operator=(const MObject &object)
{
    object_ = object;
    return *this;
}

MObject MObjectHandle::object() const
{
    return objectRef();
}

const MObject &MObjectHandle::objectRef() const
{
    static const MObject kNone; // an object of its own: kNullObj can be written to by mistake
    return isKept(object_) ? object_ : kNone;
}

unsigned int MObjectHandle::hashCode() const
{
    const auto body = host::bodyOf<host::NodeBody>(object_);
    return body ? static_cast<unsigned int>(std::hash<const void *>()(body->identity())) : 0;
}

bool MObjectHandle::isAlive() const
{
    return isKept(object_);
}

bool MObjectHandle::isValid() const
{
    const auto body = host::bodyOf<host::NodeBody>(object_);
    return body ? host::nodeOf(object_) != nullptr : !object_.isNull();
}

bool MObjectHandle::operator==(const MObject &object) const
{
    return object_ == object;
}
bool MObjectHandle::operator==(const MObjectHandle &other) const
{
    return object_ == other.object_;
}
bool MObjectHandle::operator!=(const MObject &object) const
{
    return !(*this == object);
}
bool MObjectHandle::operator!=(const MObjectHandle &other) const
{
    return !(*this == other);
}
