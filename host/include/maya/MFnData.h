// SPDX-License-Identifier: Apache-2.0
// What the data objects of typed attributes have in common.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnBase.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnData : public MFnBase
{
    declareMFnNoVoidConstructor(MFnData, MFnBase);

public:
    MFnData();
    enum Type {
        kInvalid,
        kNumeric,
        kPlugin,
        kPluginGeometry,
        kString,
        kMatrix,
        kStringArray,
        kDoubleArray,
        kFloatArray,
        kIntArray,
        kPointArray,
        kVectorArray,
        kMatrixArray,
        kComponentList,
        kMesh,
        kLattice,
        kNurbsCurve,
        kNurbsSurface,
        kSphere,
        kDynArrayAttrs,
        kDynSweptGeometry,
        kSubdSurface,
        kNObject,
        kNId,
        kAny,
        kLast
    };
    declareMFnNoVoidConstructorConstConstructor(MFnData, MFnBase);
};

MAYA_API_NAMESPACE_EXIT
