// SPDX-License-Identifier: Apache-2.0
// A handle to something that Maya owns: a node, an attribute, a component, a data object or the
// plug-in itself. Stands in for Maya's header of this name; declarations only. Copies refer to the
// same thing. MObject::kNullObj is shared by all default arguments and must never be written.
#pragma once

#include <maya/MFn.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class FND_EXPORT MObject
{
public:
    MObject();
    MObject(const MObject &);
    ~MObject();
    bool hasFn(MFn::Type fs) const;
    bool isNull() const;
    MFn::Type apiType() const;
    const char *apiTypeStr() const;
    bool operator==(const MObject &) const;
    bool operator!=(const MObject &) const;
    MObject &operator=(const MObject &);
    static MObject kNullObj;

private:
    friend class host::ApiAccess;
    std::shared_ptr<host::ObjectBody> body_;
};

MAYA_API_NAMESPACE_EXIT
