// SPDX-License-Identifier: Apache-2.0
//
// Maya's events on their way to the table.

#include <QTemporaryDir>

#include "support/editorScene.h"

#include <maya/MGlobal.h>

class event : public EditorScene
{
protected:
    event()
    {
        makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}, {1, 0}, {1, 0}});
        makeSkin("hat", {"head"}, {{1}, {1}, {1}, {1}});
    }
};

TEST_F(event, ofASelectionSelectsTheRowsOfItsVertices)
{
    load("body hat"); // rows 0 to 6, 7 to 11
    const struct {
        const char *names, *rows;
    } cases[] = {
        {"body.vtx[1] body.vtx[4]", "2 5"},
        {"hat.vtx[0:2]", "8 9 10"},
        {"hat.vtx[3] body.vtx[0]", "1 11"},
        {"body", ""},
        {"body.f[0]", ""},
        {"hip", ""},
    };
    for (const auto &c : cases) {
        mel(std::string("select -r ") + c.names);
        EXPECT_EQ(selectedRows(), c.rows) << c.names;
    }
    mel("select body.vtx[0]; select -cl");
    EXPECT_EQ(selectedRows(), "");
    EXPECT_EQ(model_->rowCount(), 12);
}

TEST_F(event, ofASelectionFindsVerticesThatWereLoadedAlone)
{
    load("body.vtx[1] body.vtx[3:4] hat.vtx[2]"); // rows 0 to 3, 4 to 5
    mel("select -r body.vtx[0:3] hat.vtx[1:2]");
    EXPECT_EQ(selectedRows(), "1 2 5");
    mel("select -r body.vtx[5]");
    EXPECT_EQ(selectedRows(), "") << "not loaded";
}

TEST_F(event, ofASelectionReloadsWhileTheTableFollowsMaya)
{
    load("body");
    call("setAutoUpdate", true);
    mel("select -r hat.vtx[1]");
    EXPECT_EQ(rowNames(), "hatShape vtx[1]");
    mel("select -cl");
    EXPECT_EQ(rowNames(), "hatShape vtx[1]") << "nothing selected keeps the table";
    mel("undo; undo");
    EXPECT_EQ(rowNames(), "bodyShape vtx[0] vtx[1] vtx[2] vtx[3] vtx[4] vtx[5]");
}

TEST_F(event, ofTheEditorsOwnSelectionLeavesTheTableAlone)
{
    const char body[] = "bodyShape vtx[0] vtx[1] vtx[2] vtx[3] vtx[4] vtx[5]";
    load("body");
    call("setAutoUpdate", true);
    call("toggleHilight", true);
    selectRow(2);
    call("rowHeaderSelected", 2);
    EXPECT_EQ(selectedInMaya(), "body.vtx[1]");
    EXPECT_EQ(rowNames(), body) << "highlighted";
    call("applySmoothSkinWeights", 0.5, 1);
    EXPECT_EQ(rowNames(), body) << "smoothed";
    mel("select -r body.vtx[1]");
    EXPECT_EQ(rowNames(), "bodyShape vtx[1]") << "the user selects the same again";

    load("body hat");
    selectRow(2);
    MGlobal::executeCommand("select -r hat.vtx[1]");
    call("rowHeaderSelected", 2);
    mel("select -r hat.vtx[2]");
    EXPECT_EQ(rowNames(), "hatShape vtx[2]") << "the user selects before the event has come";
    MGlobal::executeCommand("select -r body.vtx[3]");
    call("applySmoothSkinWeights", 0.5, 1);
    EXPECT_EQ(rowNames(), "bodyShape vtx[3]") << "the user has selected just before a smoothing";
}

TEST_F(event, ofTheSelectionThatASceneTakesAlongShowsNoError)
{
    QTemporaryDir folder;
    const std::string file = folder.filePath("scene.ma").toStdString();
    mel("file -rename \"" + file + "\"; file -f -save -type \"mayaAscii\"");
    for (const bool follows : {true, false}) {
        for (const std::string &leave : {std::string("-new"), "-open \"" + file + "\""}) {
            mel("file -f -open \"" + file + "\"; select -cl; select -r hip");
            load("body");
            call("setAutoUpdate", follows);
            call("toggleHilight", true);
            selectRow(2);
            call("rowHeaderSelected", 2);
            takeErrors();
            mel("file -f " + leave);
            EXPECT_EQ(takeErrors() + takeWarnings(), "") << leave << follows;
        }
    }
}

TEST_F(event, ofASceneOpenedEmptiesTheTableAndSwallowsTheNextSelection)
{
    QTemporaryDir folder;
    const std::string file = folder.filePath("scene.ma").toStdString();
    mel("file -rename \"" + file + "\"; file -f -save -type \"mayaAscii\"");
    load("body");
    call("toggleFilter", true);
    mel("select -cl"); // else the opening itself changes the selection, and late events swallow
                       // that
    mel("file -f -open \"" + file + "\"");
    EXPECT_EQ(model_->rowCount(), 0);
    EXPECT_EQ(model_->columnCount(), 0);
    call("setAutoUpdate", true);
    mel("select -r body");
    EXPECT_EQ(model_->rowCount(), 0);
    mel("select -r hat");
    EXPECT_EQ(model_->rowCount(), 5);
}
