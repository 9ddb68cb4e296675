// SPDX-License-Identifier: Apache-2.0
// Makes attributes that have children. Stands in for Maya's header of this name; declarations only.
// Children are added before the compound is added to a node, and come along with it.
#pragma once

#include <maya/MFnAttribute.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnCompoundAttribute : public MFnAttribute
{
    declareMFn(MFnCompoundAttribute, MFnAttribute);

public:
    MObject create(const MString &full, const MString &brief, MStatus *ReturnStatus = nullptr);
    MStatus addChild(const MObject &child);
    MStatus removeChild(const MObject &child);
    unsigned int numChildren(MStatus *ReturnStatus = nullptr) const;
    MObject child(unsigned int index, MStatus *ReturnStatus = nullptr) const;
    declareMFnConstConstructor(MFnCompoundAttribute, MFnAttribute);
};

MAYA_API_NAMESPACE_EXIT
