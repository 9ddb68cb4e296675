// SPDX-License-Identifier: Apache-2.0
// A table of its own, whose hand-over a test fills by hand: preparers, writers and replay alone.
#pragma once

#include "commands/preparers.h"
#include "commands/undoReplay.h"
#include "commands/writers.h"
#include "model/weightTableModel.h"
#include "support/mayaSession.h"

class PreparedScene : public MayaSession
{
protected:
    PreparedScene() : model_(nullptr) {}

    void load(const std::string &names)
    {
        mel("select -r " + names);
        model_.refreshSkinClusterData();
    }
    preparation prepare(editPreparer preparer)
    {
        const editSource source = {model_.weights(), model_.locks(), handOver_, maxInfluences_};
        edit_ = preparedEdit();
        return preparer(source, edit_);
    }

    weightTableModel model_;
    editHandOver handOver_;
    int maxInfluences_ = 4;
    preparedEdit edit_;
};
