// SPDX-License-Identifier: Apache-2.0
// What all component objects have in common.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnBase.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnComponent : public MFnBase
{
    declareMFnNoVoidConstructor(MFnComponent, MFnBase);

public:
    MFnComponent();
    int elementCount(MStatus *ReturnStatus = nullptr) const;
    MFn::Type componentType(MStatus *ReturnStatus = nullptr) const;
    bool isEmpty(MStatus *ReturnStatus = nullptr) const;
    bool isEqual(MObject &, MStatus *ReturnStatus = nullptr) const;
    bool isComplete(MStatus *ReturnStatus = nullptr) const;
    MStatus setComplete(bool);
    bool hasWeights() const;
    declareMFnNoVoidConstructorConstConstructor(MFnComponent, MFnBase);
};

MAYA_API_NAMESPACE_EXIT
