// SPDX-License-Identifier: Apache-2.0
// Walks over a selection list, which must outlive the walk and stay unchanged.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MObject.h>
#include <maya/MSelectionList.h>
#include <maya/MStatus.h>
#include <maya/MStringArray.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MItSelectionList
{
public:
    enum selItemType {
        kUnknownItem = -1,
        kDagSelectionItem,
        kAnimSelectionItem,
        kDNselectionItem,
        kPlugSelectionItem
    };
    MItSelectionList(const MSelectionList &list, MFn::Type = MFn::kInvalid,
                     MStatus *ReturnStatus = nullptr);
    virtual ~MItSelectionList();
    bool isDone(MStatus *ReturnStatus = nullptr);
    MStatus next();
    MStatus reset();
    MStatus getDependNode(MObject &depNode);
    MStatus getDagPath(MDagPath &dagPath, MObject &component);
    MStatus getDagPath(MDagPath &dagPath);
    MStatus getPlug(MPlug &plug);
    MStatus getStrings(MStringArray &array);
    selItemType itemType(MStatus *ReturnStatus = nullptr);
    MStatus setFilter(MFn::Type filter);
    bool hasComponents(MStatus *ReturnStatus = nullptr) const;
    static const char *className();

private:
    std::unique_ptr<host::SelectionWalk> walk_;
};

MAYA_API_NAMESPACE_EXIT
