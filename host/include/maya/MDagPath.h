// SPDX-License-Identifier: Apache-2.0
// A path from the world to a node of the DAG; tells the instances of a node apart.
// Stands in for Maya's header of this name; declarations only. There is no operator!= in any
// release.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MDagPath
{
public:
    MDagPath();
    MDagPath(const MDagPath &);
    virtual ~MDagPath();
    static MStatus getAllPathsTo(const MObject &node, MDagPathArray &pathArray);
    static MStatus getAPathTo(const MObject &node, MDagPath &path);
    bool hasFn(MFn::Type type, MStatus *ReturnStatus = nullptr) const;
    MFn::Type apiType(MStatus *ReturnStatus = nullptr) const;
    bool isValid(MStatus *ReturnStatus = nullptr) const;
    MObject node(MStatus *ReturnStatus = nullptr) const;
    MObject transform(MStatus *ReturnStatus = nullptr) const;
    unsigned int length(MStatus *ReturnStatus = nullptr) const;
    MStatus extendToShape();
    MStatus extendToShapeDirectlyBelow(unsigned int);
    MStatus numberOfShapesDirectlyBelow(unsigned int &) const;
    MStatus push(const MObject &child);
    MStatus pop(unsigned int num = 1);
    unsigned int childCount(MStatus *ReturnStatus = nullptr) const;
    MObject child(unsigned int i, MStatus *ReturnStatus = nullptr) const;
    MDagPath &operator=(const MDagPath &);
    bool operator==(const MDagPath &) const;
    MStatus set(const MDagPath &);
    MString fullPathName(MStatus *ReturnStatus = nullptr) const;
    MString partialPathName(MStatus *ReturnStatus = nullptr) const;
    bool isInstanced(MStatus *ReturnStatus = nullptr) const;
    unsigned int instanceNumber(MStatus *ReturnStatus = nullptr) const;
    bool isVisible(MStatus *ReturnStatus = nullptr) const;
    static const char *className();

private:
    friend class host::ApiAccess;
    std::shared_ptr<const host::PathBody> body_; // null: no path
};

MAYA_API_NAMESPACE_EXIT
