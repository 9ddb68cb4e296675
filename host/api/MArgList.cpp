// SPDX-License-Identifier: Apache-2.0
#include <maya/MArgList.h>
#include <maya/MString.h>

#include "api/apiAccess.h"
#include "api/arguments.h"
#include "api/status.h"

using host::ArgumentValue;
using host::ArgumentValues;

namespace
{

template <class Value>
MStatus getArgument(const MArgList &list, unsigned int index, Value &value)
{
    const std::vector<ArgumentValue> &values = host::valuesOf(list).list;
    if (index >= values.size())
        return MStatus::kInvalidParameter;
    return host::convert(values[index].text, value) ? MStatus::kSuccess : MStatus::kFailure;
}

template <class Value>
Value argumentAs(const MArgList &list, unsigned int index, MStatus *status)
{
    Value value = Value();
    host::report(status, getArgument(list, index, value));
    return value;
}

// Adds to a list of its own: copies that share it keep what they have.
void addTo(std::shared_ptr<ArgumentValues> &values, ArgumentValue value)
{
    values =
        values ? std::make_shared<ArgumentValues>(*values) : std::make_shared<ArgumentValues>();
    values->list.push_back(std::move(value));
}

} // namespace

const ArgumentValues &host::valuesOf(const MArgList &list)
{
    static const ArgumentValues kNone;
    const auto &values = ApiAccess::values(list);
    return values ? *values : kNone;
}

const unsigned int MArgList::kInvalidArgIndex = ~0u;

MArgList::MArgList() = default;
MArgList::MArgList(const MArgList &other) = default;
MArgList::~MArgList() = default;
MArgList &MArgList::operator=(const MArgList &other) = default;
const char *MArgList::className()
{
    return "MArgList";
}

unsigned int MArgList::length(MStatus *ReturnStatus) const
{
    host::report(ReturnStatus);
    return static_cast<unsigned int>(host::valuesOf(*this).list.size());
}

bool MArgList::asBool(unsigned int index, MStatus *ret) const
{
    return argumentAs<bool>(*this, index, ret);
}
int MArgList::asInt(unsigned int index, MStatus *ret) const
{
    return argumentAs<int>(*this, index, ret);
}
double MArgList::asDouble(unsigned int index, MStatus *ret) const
{
    return argumentAs<double>(*this, index, ret);
}
MString MArgList::asString(unsigned int index, MStatus *ret) const
{
    return argumentAs<MString>(*this, index, ret);
}

unsigned int MArgList::flagIndex(const char *shortFlag, const char *longFlag) const
{
    const auto isFlag = [](const std::string &text, const char *flag) {
        if (!flag || text.empty() || text[0] != '-')
            return false;
        return text == flag || text.compare(1, std::string::npos, flag) == 0;
    };
    const std::vector<ArgumentValue> &values = host::valuesOf(*this).list;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (isFlag(values[i].text, shortFlag) || isFlag(values[i].text, longFlag))
            return static_cast<unsigned int>(i);
    return kInvalidArgIndex;
}

MStatus MArgList::addArg(bool arg)
{
    addTo(values_, host::makeArgument(arg));
    return MStatus::kSuccess;
}

MStatus MArgList::addArg(int arg)
{
    addTo(values_, host::makeArgument(arg));
    return MStatus::kSuccess;
}

MStatus MArgList::addArg(double arg)
{
    addTo(values_, host::makeArgument(arg));
    return MStatus::kSuccess;
}

MStatus MArgList::addArg(const MString &arg)
{
    addTo(values_, host::makeArgument(std::string(arg.asUTF8())));
    return MStatus::kSuccess;
}

MStatus MArgList::get(unsigned int index, bool &value) const
{
    return getArgument(*this, index, value);
}
MStatus MArgList::get(unsigned int index, int &value) const
{
    return getArgument(*this, index, value);
}
MStatus MArgList::get(unsigned int index, double &value) const
{
    return getArgument(*this, index, value);
}
MStatus MArgList::get(unsigned int index, MString &value) const
{
    return getArgument(*this, index, value);
}
