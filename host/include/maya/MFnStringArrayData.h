// SPDX-License-Identifier: Apache-2.0
// A data object that holds strings.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnData.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnStringArrayData : public MFnData
{
    declareMFn(MFnStringArrayData, MFnData);

public:
    unsigned int length(MStatus *ReturnStatus = nullptr) const;
    MStatus set(const MString &element, unsigned int index);
    MStatus copyTo(MStringArray &) const;
    MStatus set(const MStringArray &newArray);
    MStringArray array(MStatus *ReturnStatus = nullptr);
    MObject create(MStatus *ReturnStatus = nullptr);
    MObject create(const MStringArray &in, MStatus *ReturnStatus = nullptr);
    const MString &operator[](unsigned int index) const;
    MString &operator[](unsigned int index);
    declareMFnConstConstructor(MFnStringArrayData, MFnData);
};

MAYA_API_NAMESPACE_EXIT
