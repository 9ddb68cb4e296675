// SPDX-License-Identifier: Apache-2.0
// Makes attributes that hold numbers or booleans.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnAttribute.h>
#include <maya/MFnNumericData.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnNumericAttribute : public MFnAttribute
{
    declareMFn(MFnNumericAttribute, MFnAttribute);

public:
    MObject create(const MString &fullName, const MString &briefName, MFnNumericData::Type unitType,
                   double defaultValue = 0, MStatus *ReturnStatus = nullptr);
    MFnNumericData::Type unitType(MStatus *ReturnStatus = nullptr) const;
    MStatus setMin(double);
    MStatus setMax(double);
    MStatus setDefault(bool);
    MStatus setDefault(int);
    MStatus setDefault(double);
    declareMFnConstConstructor(MFnNumericAttribute, MFnAttribute);
};

MAYA_API_NAMESPACE_EXIT
