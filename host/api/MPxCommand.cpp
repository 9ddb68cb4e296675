// SPDX-License-Identifier: Apache-2.0
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MPxCommand.h>
#include <maya/MStringArray.h>
#include <maya/MSyntax.h>

#include "api/commandResult.h"
#include "api/pluginCommand.h"
#include "api/process.h"
#include "api/status.h"
#include "api/text.h"

using host::mel::MelValue;

namespace
{

void setCommandResult(MelValue value)
{
    if (host::Process *process = host::Process::current())
        process->commandResult = std::move(value);
}

template <class Element>
void appendToCommandResult(const Element &element)
{
    if (host::Process *process = host::Process::current())
        host::append(process->commandResult, element);
}

MelValue currentResult()
{
    host::Process *process = host::Process::current();
    return process ? process->commandResult : MelValue();
}

template <class Element, class Array>
std::vector<Element> toVector(const Array &array)
{
    std::vector<Element> list;
    list.reserve(array.length());
    for (unsigned int i = 0; i < array.length(); ++i)
        list.push_back(array[i]);
    return list;
}

} // namespace

MPxCommand::MPxCommand() : context_(new host::CommandContext) {}
MPxCommand::~MPxCommand() = default;
const char *MPxCommand::className()
{
    return "MPxCommand";
}

MStatus MPxCommand::doIt(const MArgList &)
{
    displayError(context_->commandString + ": doIt is not defined");
    return MStatus::kFailure;
}

MStatus MPxCommand::undoIt()
{
    return MStatus::kSuccess;
}
MStatus MPxCommand::redoIt()
{
    return MStatus::kSuccess;
}
bool MPxCommand::isUndoable() const
{
    return false;
}
bool MPxCommand::hasSyntax() const
{
    return false;
}
MSyntax MPxCommand::syntax() const
{
    return context_->syntax;
}
bool MPxCommand::isHistoryOn() const
{
    return context_->isHistoryOn;
}
MString MPxCommand::commandString() const
{
    return context_->commandString;
}

MStatus MPxCommand::setHistoryOn(bool state)
{
    context_->isHistoryOn = state;
    return MStatus::kSuccess;
}

MStatus MPxCommand::setCommandString(const MString &text)
{
    context_->commandString = text;
    return MStatus::kSuccess;
}

void MPxCommand::displayInfo(const MString &theInfo)
{
    host::showInfo(host::toString(theInfo));
}

void MPxCommand::displayWarning(const MString &theWarning, bool)
{
    host::showWarning(host::toString(theWarning));
}

void MPxCommand::displayError(const MString &theError, bool)
{
    host::showError(host::toString(theError));
}

void MPxCommand::clearResult()
{
    setCommandResult(MelValue());
}
void MPxCommand::setResult(unsigned int val)
{
    setCommandResult(static_cast<long long>(val));
}
void MPxCommand::setResult(int val)
{
    setCommandResult(static_cast<long long>(val));
}
void MPxCommand::setResult(double val)
{
    setCommandResult(val);
}
void MPxCommand::setResult(bool val)
{
    setCommandResult(static_cast<long long>(val));
}
void MPxCommand::setResult(const char *val)
{
    setResult(MString(val));
}
void MPxCommand::setResult(const MString &val)
{
    setCommandResult(host::toString(val));
}
void MPxCommand::setResult(const MIntArray &val)
{
    setCommandResult(toVector<long long>(val));
}
void MPxCommand::setResult(const MDoubleArray &val)
{
    setCommandResult(toVector<double>(val));
}

void MPxCommand::setResult(const MStringArray &val)
{
    std::vector<std::string> list;
    for (unsigned int i = 0; i < val.length(); ++i)
        list.push_back(host::toString(val[i]));
    setCommandResult(std::move(list));
}

void MPxCommand::appendToResult(int val)
{
    appendToCommandResult(static_cast<long long>(val));
}
void MPxCommand::appendToResult(double val)
{
    appendToCommandResult(val);
}
void MPxCommand::appendToResult(bool val)
{
    appendToCommandResult(static_cast<long long>(val));
}
void MPxCommand::appendToResult(const char *val)
{
    appendToResult(MString(val));
}
void MPxCommand::appendToResult(const MString &val)
{
    appendToCommandResult(host::toString(val));
}

void MPxCommand::appendToResult(const MStringArray &val)
{
    for (unsigned int i = 0; i < val.length(); ++i)
        appendToResult(val[i]);
}

bool MPxCommand::isCurrentResultArray()
{
    const MelValue result = currentResult();
    return std::holds_alternative<std::vector<long long>>(result) ||
           std::holds_alternative<std::vector<double>>(result) ||
           std::holds_alternative<std::vector<std::string>>(result);
}

MPxCommand::MResultType MPxCommand::currentResultType()
{
    // In the order of the alternatives of MelValue.
    constexpr MResultType kTypes[] = {kNoArg, kLong, kDouble, kString, kLong, kDouble, kString};
    return kTypes[currentResult().index()];
}
