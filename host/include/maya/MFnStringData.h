// SPDX-License-Identifier: Apache-2.0
// A data object that holds one string.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnData.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnStringData : public MFnData
{
    declareMFn(MFnStringData, MFnData);

public:
    MString string(MStatus *ReturnStatus = nullptr) const;
    MStatus set(const MString &newString);
    MObject create(const MString &str, MStatus *ReturnStatus = nullptr);
    MObject create(MStatus *ReturnStatus = nullptr);
    declareMFnConstConstructor(MFnStringData, MFnData);
};

MAYA_API_NAMESPACE_EXIT
