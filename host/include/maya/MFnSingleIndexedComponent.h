// SPDX-License-Identifier: Apache-2.0
// Components with one number each, such as vertices, in ascending order without duplicates.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnBase.h>
#include <maya/MFnComponent.h>
#include <maya/MString.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnSingleIndexedComponent : public MFnComponent
{
    declareMFn(MFnSingleIndexedComponent, MFnComponent);

public:
    MObject create(MFn::Type compType, MStatus *ReturnStatus = nullptr);
    MStatus addElement(int element);
    MStatus addElements(MIntArray &elements);
    int elementMax(MStatus *ReturnStatus = nullptr) const;
    int element(int index, MStatus *ReturnStatus = nullptr) const;
    MStatus getElements(MIntArray &elements) const;
    MStatus setCompleteData(int numElements);
    MStatus getCompleteData(int &numElements) const;
    declareMFnConstConstructor(MFnSingleIndexedComponent, MFnComponent);
};

MAYA_API_NAMESPACE_EXIT
