// SPDX-License-Identifier: Apache-2.0
// Walks over the points of a shape, by number.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MItGeometry
{
public:
    MItGeometry(const MDagPath &dagPath, MStatus *ReturnStatus = nullptr);
    MItGeometry(const MDagPath &dagPath, MObject &component, MStatus *ReturnStatus = nullptr);
    MItGeometry(MObject &dagObject, MStatus *ReturnStatus = nullptr);
    virtual ~MItGeometry();
    bool isDone(MStatus *ReturnStatus = nullptr) const;
    MStatus next();
    MStatus reset();
    MPoint position(MSpace::Space space = MSpace::kObject, MStatus *ReturnStatus = nullptr) const;
    int index(MStatus *ReturnStatus = nullptr) const;
    MObject currentItem(MStatus *ReturnStatus = nullptr) const;
    int count(MStatus *ReturnStatus = nullptr) const;
    int exactCount(MStatus *ReturnStatus = nullptr);
    static const char *className();

private:
    std::unique_ptr<host::PointWalk> walk_;
};

MAYA_API_NAMESPACE_EXIT
