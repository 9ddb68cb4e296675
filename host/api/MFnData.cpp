// SPDX-License-Identifier: Apache-2.0
#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MFnStringData.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include "api/dataBody.h"
#include "api/functionSet.h"
#include "api/text.h"

using host::answer;
using host::StringArrayBody;
using host::StringBody;

DEFINE_FUNCTION_SET(MFnData, MFn::kData)
MFnData::MFnData() = default;

DEFINE_FUNCTION_SET(MFnNumericData, MFn::kNumericData)

DEFINE_FUNCTION_SET(MFnStringData, MFn::kStringData)

MString MFnStringData::string(MStatus *ReturnStatus) const
{
    const auto body = host::bodyOf<StringBody>(*this);
    host::report(ReturnStatus, body ? MStatus::kSuccess : MStatus::kFailure);
    return body ? host::toMString(body->string) : MString();
}

MStatus MFnStringData::set(const MString &newString)
{
    const auto body = host::bodyOf<StringBody>(*this);
    if (!body)
        return MStatus::kFailure;
    body->string = host::toString(newString);
    return MStatus::kSuccess;
}

MObject MFnStringData::create(const MString &str, MStatus *ReturnStatus)
{
    const MObject object = host::makeObject(std::make_shared<StringBody>(host::toString(str)));
    return answer(ReturnStatus, setObject(object), object);
}

MObject MFnStringData::create(MStatus *ReturnStatus)
{
    return create(MString(), ReturnStatus);
}

DEFINE_FUNCTION_SET(MFnStringArrayData, MFn::kStringArrayData)

unsigned int MFnStringArrayData::length(MStatus *ReturnStatus) const
{
    const auto body = host::bodyOf<StringArrayBody>(*this);
    host::report(ReturnStatus, body ? MStatus::kSuccess : MStatus::kFailure);
    return body ? body->strings.length() : 0;
}

MStatus MFnStringArrayData::set(const MString &element, unsigned int index)
{
    const auto body = host::bodyOf<StringArrayBody>(*this);
    return body ? body->strings.set(element, index) : MStatus(MStatus::kFailure);
}

MStatus MFnStringArrayData::set(const MStringArray &newArray)
{
    const auto body = host::bodyOf<StringArrayBody>(*this);
    if (!body)
        return MStatus::kFailure;
    body->strings = newArray;
    return MStatus::kSuccess;
}

MStatus MFnStringArrayData::copyTo(MStringArray &copy) const
{
    const auto body = host::bodyOf<StringArrayBody>(*this);
    if (!body)
        return MStatus::kFailure;
    copy = body->strings;
    return MStatus::kSuccess;
}

// Deliberate: the array that comes back is independent of the data; in Maya it may share it.
MStringArray MFnStringArrayData::array(MStatus *ReturnStatus)
{
    MStringArray copy;
    host::report(ReturnStatus, copyTo(copy));
    return copy;
}

MObject MFnStringArrayData::create(MStatus *ReturnStatus)
{
    return create(MStringArray(), ReturnStatus);
}

MObject MFnStringArrayData::create(const MStringArray &in, MStatus *ReturnStatus)
{
    auto body = std::make_shared<StringArrayBody>();
    body->strings = in;
    const MObject object = host::makeObject(body);
    return answer(ReturnStatus, setObject(object), object);
}

const MString &MFnStringArrayData::operator[](unsigned int index) const
{
    return host::bodyOf<StringArrayBody>(*this)->strings[index];
}

MString &MFnStringArrayData::operator[](unsigned int index)
{
    return host::bodyOf<StringArrayBody>(*this)->strings[index];
}
