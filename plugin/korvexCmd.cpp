// SPDX-License-Identifier: Apache-2.0
#include "plugin/korvexCmd.h"

#include <QApplication>

#include "model/messages.h"
#include "model/weightTableModel.h"
#include "plugin/hostWindow.h"
#include "plugin/korvexFlags.h"
#include "plugin/processState.h"
#include "ui/korvexWindow.h"

#include <maya/MArgParser.h>
#include <maya/MGlobal.h>
#include <maya/MString.h>

#include <new>

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
    activeWindow->setWindowState(activeWindow->windowState() & ~Qt::WindowMinimized);
    activeWindow->show();
    activeWindow->raise();
    return MStatus::kSuccess;
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

// The window, and the table with it, may go while the command is on the undo queue.
korvexCmd::~korvexCmd()
{
    if (activeModel)
        activeModel->trail().dropped(number_);
}

MStatus korvexCmd::doIt(const MArgList &arguments)
{
    return guarded([&] { return run(arguments); });
}

// Maya must get no exception.
MStatus korvexCmd::guarded(const std::function<MStatus()> &work) const
{
    try {
        return reportDone(work());
    } catch (const std::bad_alloc &) {
        return refuse(kOutOfMemory);
    }
}

MStatus korvexCmd::run(const MArgList &arguments)
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
        if (!parser.isFlagSet(flag.longName))
            continue;
        const preparation prepared = edit_.prepare(flag.kind, activeModel);
        if (prepared == preparation::ready)
            return edit_.write(activeModel);
        if (prepared == preparation::outdated)
            return MStatus::kFailure;
    }
    return MStatus::kSuccess;
}

MStatus korvexCmd::redoIt()
{
    return guarded([this] { return edit_.write(activeModel); });
}

MStatus korvexCmd::undoIt()
{
    try {
        const MStatus status = edit_.putBack(activeModel);
        if (activeModel)
            activeModel->trail().undone(number_);
        return status;
    } catch (const std::bad_alloc &) {
        return refuse(kOutOfMemory);
    }
}

// A command that failed is not kept by Maya; still it may have written.
MStatus korvexCmd::reportDone(MStatus status) const
{
    if (activeModel && (status || edit_.hasDisplaced()))
        activeModel->trail().done(number_, edit_.hasDisplaced() ? editTrail::changedWeights
                                                                : editTrail::changedNothing);
    return status;
}
