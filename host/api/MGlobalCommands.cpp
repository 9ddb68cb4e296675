// SPDX-License-Identifier: Apache-2.0
// Running MEL through MGlobal.
#include <maya/MCommandResult.h>
#include <maya/MGlobal.h>

#include "api/apiAccess.h"
#include "api/commandResult.h"
#include "api/process.h"
#include "api/status.h"
#include "api/text.h"

using host::Process;
using host::mel::MelValue;
using host::mel::Outcome;

namespace
{

Outcome run(const MString &command, bool displayEnabled, bool undoEnabled)
{
    Process *process = Process::current();
    if (!process)
        return {false, MelValue()};
    host::mel::RunOptions options;
    options.echo = displayEnabled;
    options.undo = undoEnabled;
    return process->interpreter().run(host::toString(command), options);
}

// Runs `command` for its result. A result of another kind, or none, is a failure too.
template <class Result>
MStatus runFor(Result &result, const MString &command, bool displayEnabled, bool undoEnabled)
{
    const Outcome outcome = run(command, displayEnabled, undoEnabled);
    if (!outcome.succeeded || !host::convert(outcome.value, result))
        return MStatus::kFailure;
    return MStatus::kSuccess;
}

} // namespace

MStatus MGlobal::executeCommand(const MString &command, bool displayEnabled, bool undoEnabled)
{
    return run(command, displayEnabled, undoEnabled).succeeded ? MStatus::kSuccess
                                                               : MStatus::kFailure;
}

MStatus MGlobal::executeCommand(const MString &command, MCommandResult &result, bool displayEnabled,
                                bool undoEnabled)
{
    Outcome outcome = run(command, displayEnabled, undoEnabled);
    if (!outcome.succeeded)
        return MStatus::kFailure;
    host::ApiAccess::body(result) =
        std::make_shared<const host::ResultBody>(std::move(outcome.value));
    return MStatus::kSuccess;
}

MStatus MGlobal::executeCommand(const MString &command, int &result, bool displayEnabled,
                                bool undoEnabled)
{
    return runFor(result, command, displayEnabled, undoEnabled);
}

MStatus MGlobal::executeCommand(const MString &command, MIntArray &result, bool displayEnabled,
                                bool undoEnabled)
{
    return runFor(result, command, displayEnabled, undoEnabled);
}

MStatus MGlobal::executeCommand(const MString &command, double &result, bool displayEnabled,
                                bool undoEnabled)
{
    return runFor(result, command, displayEnabled, undoEnabled);
}

MStatus MGlobal::executeCommand(const MString &command, MDoubleArray &result, bool displayEnabled,
                                bool undoEnabled)
{
    return runFor(result, command, displayEnabled, undoEnabled);
}

MStatus MGlobal::executeCommand(const MString &command, MString &result, bool displayEnabled,
                                bool undoEnabled)
{
    return runFor(result, command, displayEnabled, undoEnabled);
}

MStatus MGlobal::executeCommand(const MString &command, MStringArray &result, bool displayEnabled,
                                bool undoEnabled)
{
    return runFor(result, command, displayEnabled, undoEnabled);
}

MString MGlobal::executeCommandStringResult(const MString &command, bool displayEnabled,
                                            bool undoEnabled, MStatus *ResultStatus)
{
    const Outcome outcome = run(command, displayEnabled, undoEnabled);
    const bool hasResult =
        outcome.succeeded && !std::holds_alternative<std::monostate>(outcome.value);
    host::report(ResultStatus, hasResult ? MStatus::kSuccess : MStatus::kFailure);
    return hasResult ? host::toMString(host::mel::toText(outcome.value)) : MString();
}

MStatus MGlobal::executeCommandOnIdle(const MString &command, bool)
{
    Process *process = Process::current();
    if (!process)
        return MStatus::kFailure;
    process->runWhenIdle(host::toString(command));
    return MStatus::kSuccess;
}

MStatus MGlobal::sourceFile(const MString &fileName)
{
    return executeCommand(host::toMString("source " + host::melString(host::view(fileName))));
}
