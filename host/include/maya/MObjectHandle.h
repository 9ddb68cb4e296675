// SPDX-License-Identifier: Apache-2.0
// A reference to a node that can be asked whether the node still exists.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MObjectHandle
{
public:
    MObjectHandle();
    MObjectHandle(const MObject &);
    MObjectHandle(const MObjectHandle &);
    ~MObjectHandle();
    MObject object() const;
    const MObject &objectRef() const;
    unsigned int hashCode() const;
    bool isValid() const;
    bool isAlive() const;
    bool operator==(const MObject &) const;
    bool operator==(const MObjectHandle &) const;
    bool operator!=(const MObject &) const;
    bool operator!=(const MObjectHandle &) const;
    MObjectHandle &operator=(const MObject &);
    MObjectHandle &operator=(const MObjectHandle &);

private:
    friend class host::ApiAccess;
    MObject object_;
};

MAYA_API_NAMESPACE_EXIT
