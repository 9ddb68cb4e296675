// SPDX-License-Identifier: Apache-2.0
// Parents, children, paths and wireframe colours of a node of the DAG.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnDependencyNode.h>
#include <maya/MObject.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnDagNode : public MFnDependencyNode
{
    declareMinimalMFn(MFnDagNode);

public:
    MFnDagNode();
    MFnDagNode(MObject &object, MStatus *ret = nullptr);
    MFnDagNode(const MDagPath &object, MStatus *ret = nullptr);
    MFnDagNode(const MObject &object, MStatus *ret = nullptr);
    MObject create(const MString &type, MObject &parent = MObject::kNullObj,
                   MStatus *ReturnStatus = nullptr);
    MObject create(const MString &type, const MString &name, MObject &parent = MObject::kNullObj,
                   MStatus *ReturnStatus = nullptr);
    unsigned int parentCount(MStatus *ReturnStatus = nullptr) const;
    MObject parent(unsigned int i, MStatus *ReturnStatus = nullptr) const;
    unsigned int childCount(MStatus *ReturnStatus = nullptr) const;
    MObject child(unsigned int i, MStatus *ReturnStatus = nullptr) const;
    unsigned int instanceCount(bool total, MStatus *ReturnStatus = nullptr) const;
    MStatus getPath(MDagPath &path) const;
    MStatus getAllPaths(MDagPathArray &paths) const;
    MDagPath dagPath(MStatus *ReturnStatus = nullptr) const;
    MString fullPathName(MStatus *ReturnStatus = nullptr) const;
    MString partialPathName(MStatus *ReturnStatus = nullptr) const;
    bool isIntermediateObject(MStatus *ReturnStatus = nullptr) const;
    MColor dormantColor(MStatus *ReturnStatus = nullptr) const;
    MColor activeColor(MStatus *ReturnStatus = nullptr) const;
    MColor hiliteColor(MStatus *ReturnStatus = nullptr) const;
    bool usingHiliteColor(MStatus *ReturnStatus = nullptr) const;
    MStatus getConnectedSetsAndMembers(unsigned int instanceNumber, MObjectArray &sets,
                                       MObjectArray &comps, bool renderableSetsOnly) const;
    virtual MStatus setObject(const MDagPath &path);
    virtual MStatus setObject(MObject &object);
    virtual MStatus setObject(const MObject &object);

private:
    friend class host::ApiAccess;
    std::shared_ptr<const host::PathBody> path_; // null when made from an MObject
};

MAYA_API_NAMESPACE_EXIT

#define declareDagMFn(MFnClass, MFnParentClass)                                                    \
    declareMinimalMFn(MFnClass);                                                                   \
                                                                                                   \
public:                                                                                            \
    MFnClass();                                                                                    \
    MFnClass(MObject &object, MStatus *ret = nullptr);                                             \
    MFnClass(const MDagPath &object, MStatus *ret = nullptr)

#define declareDagMFnConstConstructor(MFnClass, MFnParentClass)                                    \
    MFnClass(const MObject &object, MStatus *ret = nullptr)
