// SPDX-License-Identifier: Apache-2.0
// A table of its own, whose hand-over a test fills by hand: preparers, writers and replay alone.
#pragma once

#include "commands/preparers.h"
#include "commands/undoReplay.h"
#include "commands/writers.h"
#include "model/weightTableModel.h"
#include "support/infoRecorder.h"
#include "support/mayaSession.h"

class PreparedScene : public MayaSession
{
protected:
    PreparedScene() : model_(nullptr) {}

    // MESHSkin on MESH, as EditorScene::makeSkin, and its table.
    static void makeSkin(const std::string &mesh, const std::vector<std::string> &joints,
                         const std::vector<std::vector<double>> &rows);
    void load(const std::string &names);

    preparation prepare(editPreparer preparer);
    // "0.5 0.3 0.2; ...": all vertices.
    static std::string weights(const std::string &mesh);

    weightTableModel model_;
    editHandOver handOver_;
    int maxInfluences_ = 4;
    preparedEdit edit_;
    InfoRecorder infos_;
};
