// SPDX-License-Identifier: Apache-2.0
// A command that carries one kind of edit: what the command classes of the editor's operations have
// in common. Maya does not know them; the window owns one of each.
//
// All commands of one class serve the window and the model that the latest of them was built with.
// Both must live as long as a command is executed, undone or redone.
#pragma once

#include "commands/weightEdit.h"

#include <maya/MArgList.h>
#include <maya/MPxCommand.h>
#include <maya/MStatus.h>

class korvexWindow;

// `Operation` is the class derived from it.
template <typename Operation>
class operationCmd : public MPxCommand
{
public:
    static korvexWindow *window() { return window_; }
    static weightTableModel *model() { return model_; }

    // Carries what the table's last operation has left; the arguments are not used. An edit that
    // cannot be prepared is no failure, but for one that the scene has no place for.
    MStatus doIt(const MArgList &) override
    {
        const preparation prepared = edit_.prepare(kind_, model_);
        if (prepared == preparation::ready)
            return redoIt();
        return prepared == preparation::outdated ? MStatus::kFailure : MStatus::kSuccess;
    }
    MStatus redoIt() override { return edit_.write(model_); }
    // Fails if there is nothing to take back.
    MStatus undoIt() override { return edit_.putBack(model_); }
    bool isUndoable() const override { return true; }

protected:
    operationCmd(korvexWindow *window, weightTableModel *model, const editKind &kind) : kind_(kind)
    {
        window_ = window;
        model_ = model;
    }

private:
    static korvexWindow *window_;
    static weightTableModel *model_;

    editKind kind_;
    weightEdit edit_;
};

template <typename Operation>
korvexWindow *operationCmd<Operation>::window_ = nullptr;
template <typename Operation>
weightTableModel *operationCmd<Operation>::model_ = nullptr;
