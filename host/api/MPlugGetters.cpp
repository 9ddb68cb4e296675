// SPDX-License-Identifier: Apache-2.0
// Reading values of plugs.
#include <cmath>
#include <limits>

#include <maya/MString.h>

#include "api/dataBody.h"
#include "api/plugCalls.h"
#include "api/text.h"
#include "scene/scene.h"

using host::Plug;
using host::Value;

namespace
{

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

// The number of a plug; attributes that a file brought may hold one as text.
MStatus readNumber(const MPlug &plug, double &number)
{
    const Plug *leaf = host::leafOf(plug);
    if (!leaf || !host::isNumberPlug(*leaf))
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

} // namespace

// A typed attribute that was never set has no object to give: null, and a failure.
MStatus MPlug::getValue(MObject &value) const
{
    const Plug *leaf = host::leafOf(*this);
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
    const Plug *leaf = host::leafOf(*this);
    if (!leaf || !host::isStringPlug(*leaf))
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
