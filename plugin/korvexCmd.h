// SPDX-License-Identifier: Apache-2.0
// The plug-in's one command. Without flags it opens the editor window, or shows it again; with one
// of its flags it carries an edit of the table through Maya's undo queue.
#pragma once

#include "commands/weightEdit.h"
#include "model/editTrail.h"

#include <maya/MArgList.h>
#include <maya/MPxCommand.h>
#include <maya/MStatus.h>
#include <maya/MSyntax.h>

#include <functional>

class korvexCmd : public MPxCommand
{
public:
    static const char *name() { return "korvexCmd"; }
    // Maya owns what it returns.
    static void *creator() { return new korvexCmd; }
    static MSyntax newSyntax();
    ~korvexCmd() override;

    // Needs Maya's user interface to open the window, and an opened window to carry an edit. An
    // edit that cannot be prepared is no failure, but for one that the scene has no place for.
    MStatus doIt(const MArgList &arguments) override;
    MStatus redoIt() override;
    // Fails if there is no edit to take back.
    MStatus undoIt() override;
    // Also for an invocation that only opened the window.
    bool isUndoable() const override { return true; }

private:
    MStatus run(const MArgList &arguments);
    MStatus guarded(const std::function<MStatus()> &work) const;
    MStatus reportDone(MStatus status) const;

    const int number_ = editTrail::newEdit();
    weightEdit edit_; // never prepared if this invocation opened the window
};
