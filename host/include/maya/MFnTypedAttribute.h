// SPDX-License-Identifier: Apache-2.0
// Makes attributes that hold a data object: strings, string arrays.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnAttribute.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnTypedAttribute : public MFnAttribute
{
    declareMFn(MFnTypedAttribute, MFnAttribute);

public:
    MObject create(const MString &fullName, const MString &briefName, MFnData::Type type,
                   MObject defaultData = MObject::kNullObj, MStatus *ReturnStatus = nullptr);
    MFnData::Type attrType(MStatus *ReturnStatus = nullptr) const;
    declareMFnConstConstructor(MFnTypedAttribute, MFnAttribute);
};

MAYA_API_NAMESPACE_EXIT
