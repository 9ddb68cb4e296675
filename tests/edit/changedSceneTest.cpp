// SPDX-License-Identifier: Apache-2.0
//
// The scene changes under the table, and then somebody types.

#include <functional>

#include <maya/MGlobal.h>

#include "model/messages.h"
#include "support/editScene.h"

class changedScene : public EditScene
{
};

TEST_F(changedScene, takesTheEditOrSaysWhyNot)
{
    const char *const kWritten = "0.8 0.12 0.08";
    const struct {
        const char *change;
        int column;
        const char *info, *error;
        const char *weights; // of vertex 0 afterwards; empty: cannot be asked
    } cases[] = {
        {"rename bodySkin other; rename other bodySkin", 0, "", "", kWritten},
        {"rename hip pelvis", 0, "", "", kWritten},
        {"rename body torso; rename torso body", 0, "", "", kWritten},
        {"parent ankle knee", 0, "", "", kWritten},
        {"select -cl; joint -n tail; skinCluster -e -ai tail -wt 0 bodySkin", 0, "", "",
         "0.8 0.12 0.08 0"},
        {"delete bodySkin", 0, kDataNotSetUp, "", ""},
        {"delete body", 0, kDataNotSetUp, "", ""},
        {"skinCluster -e -ub bodySkin; skinCluster -tsb -n bodySkin hip knee ankle body; "
         "skinPercent -tv hip 1 bodySkin body.vtx[0]",
         0, kDataNotSetUp, "", "1 0 0"},
        {"skinCluster -e -ri ankle bodySkin; skinPercent -tv hip 0.5 bodySkin body.vtx[0]", 2,
         kNoJointIndex, "", "0.5 0.5"},
        {"skinCluster -e -ri ankle bodySkin", 0, "", "", "0.8 0.2"},
        {"setAttr bodySkin.nw 0; setAttr -lock 1 bodySkin.nw", 0, "",
         "The normalizeWeights attribute of bodySkin cannot be set, so no weight was written.",
         "0.5 0.3 0.2"},
    };
    for (const auto &c : cases) {
        mel("file -f -new");
        mel("select -cl"); // the first event after a scene was opened is swallowed
        loadBody();
        mel(c.change);
        takeErrors();
        takeInfos();
        EXPECT_TRUE(type(1, c.column, "0.8")) << c.change;
        EXPECT_EQ(takeInfos(), c.info) << c.change;
        EXPECT_EQ(takeErrors(), c.error) << c.change;
        if (*c.weights) {
            EXPECT_EQ(weights(0), c.weights) << c.change;
        }
    }
}

TEST_F(changedScene, writesOnceToAVertexThatIsLoadedTwice)
{
    makeSkin("body", {"a", "b", "c", "d"},
             {{.4, .3, .2, .1}, {.2504, .2496, .25, .25}, {1, 0, 0, 0}, {0, .5, .3, .2}});
    const auto held = [] { return weights(0) + ", " + weights(1) + ", " + weights(3); };
    const std::string before = held();
    const struct {
        const char *loaded;
        std::function<void()> operate;
        const char *weights;
    } cases[] = {
        {"body.vtx[0:1] body",
         [this] {
             call("setMaxValue", 2);
             call("applyMaxInfluence");
         },
         "0.571429 0.428571 0 0, 0 0 0.5 0.5, 0 0.625 0.375 0"},
        {"body.vtx[0:1] body",
         [this] {
             selectColumn(0);
             call("dragSlider", 0.5, true);
         },
         "0.5 0.25 0.166667 0.0833333, 0.5 0.166489 0.166756 0.166756, 0.5 0.25 0.15 0.1"},
        {"body body.vtx[1]", [this] { call("applyPrecision"); },
         "0.4 0.3 0.2 0.1, 0.25 0.25 0.25 0.25, 0 0.5 0.3 0.2"},
    };
    for (const auto &c : cases) {
        load(c.loaded);
        view_->clearSelection();
        c.operate();
        EXPECT_EQ(held(), c.weights) << c.loaded;
        MGlobal::executeCommand("undo"); // the load is not on the queue
        EXPECT_EQ(held(), before) << c.loaded;
    }
}

TEST_F(changedScene, undoesAnEditOfATableThatWasReplaced)
{
    loadBody();
    makeSkin("hat", {"head", "knee"}, {{0.5, 0.5}, {0.5, 0.5}, {1, 0}, {1, 0}});
    EXPECT_TRUE(type(1, 0, "0.8"));
    const auto loadQuietly = [this](const char *names) {
        MGlobal::executeCommand((std::string("select -r ") + names).c_str());
        load();
    };
    loadQuietly("hat body.vtx[0:1] body");
    mel("undo");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    const std::string after = picture();
    loadQuietly("hat body.vtx[0:1] body");
    EXPECT_EQ(picture(), after) << "in both of the rows that show the vertex";
    MGlobal::executeCommand("select -cl");
    load();
    mel("redo");
    EXPECT_EQ(weights(0), "0.8 0.12 0.08");
    EXPECT_EQ(takeErrors(), kNothingToUndo) << "there are no rows to follow it";
    delete window_;
    mel("undo");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
}

TEST_F(changedScene, followsASkinClusterThatWasDeletedAndBroughtBack)
{
    loadBody();
    EXPECT_TRUE(type(1, 0, "0.8"));
    mel("delete bodySkin");
    mel("undo; undo");
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    EXPECT_EQ(shown(1), "0.500 0.300 0.200");
}
