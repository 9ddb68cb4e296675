// SPDX-License-Identifier: Apache-2.0
#include <maya/MFnAttribute.h>
#include <maya/MString.h>

#include "api/attributeBody.h"
#include "api/functionSet.h"
#include "api/text.h"

using host::Attribute;
using host::AttributePtr;

namespace
{

bool flag(const MFnBase &functionSet, bool Attribute::*member, MStatus *status)
{
    const AttributePtr attribute = host::attributeOf(functionSet);
    host::report(status, attribute ? MStatus::kSuccess : MStatus::kFailure);
    return attribute && (*attribute).*member;
}

// What an attribute is, is settled once a node has it.
MStatus setFlag(const MFnBase &functionSet, bool Attribute::*member, bool value)
{
    const host::NewAttributePtr attribute = host::draftOf(functionSet);
    if (!attribute)
        return MStatus::kFailure;
    (*attribute).*member = value;
    return MStatus::kSuccess;
}

// For properties that the host does not use: Maya's answer for an attribute nobody changed.
template <class Value>
Value unused(const MFnBase &functionSet, Value value, MStatus *status)
{
    return host::answer(
        status, host::attributeOf(functionSet) ? MStatus::kSuccess : MStatus::kFailure, value);
}

void appendFlag(std::string &command, const char *name, bool value, bool usual)
{
    if (value != usual)
        command += std::string(" -") + name + (value ? " true" : " false");
}

std::string addAttrCommand(const Attribute &attribute, bool useLongName)
{
    std::string command = "addAttr -ci true -sn \"" + attribute.shortName + "\"";
    if (useLongName || attribute.longName != attribute.shortName)
        command += " -ln \"" + attribute.longName + "\"";
    command += (attribute.isDataType ? " -dt \"" : " -at \"") + attribute.typeName + "\"";
    appendFlag(command, "m", attribute.isArray, false);
    appendFlag(command, "k", attribute.isKeyable, false);
    appendFlag(command, "h", attribute.isHidden, false);
    appendFlag(command, "s", attribute.isStorable, true);
    if (attribute.isCompound() && !attribute.isTuple())
        command += " -nc " + std::to_string(attribute.children.size());
    return command + ";";
}

} // namespace

DEFINE_FUNCTION_SET(MFnAttribute, MFn::kAttribute)

bool MFnAttribute::isReadable(MStatus *status) const
{
    return flag(*this, &Attribute::isReadable, status);
}
bool MFnAttribute::isWritable(MStatus *status) const
{
    return flag(*this, &Attribute::isWritable, status);
}
bool MFnAttribute::isConnectable(MStatus *status) const
{
    return flag(*this, &Attribute::isConnectable, status);
}
bool MFnAttribute::isCached(MStatus *status) const
{
    return flag(*this, &Attribute::isCached, status);
}
bool MFnAttribute::indexMatters(MStatus *status) const
{
    return flag(*this, &Attribute::indexMatters, status);
}
bool MFnAttribute::isChannelBoxFlagSet(MStatus *status) const
{
    return flag(*this, &Attribute::isChannelBox, status);
}
bool MFnAttribute::isArray(MStatus *status) const
{
    return flag(*this, &Attribute::isArray, status);
}
bool MFnAttribute::isStorable(MStatus *status) const
{
    return flag(*this, &Attribute::isStorable, status);
}
bool MFnAttribute::isKeyable(MStatus *status) const
{
    return flag(*this, &Attribute::isKeyable, status);
}
bool MFnAttribute::isHidden(MStatus *status) const
{
    return flag(*this, &Attribute::isHidden, status);
}
bool MFnAttribute::isDynamic(MStatus *status) const
{
    return flag(*this, &Attribute::isDynamic, status);
}

MFnAttribute::DisconnectBehavior MFnAttribute::disconnectBehavior(MStatus *status) const
{
    return unused(*this, kNothing, status);
}
bool MFnAttribute::usesArrayDataBuilder(MStatus *status) const
{
    return unused(*this, false, status);
}
bool MFnAttribute::internal(MStatus *status) const
{
    return unused(*this, false, status);
}

MStatus MFnAttribute::setReadable(bool state)
{
    return setFlag(*this, &Attribute::isReadable, state);
}
MStatus MFnAttribute::setWritable(bool state)
{
    return setFlag(*this, &Attribute::isWritable, state);
}
MStatus MFnAttribute::setConnectable(bool state)
{
    return setFlag(*this, &Attribute::isConnectable, state);
}
MStatus MFnAttribute::setStorable(bool state)
{
    return setFlag(*this, &Attribute::isStorable, state);
}
MStatus MFnAttribute::setCached(bool state)
{
    return setFlag(*this, &Attribute::isCached, state);
}

MStatus MFnAttribute::setArray(bool state)
{
    return setFlag(*this, &Attribute::isArray, state);
}

MStatus MFnAttribute::setIndexMatters(bool state)
{
    return setFlag(*this, &Attribute::indexMatters, state);
}
MStatus MFnAttribute::setKeyable(bool state)
{
    return setFlag(*this, &Attribute::isKeyable, state);
}
MStatus MFnAttribute::setChannelBox(bool state)
{
    return setFlag(*this, &Attribute::isChannelBox, state);
}
MStatus MFnAttribute::setHidden(bool state)
{
    return setFlag(*this, &Attribute::isHidden, state);
}

// The next three tune Maya's evaluation; the host has nothing to tune and refuses none of them.
MStatus MFnAttribute::setDisconnectBehavior(DisconnectBehavior)
{
    return host::attributeOf(*this) ? MStatus::kSuccess : MStatus::kFailure;
}
MStatus MFnAttribute::setUsesArrayDataBuilder(bool)
{
    return host::attributeOf(*this) ? MStatus::kSuccess : MStatus::kFailure;
}
MStatus MFnAttribute::setInternal(bool)
{
    return host::attributeOf(*this) ? MStatus::kSuccess : MStatus::kFailure;
}

MObject MFnAttribute::parent(MStatus *status) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    if (!attribute || !attribute->parent)
        return host::answer(status, MStatus::kFailure, MObject());
    const AttributePtr above(attribute, attribute->parent); // lives as long as the child is held
    return host::answer(status, MStatus::kSuccess, host::toObject(above));
}

MString MFnAttribute::name(MStatus *status) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    host::report(status, attribute ? MStatus::kSuccess : MStatus::kFailure);
    return attribute ? host::toMString(attribute->longName) : MString();
}

MString MFnAttribute::shortName(MStatus *status) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    host::report(status, attribute ? MStatus::kSuccess : MStatus::kFailure);
    return attribute ? host::toMString(attribute->shortName) : MString();
}

MString MFnAttribute::getAddAttrCmd(bool useLongName, MStatus *status) const
{
    const AttributePtr attribute = host::attributeOf(*this);
    host::report(status, attribute ? MStatus::kSuccess : MStatus::kFailure);
    return attribute ? host::toMString(addAttrCommand(*attribute, useLongName)) : MString();
}
