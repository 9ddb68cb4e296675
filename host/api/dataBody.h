// SPDX-License-Identifier: Apache-2.0
// Values of plugs as MObject sees them.
//
// A data object that a plug gave is a copy: changing it changes no plug.
#pragma once

#include <maya/MStringArray.h>

#include "api/objectBody.h"
#include "scene/value.h"

namespace host
{

class DataBody : public ObjectBody
{
public:
    bool hasFn(MFn::Type type) const override;
    virtual Value value() const = 0;
};

class StringBody : public DataBody
{
public:
    explicit StringBody(std::string text) : string(std::move(text)) {}
    MFn::Type apiType() const override { return MFn::kStringData; }
    Value value() const override { return string; }
    std::string string;
};

class StringArrayBody : public DataBody
{
public:
    MFn::Type apiType() const override { return MFn::kStringArrayData; }
    Value value() const override;
    MStringArray strings;
};

// Anything else: carried from plug to plug, but not looked into.
class OtherDataBody : public DataBody
{
public:
    OtherDataBody(MFn::Type type, Value other) : type_(type), value_(std::move(other)) {}
    MFn::Type apiType() const override { return type_; }
    Value value() const override { return value_; }

private:
    MFn::Type type_;
    Value value_;
};

// The data object for a value; the null object for numbers and for "never set".
MObject toDataObject(const Value &value);

} // namespace host
