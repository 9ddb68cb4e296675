// SPDX-License-Identifier: Apache-2.0
// Setting values of plugs. None of it can be undone, as in Maya.
#include <maya/MString.h>

#include "api/dataBody.h"
#include "api/plugCalls.h"
#include "api/text.h"
#include "scene/scene.h"

using host::AttributeKind;
using host::Plug;
using host::Value;

namespace
{

// Elements that setNumElements makes at most: a number that is a mistake must not fill the memory.
constexpr unsigned int kMaxNewElements = 1u << 22;

// Sets a leaf if it may be set; says so in the Script Editor if it may not.
MStatus write(const Plug &plug, Value value)
{
    if (!host::isSettable(plug)) {
        host::showError("The attribute '" + plug.name() +
                        "' is locked or connected and cannot be modified.");
        return MStatus::kFailure;
    }
    return host::loudly([&] {
        const host::RecordingPause pause(*plug.node->scene());
        plug.node->scene()->setValue(plug, std::move(value));
    });
}

MStatus writeNumber(const MPlug &plug, double number)
{
    const Plug *leaf = host::leafOf(plug);
    if (!leaf || !host::isNumberPlug(*leaf))
        return MStatus::kFailure;
    return write(*leaf, number);
}

// Whether a data object may be set on an attribute: the kinds have to agree.
bool accepts(const host::Attribute &attribute, const Value &value)
{
    switch (attribute.kind) {
    case AttributeKind::string:
        return std::holds_alternative<std::string>(value);
    case AttributeKind::stringList:
        return std::holds_alternative<std::vector<std::string>>(value);
    case AttributeKind::matrix:
        return std::holds_alternative<host::Matrix>(value);
    case AttributeKind::numberList:
        return std::holds_alternative<std::vector<double>>(value);
    case AttributeKind::opaque:
        return std::holds_alternative<host::OpaqueValue>(value);
    case AttributeKind::learned:
        return true;
    default:
        return false;
    }
}

} // namespace

// A null object stores "no data".
MStatus MPlug::setMObject(MObject &val)
{
    const Plug *leaf = host::leafOf(*this);
    if (!leaf || leaf->attribute->isNumber())
        return MStatus::kFailure;
    if (val.isNull())
        return write(*leaf, Value());
    const auto data = host::bodyOf<host::DataBody>(val);
    const Value value = data ? data->value() : Value();
    if (!data || !accepts(*leaf->attribute, value))
        return MStatus::kInvalidParameter;
    return write(*leaf, value);
}

MStatus MPlug::setString(const MString &val)
{
    const Plug *leaf = host::leafOf(*this);
    if (!leaf || !host::isStringPlug(*leaf))
        return MStatus::kFailure;
    return write(*leaf, host::toString(val));
}

MStatus MPlug::setDouble(double val)
{
    return writeNumber(*this, val);
}
MStatus MPlug::setFloat(float val)
{
    return writeNumber(*this, static_cast<double>(val));
}
MStatus MPlug::setInt64(MInt64 val)
{
    return writeNumber(*this, static_cast<double>(val));
}
MStatus MPlug::setInt(int val)
{
    return writeNumber(*this, val);
}
MStatus MPlug::setShort(short val)
{
    return writeNumber(*this, val);
}
MStatus MPlug::setBool(bool val)
{
    return writeNumber(*this, val);
}
MStatus MPlug::setChar(char val)
{
    return writeNumber(*this, val);
}

MStatus MPlug::setValue(MObject &val)
{
    return setMObject(val);
}
MStatus MPlug::setValue(double val)
{
    return setDouble(val);
}
MStatus MPlug::setValue(float val)
{
    return setFloat(val);
}
MStatus MPlug::setValue(MInt64 val)
{
    return setInt64(val);
}
MStatus MPlug::setValue(int val)
{
    return setInt(val);
}
MStatus MPlug::setValue(short val)
{
    return setShort(val);
}
MStatus MPlug::setValue(bool val)
{
    return setBool(val);
}
MStatus MPlug::setValue(char val)
{
    return setChar(val);
}
MStatus MPlug::setValue(const MString &val)
{
    return setString(val);
}
MStatus MPlug::setValue(const char *val)
{
    return setString(MString(val));
}

MStatus MPlug::setNumElements(unsigned int elements)
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isWholeArray() || plug->attribute->isComputed)
        return MStatus::kFailure;
    if (elements > kMaxNewElements)
        return MStatus::kInsufficientMemory;
    return host::loudly([&] {
        const host::RecordingPause pause(*plug->node->scene());
        for (unsigned int i = 0; i < elements; ++i)
            plug->node->scene()->addElement(plug->element(static_cast<int>(i)));
    });
}
