// SPDX-License-Identifier: Apache-2.0
// The types of numeric attributes.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnData.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnNumericData : public MFnData
{
    declareMFn(MFnNumericData, MFnData);

public:
    enum Type {
        kInvalid,
        kBoolean,
        kByte,
        kChar,
        kShort,
        k2Short,
        k3Short,
        kLong,
        kInt = kLong,
        k2Long,
        k2Int = k2Long,
        k3Long,
        k3Int = k3Long,
        kInt64,
        kFloat,
        k2Float,
        k3Float,
        kDouble,
        k2Double,
        k3Double,
        k4Double,
        kAddr,
        kLast
    };
    declareMFnConstConstructor(MFnNumericData, MFnData);
};

MAYA_API_NAMESPACE_EXIT
