// SPDX-License-Identifier: Apache-2.0
// One attribute of one node, with the array indices on the way to it. Stands in for Maya's header
// of this name; declarations only. Getters take no further argument: the type of the second one
// differs between releases.
#pragma once

#include <maya/MIntArray.h>
#include <maya/MObject.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <memory>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MPlug
{
public:
    MPlug();
    MPlug(const MPlug &);
    MPlug(const MObject &node, const MObject &attribute);
    virtual ~MPlug();
    MStatus setAttribute(MObject &attribute);
    MObject attribute(MStatus *ReturnStatus = nullptr) const;
    MObject node(MStatus *ReturnStatus = nullptr) const;
    MString name(MStatus *ReturnStatus = nullptr) const;
    MString partialName(bool includeNodeName = false, bool includeNonMandatoryIndices = false,
                        bool includeInstancedIndices = false, bool useAlias = false,
                        bool useFullAttributePath = false, bool useLongNames = false,
                        MStatus *ReturnStatus = nullptr) const;
    bool isNetworked(MStatus *ReturnStatus = nullptr) const;
    bool isNull(MStatus *ReturnStatus = nullptr) const;
    bool isArray(MStatus *ReturnStatus = nullptr) const;
    bool isElement(MStatus *ReturnStatus = nullptr) const;
    bool isCompound(MStatus *ReturnStatus = nullptr) const;
    bool isChild(MStatus *ReturnStatus = nullptr) const;
    bool isConnected(MStatus *ReturnStatus = nullptr) const;
    bool isSource(MStatus *ReturnStatus = nullptr) const;
    bool isDestination(MStatus *ReturnStatus = nullptr) const;
    bool isDynamic(MStatus *ReturnStatus = nullptr) const;
    bool isLocked(MStatus *ReturnStatus = nullptr) const;
    MStatus setLocked(bool locked);
    bool isFromReferencedFile(MStatus *ReturnStatus = nullptr) const;
    unsigned int logicalIndex(MStatus *ReturnStatus = nullptr) const;
    MStatus selectAncestorLogicalIndex(unsigned int index,
                                       const MObject &attribute = MObject::kNullObj);
    unsigned int getExistingArrayAttributeIndices(MIntArray &indices,
                                                  MStatus *ReturnStatus = nullptr);
    unsigned int numElements(MStatus *ReturnStatus = nullptr) const;
    unsigned int evaluateNumElements(MStatus *ReturnStatus = nullptr);
    unsigned int numChildren(MStatus *ReturnStatus = nullptr) const;
    unsigned int numConnectedElements(MStatus *ReturnStatus = nullptr) const;
    unsigned int numConnectedChildren(MStatus *ReturnStatus = nullptr) const;
    MPlug child(MObject &attr, MStatus *ReturnStatus = nullptr) const;
    MPlug child(unsigned int index, MStatus *ReturnStatus = nullptr) const;
    MPlug parent(MStatus *ReturnStatus = nullptr) const;
    MPlug array(MStatus *ReturnStatus = nullptr) const;
    MPlug elementByLogicalIndex(unsigned int logicalIndex, MStatus *ReturnStatus = nullptr) const;
    MPlug elementByPhysicalIndex(unsigned int physicalIndex, MStatus *ReturnStatus = nullptr) const;
    MPlug connectionByPhysicalIndex(unsigned int physicalIndex,
                                    MStatus *ReturnStatus = nullptr) const;
    bool connectedTo(MPlugArray &array, bool asDst, bool asSrc,
                     MStatus *ReturnStatus = nullptr) const;
    enum FreeToChangeState { kFreeToChange = 0, kNotFreeToChange, kChildrenNotFreeToChange };
    FreeToChangeState isFreeToChange(bool checkParents = true, bool checkChildren = true,
                                     MStatus *ReturnStatus = nullptr) const;
    MStatus getValue(MObject &) const;
    MStatus getValue(double &) const;
    MStatus getValue(float &) const;
    MStatus getValue(MInt64 &) const;
    MStatus getValue(int &) const;
    MStatus getValue(short &) const;
    MStatus getValue(bool &) const;
    MStatus getValue(char &) const;
    MStatus getValue(MString &) const;
    MObject asMObject() const;
    double asDouble() const;
    float asFloat() const;
    MInt64 asInt64() const;
    int asInt() const;
    short asShort() const;
    bool asBool() const;
    char asChar() const;
    MString asString() const;
    MStatus setValue(MObject &val);
    MStatus setValue(double);
    MStatus setValue(float);
    MStatus setValue(MInt64);
    MStatus setValue(int);
    MStatus setValue(short);
    MStatus setValue(bool);
    MStatus setValue(char);
    MStatus setValue(const MString &);
    MStatus setValue(const char *);
    MStatus setMObject(MObject &val);
    MStatus setDouble(double);
    MStatus setFloat(float);
    MStatus setInt64(MInt64);
    MStatus setInt(int);
    MStatus setShort(short);
    MStatus setBool(bool);
    MStatus setChar(char);
    MStatus setString(const MString &);
    MPlug &operator=(const MPlug &);
    MPlug operator[](unsigned int physicalIndex) const;
    MPlug operator[](MObject &attr) const;
    bool operator==(const MPlug &) const;
    bool operator==(const MObject &attribute) const;
    bool operator!=(const MPlug &) const;
    bool operator!=(const MObject &attribute) const;
    MStatus setNumElements(unsigned int);
    operator MObject() const;
    bool operator!() const;
    static const char *className();

private:
    friend class host::ApiAccess;
    std::shared_ptr<const host::PlugBody> body_; // null: no plug; replaced, never changed
};

MAYA_API_NAMESPACE_EXIT
