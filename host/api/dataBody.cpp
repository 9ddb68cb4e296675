// SPDX-License-Identifier: Apache-2.0
#include "api/dataBody.h"

#include <maya/MString.h>

#include "api/text.h"

namespace host
{

bool DataBody::hasFn(MFn::Type type) const
{
    return type == MFn::kBase || type == MFn::kData || type == apiType();
}

Value StringArrayBody::value() const
{
    std::vector<std::string> list(strings.length());
    for (unsigned int i = 0; i < strings.length(); ++i)
        list[i] = toString(strings[i]);
    return list;
}

namespace
{

struct ToObject {
    MObject operator()(std::monostate) const { return MObject(); }
    MObject operator()(double) const { return MObject(); }
    MObject operator()(const std::string &text) const
    {
        return makeObject(std::make_shared<StringBody>(text));
    }
    MObject operator()(const std::vector<std::string> &list) const
    {
        auto body = std::make_shared<StringArrayBody>();
        for (const std::string &text : list)
            body->strings.append(toMString(text));
        return makeObject(body);
    }
    MObject operator()(const Matrix &matrix) const { return other(MFn::kMatrixData, matrix); }
    MObject operator()(const std::vector<double> &numbers) const
    {
        return other(MFn::kDoubleArrayData, numbers);
    }
    MObject operator()(const OpaqueValue &opaque) const { return other(MFn::kPluginData, opaque); }

    static MObject other(MFn::Type type, Value value)
    {
        return makeObject(std::make_shared<OtherDataBody>(type, std::move(value)));
    }
};

} // namespace

MObject toDataObject(const Value &value)
{
    return std::visit(ToObject(), value);
}

} // namespace host
