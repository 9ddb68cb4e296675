// SPDX-License-Identifier: Apache-2.0
// Members of an object set.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnSet : public MFnDependencyNode
{
    declareMFn(MFnSet, MFnDependencyNode);

public:
    MStatus getMembers(MSelectionList &members, bool flatten) const;
    bool isMember(const MObject &object, MStatus *ReturnStatus = nullptr) const;
    bool isMember(const MDagPath &object, const MObject &component = MObject::kNullObj,
                  MStatus *ReturnStatus = nullptr) const;
    declareMFnConstConstructor(MFnSet, MFnDependencyNode);
};

MAYA_API_NAMESPACE_EXIT
