// SPDX-License-Identifier: Apache-2.0
#include <maya/MArgDatabase.h>
#include <maya/MArgList.h>
#include <maya/MArgParser.h>
#include <maya/MSelectionList.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>

#include "api/apiAccess.h"
#include "api/arguments.h"
#include "api/process.h"
#include "api/status.h"
#include "api/text.h"

using host::ParsedArguments;

namespace
{

using Parsed = std::shared_ptr<const ParsedArguments>;

// An argument of the flag's first use.
template <class Value>
MStatus getFlag(const Parsed &parsed, const char *flag, unsigned int index, Value &result)
{
    if (!parsed)
        return MStatus::kFailure;
    const host::mel::Operand *operand = parsed->argument(flag ? flag : "", index);
    if (!operand)
        return MStatus::kInvalidParameter;
    return host::convert(operand->text, result) ? MStatus::kSuccess : MStatus::kFailure;
}

template <class Value>
Value flagAs(const MArgParser &parser, const char *flag, unsigned int index, MStatus *status)
{
    Value value = Value();
    host::report(status, parser.getFlagArgument(flag, index, value));
    return value;
}

template <class Value>
MStatus getArgument(const Parsed &parsed, unsigned int index, Value &result)
{
    if (!parsed)
        return MStatus::kFailure;
    if (index >= parsed->arguments.size())
        return MStatus::kInvalidParameter;
    return host::convert(parsed->arguments[index], result) ? MStatus::kSuccess : MStatus::kFailure;
}

MStatus addName(MSelectionList &list, const MString &name)
{
    return list.add(name);
}

} // namespace

std::vector<std::string> host::selectedNames()
{
    std::vector<std::string> names;
    if (host::Process *process = host::Process::current())
        for (const host::SelectionItem &item : process->session().selection().items())
            for (const std::string &name : item.names())
                names.push_back(name);
    return names;
}

MArgParser::MArgParser() = default;
MArgParser::~MArgParser() = default;
const char *MArgParser::className()
{
    return "MArgParser";
}

MArgParser::MArgParser(const MSyntax &syntax, const MArgList &argList, MStatus *ReturnStatus)
{
    host::report(ReturnStatus, host::loudly([&] {
                     parsed_ = std::make_shared<const ParsedArguments>(
                         host::tableOf(syntax), host::valuesOf(argList), host::selectedNames());
                 }));
}

bool MArgParser::isFlagSet(const char *flag, MStatus *ReturnStatus) const
{
    const std::string name = flag ? flag : "";
    const bool isKnown = parsed_ && parsed_->knows(name);
    host::report(ReturnStatus, isKnown ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return isKnown && parsed_->uses(name) > 0;
}

bool MArgParser::isEdit(MStatus *ReturnStatus) const
{
    host::report(ReturnStatus, parsed_ ? MStatus::kSuccess : MStatus::kFailure);
    return parsed_ && parsed_->isEdit();
}

bool MArgParser::isQuery(MStatus *ReturnStatus) const
{
    host::report(ReturnStatus, parsed_ ? MStatus::kSuccess : MStatus::kFailure);
    return parsed_ && parsed_->isQuery();
}

unsigned int MArgParser::numberOfFlagsUsed() const
{
    return parsed_ ? parsed_->flagsUsed() : 0;
}

unsigned int MArgParser::numberOfFlagUses(const char *flag) const
{
    return parsed_ ? parsed_->uses(flag ? flag : "") : 0;
}

MStatus MArgParser::getFlagArgument(const char *flag, unsigned int index, bool &result) const
{
    return getFlag(parsed_, flag, index, result);
}
MStatus MArgParser::getFlagArgument(const char *flag, unsigned int index, int &result) const
{
    return getFlag(parsed_, flag, index, result);
}
MStatus MArgParser::getFlagArgument(const char *flag, unsigned int index, double &result) const
{
    return getFlag(parsed_, flag, index, result);
}
MStatus MArgParser::getFlagArgument(const char *flag, unsigned int index, MString &result) const
{
    return getFlag(parsed_, flag, index, result);
}

bool MArgParser::flagArgumentBool(const char *flag, unsigned int index, MStatus *status) const
{
    return flagAs<bool>(*this, flag, index, status);
}
int MArgParser::flagArgumentInt(const char *flag, unsigned int index, MStatus *status) const
{
    return flagAs<int>(*this, flag, index, status);
}
double MArgParser::flagArgumentDouble(const char *flag, unsigned int index, MStatus *status) const
{
    return flagAs<double>(*this, flag, index, status);
}
MString MArgParser::flagArgumentString(const char *flag, unsigned int index, MStatus *status) const
{
    return flagAs<MString>(*this, flag, index, status);
}

MStatus MArgParser::getCommandArgument(unsigned int index, bool &result) const
{
    return getArgument(parsed_, index, result);
}
MStatus MArgParser::getCommandArgument(unsigned int index, int &result) const
{
    return getArgument(parsed_, index, result);
}
MStatus MArgParser::getCommandArgument(unsigned int index, double &result) const
{
    return getArgument(parsed_, index, result);
}
MStatus MArgParser::getCommandArgument(unsigned int index, MString &result) const
{
    return getArgument(parsed_, index, result);
}

MStatus MArgParser::getObjects(MStringArray &result) const
{
    if (!parsed_)
        return MStatus::kFailure;
    MStringArray names;
    for (const std::string_view name : parsed_->objects)
        names.append(host::toMString(name));
    result = names;
    return MStatus::kSuccess;
}

MArgDatabase::MArgDatabase() = default;
MArgDatabase::MArgDatabase(const MSyntax &syntax, const MArgList &argList, MStatus *ReturnStatus)
    : MArgParser(syntax, argList, ReturnStatus)
{
}
MArgDatabase::~MArgDatabase() = default;
const char *MArgDatabase::className()
{
    return "MArgDatabase";
}

MStatus MArgDatabase::getFlagArgument(const char *flag, unsigned int index,
                                      MSelectionList &result) const
{
    MString name;
    const MStatus status = getFlagArgument(flag, index, name);
    return status ? addName(result, name) : status;
}

MStatus MArgDatabase::getCommandArgument(unsigned int index, MSelectionList &result) const
{
    MString name;
    const MStatus status = getCommandArgument(index, name);
    return status ? addName(result, name) : status;
}

MStatus MArgDatabase::getObjects(MSelectionList &result) const
{
    MStringArray names;
    MStatus status = getObjects(names);
    result.clear();
    for (unsigned int i = 0; status && i < names.length(); ++i)
        status = addName(result, names[i]);
    return status;
}
