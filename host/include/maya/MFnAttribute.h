// SPDX-License-Identifier: Apache-2.0
// The properties of an attribute, before and after it is added to a node.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MFnBase.h>
#include <maya/MObject.h>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MFnAttribute : public MFnBase
{
    declareMFn(MFnAttribute, MFnBase);

public:
    enum DisconnectBehavior { kDelete, kReset, kNothing };
    bool isReadable(MStatus *ReturnStatus = nullptr) const;
    bool isWritable(MStatus *ReturnStatus = nullptr) const;
    bool isConnectable(MStatus *ReturnStatus = nullptr) const;
    bool isCached(MStatus *ReturnStatus = nullptr) const;
    bool indexMatters(MStatus *ReturnStatus = nullptr) const;
    bool isChannelBoxFlagSet(MStatus *ReturnStatus = nullptr) const;
    DisconnectBehavior disconnectBehavior(MStatus *ReturnStatus = nullptr) const;
    bool usesArrayDataBuilder(MStatus *ReturnStatus = nullptr) const;
    bool internal(MStatus *ReturnStatus = nullptr) const;
    bool isArray(MStatus *ReturnStatus = nullptr) const;
    bool isStorable(MStatus *ReturnStatus = nullptr) const;
    bool isKeyable(MStatus *ReturnStatus = nullptr) const;
    bool isHidden(MStatus *ReturnStatus = nullptr) const;
    bool isDynamic(MStatus *ReturnStatus = nullptr) const;
    MStatus setReadable(bool);
    MStatus setWritable(bool);
    MStatus setConnectable(bool);
    MStatus setStorable(bool);
    MStatus setCached(bool);
    MStatus setArray(bool);
    MStatus setIndexMatters(bool);
    MStatus setKeyable(bool);
    MStatus setChannelBox(bool);
    MStatus setHidden(bool);
    MStatus setDisconnectBehavior(DisconnectBehavior);
    MStatus setUsesArrayDataBuilder(bool);
    MStatus setInternal(bool);
    MObject parent(MStatus *ReturnStatus = nullptr) const;
    MString name(MStatus *ReturnStatus = nullptr) const;
    MString shortName(MStatus *ReturnStatus = nullptr) const;
    MString getAddAttrCmd(bool useLongName = false, MStatus *status = nullptr) const;
    declareMFnConstConstructor(MFnAttribute, MFnBase);
};

MAYA_API_NAMESPACE_EXIT
