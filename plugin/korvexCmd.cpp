// SPDX-License-Identifier: Apache-2.0
#include "plugin/korvexCmd.h"

#include <QApplication>

#include "model/messages.h"
#include "plugin/hostWindow.h"
#include "plugin/korvexFlags.h"
#include "plugin/processState.h"
#include "ui/korvexWindow.h"

#include <maya/MArgParser.h>
#include <maya/MGlobal.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

namespace
{

MStatus refuse(const MString &message)
{
    MGlobal::displayError(message);
    return MStatus::kFailure;
}

MStatus openWindow()
{
    // A widget without an application ends the process. Maya has none in batch mode.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return refuse(kNoUserInterface);
    if (!activeWindow) {
        activeWindow = new korvexWindow(hostWindow());
        activeModel = activeWindow->model();
    }
    activeWindow->show();
    activeWindow->raise();
    return MStatus::kSuccess;
}

MStatus carryOut(const korvexFlag &flag)
{
    MStringArray arguments;
    arguments.append(flag.longName);
    MString message;
    message.format(kFlagWithoutEdit, arguments);
    return refuse(message);
}

} // namespace

MSyntax korvexCmd::newSyntax()
{
    MSyntax syntax;
    syntax.enableQuery(false);
    syntax.enableEdit(false);
    for (const korvexFlag &flag : kKorvexFlags)
        syntax.addFlag(flag.shortName, flag.longName);
    return syntax;
}

MStatus korvexCmd::doIt(const MArgList &arguments)
{
    MStatus status;
    const MArgParser parser(syntax(), arguments, &status);
    if (!status)
        return status;
    if (parser.numberOfFlagsUsed() == 0)
        return openWindow();
    if (!activeModel)
        return refuse(kWindowNeverOpened);
    for (const korvexFlag &flag : kKorvexFlags) {
        if (parser.isFlagSet(flag.longName))
            return carryOut(flag);
    }
    return MStatus::kSuccess;
}

MStatus korvexCmd::redoIt()
{
    return MStatus::kSuccess;
}

MStatus korvexCmd::undoIt()
{
    return MStatus::kFailure;
}
