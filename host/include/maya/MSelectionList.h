// SPDX-License-Identifier: Apache-2.0
// A list of nodes, paths with components, and plugs.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MSelectionList
{
public:
    enum MergeStrategy { kMergeNormal = 0, kXORWithList, kRemoveFromList };
    MSelectionList();
    MSelectionList(const MSelectionList &);
    virtual ~MSelectionList();
    MStatus clear();
    bool isEmpty(MStatus *ReturnStatus = nullptr) const;
    unsigned int length(MStatus *ReturnStatus = nullptr) const;
    MStatus getDependNode(unsigned int index, MObject &depNode) const;
    MStatus getDagPath(unsigned int index, MDagPath &dagPath,
                       MObject &component = MObject::kNullObj) const;
    MStatus getPlug(unsigned int index, MPlug &plug) const;
    MStatus add(const MObject &object, const bool mergeWithExisting = false);
    MStatus add(const MDagPath &object, const MObject &component = MObject::kNullObj,
                const bool mergeWithExisting = false);
    MStatus add(const MString &matchString, const bool searchChildNamespacesToo = false);
    MStatus add(const MPlug &plug, const bool mergeWithExisting = false);
    MStatus remove(unsigned int index);
    MStatus replace(unsigned int index, const MObject &item);
    MStatus replace(unsigned int index, const MDagPath &item,
                    const MObject &component = MObject::kNullObj);
    bool hasItem(const MObject &item, MStatus *ReturnStatus = nullptr) const;
    bool hasItem(const MDagPath &item, const MObject &component = MObject::kNullObj,
                 MStatus *ReturnStatus = nullptr) const;
    bool hasItemPartly(const MDagPath &item, const MObject &component,
                       MStatus *ReturnStatus = nullptr) const;
    MStatus toggle(const MDagPath &item, const MObject &component = MObject::kNullObj);
    MSelectionList &operator=(const MSelectionList &);
    MStatus merge(const MSelectionList &other, const MergeStrategy strategy = kMergeNormal);
    MStatus merge(const MDagPath &object, const MObject &component = MObject::kNullObj,
                  const MergeStrategy strategy = kMergeNormal);
    MStatus getSelectionStrings(MStringArray &array) const;
    MStatus getSelectionStrings(unsigned int index, MStringArray &array) const;
    static const char *className();

private:
    friend class host::ApiAccess;
    std::unique_ptr<host::SelectionBody> body_;
};

MAYA_API_NAMESPACE_EXIT
