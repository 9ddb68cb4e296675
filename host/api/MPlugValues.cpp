// SPDX-License-Identifier: Apache-2.0
// Values of plugs. What is set here cannot be undone, as in Maya.
#include <maya/MPlug.h>
#include <maya/MString.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "api/dataBody.h"
#include "api/nodeBody.h"
#include "api/status.h"
#include "api/text.h"
#include "scene/scene.h"

using host::AttributeKind;
using host::Plug;
using host::Value;

namespace
{

// Elements that setNumElements makes at most: a number that is a mistake must not fill the memory.
constexpr unsigned int kMaxNewElements = 1u << 22;

// Reading a missing element makes it, with its default value (MPlug reference). That is no change
// of the scene that would have to be saved.
void touch(const Plug &plug)
{
    Plug element = plug;
    while (!element.isNull() && !element.isElement())
        element = element.parent();
    if (element.isNull() || element.attribute->isComputed || element.node->hasElement(element))
        return;
    host::Scene &scene = *element.node->scene();
    const bool wasModified = scene.isModified();
    const host::RecordingPause pause(scene);
    scene.addElement(element);
    scene.setModified(wasModified);
}

// A plug that has one value: no array, no compound, no index missing.
const Plug *leafOf(const MPlug &plug)
{
    const Plug *found = host::plugOf(plug);
    const bool isLeaf = found && !found->attribute->isCompound() && found->isComplete() &&
                        found->attribute->kind != AttributeKind::message;
    return isLeaf ? found : nullptr;
}

// The number of a plug; attributes that a file brought may hold one as text.
MStatus readNumber(const MPlug &plug, double &number)
{
    const Plug *leaf = leafOf(plug);
    if (!leaf || !(leaf->attribute->isNumber() || leaf->attribute->isLearned()))
        return MStatus::kFailure;
    double found = std::numeric_limits<double>::quiet_NaN();
    const MStatus status = host::quietly(MStatus::kFailure, [&] {
        touch(*leaf);
        found = leaf->attribute->isNumber() ? host::evaluateNumber(*leaf)
                                            : host::toNumber(host::evaluate(*leaf), found);
    });
    if (!status || (leaf->attribute->isLearned() && std::isnan(found)))
        return MStatus::kFailure;
    number = found;
    return MStatus::kSuccess;
}

template <class Integer>
Integer toInteger(double number)
{
    if (std::isnan(number))
        return 0;
    const double low = static_cast<double>(std::numeric_limits<Integer>::min());
    const double high = static_cast<double>(std::numeric_limits<Integer>::max());
    if (number >= high)
        return std::numeric_limits<Integer>::max();
    return number <= low ? std::numeric_limits<Integer>::min() : static_cast<Integer>(number);
}

template <class Integer>
MStatus readInteger(const MPlug &plug, Integer &value)
{
    double number = 0.0;
    const MStatus status = readNumber(plug, number);
    if (status)
        value = toInteger<Integer>(number);
    return status;
}

template <class Result>
Result valueOf(const MPlug &plug)
{
    Result value = Result();
    plug.getValue(value);
    return value;
}

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
    const Plug *leaf = leafOf(plug);
    if (!leaf || !(leaf->attribute->isNumber() || leaf->attribute->isLearned()))
        return MStatus::kFailure;
    return write(*leaf, number);
}

bool isStringPlug(const Plug &plug)
{
    return plug.attribute->kind == AttributeKind::string || plug.attribute->isLearned();
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

// A typed attribute that was never set has no object to give: null, and a failure.
MStatus MPlug::getValue(MObject &value) const
{
    const Plug *leaf = leafOf(*this);
    if (!leaf)
        return MStatus::kFailure;
    MObject data;
    const MStatus status = host::quietly(MStatus::kFailure, [&] {
        touch(*leaf);
        data = host::toDataObject(host::evaluate(*leaf));
    });
    if (!status || leaf->attribute->isNumber())
        return MStatus::kFailure;
    value = data;
    return data.isNull() ? MStatus::kFailure : MStatus::kSuccess;
}

MStatus MPlug::getValue(double &value) const
{
    return readNumber(*this, value);
}

MStatus MPlug::getValue(float &value) const
{
    double number = 0.0;
    const MStatus status = readNumber(*this, number);
    if (status)
        value = static_cast<float>(number);
    return status;
}

MStatus MPlug::getValue(MInt64 &value) const
{
    return readInteger(*this, value);
}
MStatus MPlug::getValue(int &value) const
{
    return readInteger(*this, value);
}
MStatus MPlug::getValue(short &value) const
{
    return readInteger(*this, value);
}
MStatus MPlug::getValue(char &value) const
{
    return readInteger(*this, value);
}

MStatus MPlug::getValue(bool &value) const
{
    double number = 0.0;
    const MStatus status = readNumber(*this, number);
    if (status)
        value = number != 0.0;
    return status;
}

// A string that was never set reads as "".
MStatus MPlug::getValue(MString &value) const
{
    const Plug *leaf = leafOf(*this);
    if (!leaf || !isStringPlug(*leaf))
        return MStatus::kFailure;
    Value found;
    const MStatus status = host::quietly(MStatus::kFailure, [&] {
        touch(*leaf);
        found = host::evaluate(*leaf);
    });
    if (!status)
        return status;
    const auto *text = std::get_if<std::string>(&found);
    if (!text && !std::holds_alternative<std::monostate>(found))
        return MStatus::kFailure;
    value = text ? host::toMString(*text) : MString();
    return MStatus::kSuccess;
}

MObject MPlug::asMObject() const
{
    return valueOf<MObject>(*this);
}
double MPlug::asDouble() const
{
    return valueOf<double>(*this);
}
float MPlug::asFloat() const
{
    return valueOf<float>(*this);
}
MInt64 MPlug::asInt64() const
{
    return valueOf<MInt64>(*this);
}
int MPlug::asInt() const
{
    return valueOf<int>(*this);
}
short MPlug::asShort() const
{
    return valueOf<short>(*this);
}
bool MPlug::asBool() const
{
    return valueOf<bool>(*this);
}
char MPlug::asChar() const
{
    return valueOf<char>(*this);
}
MString MPlug::asString() const
{
    return valueOf<MString>(*this);
}

// A null object stores "no data".
MStatus MPlug::setMObject(MObject &val)
{
    const Plug *leaf = leafOf(*this);
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
    const Plug *leaf = leafOf(*this);
    if (!leaf || !isStringPlug(*leaf))
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
