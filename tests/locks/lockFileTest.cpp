// SPDX-License-Identifier: Apache-2.0
//
// Locks outlive the scene's being saved and opened again, by themselves or with changes between.

#include <sstream>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "locks/lockScene.h"
#include "model/messages.h"
#include "support/componentTags.h"

class lockFiles : public LockScene
{
protected:
    void saveAndOpen()
    {
        const std::string path = folder_.filePath("scene.ma").toStdString();
        mel("file -rename \"" + path + "\"; file -save -type \"mayaAscii\"");
        mel("file -f -new");
        mel("file -f -open \"" + path + "\"");
        mel("select -cl"); // the first event after a scene was opened goes unheard
    }
    bool fileSays(const char *text) const
    {
        QFile file(folder_.filePath("scene.ma"));
        return file.open(QIODevice::ReadOnly) && file.readAll().contains(text);
    }
    void lockSome()
    {
        loadBody();
        on("c0 r2 4:2", "newLockSelected");
        ASSERT_EQ(locked(), "#.. #.. ### #.. #.#");
    }

private:
    QTemporaryDir folder_;
};

TEST_F(lockFiles, bringBackEveryKindOfLock)
{
    lockSome();
    const std::string before = stored();
    saveAndOpen();
    load("body");
    EXPECT_EQ(locked(), "#.. #.. ### #.. #.#");
    EXPECT_EQ(stored(), before);
    EXPECT_TRUE(isLockedInMaya("hip"));
    EXPECT_EQ(takeErrors() + takeWarnings(), "");
}

TEST_F(lockFiles, holdTheLocksOfVerticesThatAreNotLoaded)
{
    lockSome();
    saveAndOpen();
    load("body.vtx[0] body.vtx[3]");
    EXPECT_EQ(locked(), "#.. #.. #.#");
    load("body.vtx[1:2]");
    EXPECT_EQ(locked(), "#.. ### #..");
    load("body");
    EXPECT_EQ(locked(), "#.. #.. ### #.. #.#");
}

TEST_F(lockFiles, findTheirShapesAndJointsInAnotherOrder)
{
    makeSkin("shirt", {"chest", "ankle"}, {{1, 0}, {1, 0}, {0, 1}, {1, 0}});
    loadBody();
    load("body.vtx[0] shirt.vtx[1:2]");
    on("c2 r4 1:0", "newLockSelected");
    ASSERT_EQ(locked(), "..#. #.#. ..#. ..#. ####");
    saveAndOpen();
    load("shirt.vtx[1:2] body.vtx[0]");
    EXPECT_EQ(columnNames(), "chest ankle hip knee");
    EXPECT_EQ(locked(), ".#.. .#.. #### .#.. .##.");
}

TEST_F(lockFiles, dropTheLocksOfAJointThatWasRenamed)
{
    loadBody();
    on("2:1", "newLockSelected");
    on("c1", "newLockSelected");
    mel("rename knee shin");
    saveAndOpen();
    load("body");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_EQ(takeErrors() + takeInfos(), "");
    call("setPrecision", 2);
    EXPECT_EQ(takeErrors(), "") << "a joint that is not loaded is no lock";
    call("newUnlockAll");
    EXPECT_EQ(takeErrors(), kNothingToUnlock);
}

TEST_F(lockFiles, keepTheLocksOfJointsBesideOneThatWasAdded)
{
    lockSome();
    mel("select -cl; joint -n toe; skinCluster -e -ai toe -wt 0 bodySkin; select -cl");
    saveAndOpen();
    load("body");
    EXPECT_EQ(columnNames(), "hip knee ankle toe");
    EXPECT_EQ(locked(), "#... #... #### #... #.#.");
    mel("skinCluster -e -ri knee bodySkin");
    load("body");
    EXPECT_EQ(columnNames(), "hip ankle toe");
    EXPECT_EQ(locked(), "#.. #.. ### #.. ##.");
}

TEST_F(lockFiles, haveNoLockWhereACellWasUnlocked)
{
    loadBody();
    on("r2", "lockCell");
    on("2:0 2:1", "newUnlockSelected");
    EXPECT_EQ(stored(), "cells 1[0] 1[1] 1[2]|ankle");
    on("2:0", "newLockSelected");
    EXPECT_EQ(stored(), "cells 1[0] 1[1] 1[2]|ankle 1[3]|hip");
    saveAndOpen();
    EXPECT_EQ(stored(), "cells 1[2]|ankle 1[3]|hip") << "emptied elements are not saved";
    load("body");
    EXPECT_EQ(locked(), "... ... #.# ... ...");
    on("2:1", "newLockSelected");
    EXPECT_EQ(locked(), "... ... ### ... ...");
    EXPECT_EQ(stored(), "cells 1[2]|ankle 1[3]|hip 1[4]|knee");
    saveAndOpen();
    load("body");
    EXPECT_EQ(locked(), "... ... ### ... ...");
}

// Maya does not save emptied elements, so that the number of elements may be the index of one.
TEST_F(lockFiles, haveNoCellLockOverwrittenByTheNext)
{
    loadBody();
    const auto element = [](int index, const char *joint) {
        return "setAttr -type \"string\" bodySkin.lockedCellIndices[1].lockedLocalJoints[" +
               std::to_string(index) + "] \"" + joint + "\";";
    };
    mel(element(2, "|ankle") + element(3, "|hip"));
    load();
    on("2:1", "newLockSelected");
    EXPECT_EQ(stored(), "cells 1[2]|ankle 1[3]|hip 1[4]|knee");
    on("r2", "unlockCell");
    EXPECT_EQ(stored(), "cells 1[2] 1[3] 1[4]");
    on("2:0", "newLockSelected");
    EXPECT_EQ(stored(), "cells 1[2] 1[3]|hip 1[4]") << "where no name stands";
}

TEST_F(lockFiles, bringBackTheLocksOfScenesThatPeopleMade)
{
    if (!qEnvironmentVariableIsSet("KORVEX_SCENES"))
        GTEST_SKIP() << "KORVEX_SCENES names no folder of scenes";
    const QDir scenes(qEnvironmentVariable("KORVEX_SCENES"));
    int skinCount = 0;
    for (const QString &name : scenes.entryList({"*.ma"})) {
        const std::string path = scenes.filePath(name).toStdString();
        mel("file -f -open \"" + path + "\"");
        std::istringstream skins(melStrings("ls -type skinCluster"));
        for (std::string skin; skins >> skin;) {
            SCOPED_TRACE(name.toStdString() + ", " + skin);
            mel("file -f -open \"" + path + "\"; select -cl");
            const std::string shape = melStrings("skinCluster -q -g " + skin);
            load(shape);
            ASSERT_GT(model_->rowCount(), 3);
            EXPECT_EQ(melString("file -q -modified"), "0") << "only looked at";
            // By whoever made the scene.
            const std::string joints = melStrings("skinCluster -q -inf " + skin);
            if (melNumbers("lockNode -q -l " + skin) == std::vector<double>{1} ||
                isLockedInMaya(joints.substr(0, joints.find(' '))))
                continue;
            takeErrors();
            selectCells(2, 0, 2, 0);
            EXPECT_TRUE(model_->setData(model_->index(2, 0), "0.3125"));
            on("c0 r2 3:1", "newLockSelected");
            EXPECT_EQ(takeErrors(), "");
            const std::string before = locked();
            const std::string edited = melWeights(shape + ".vtx[1]", skin);
            EXPECT_EQ(edited.substr(0, 7), "0.3125 ");
            saveAndOpen();
            load(shape);
            EXPECT_TRUE(locked() == before);
            EXPECT_NE(before.find('#'), std::string::npos);
            EXPECT_EQ(melWeights(shape + ".vtx[1]", skin), edited);
            ++skinCount;
        }
    }
    EXPECT_GT(skinCount, 0) << "no scene was checked";
}

// The attributes for locks are added to what is looked at; without a lock they are no change.
TEST_F(lockFiles, areNotChangedByAnotherWhoLooks)
{
    const auto isModified = [] { return melString("file -q -modified") == "1"; };
    for (const bool hasSet : {true, false}) {
        makeSkin("body", {"hip", "knee"}, {{1, 0}, {1, 0}, {0, 1}, {0.5, 0.5}});
        if (!hasSet)
            removeDeformerSet("body");
        mel("polyCube -n crate");
        saveAndOpen();
        load("body");
        EXPECT_FALSE(isModified());
        EXPECT_EQ(melString("objExists bodySkin.lockedVertexIndices"), "1");
        EXPECT_EQ(melString("undoInfo -q -undoName"), "select -r body");
        mel("file -save");
        EXPECT_FALSE(fileSays("lockedVertexIndices"));
        on("r1", "newLockSelected");
        EXPECT_TRUE(isModified());
        saveAndOpen();
        EXPECT_TRUE(fileSays("lockedVertexIndices"));
        call("setAutoUpdate", true);
        mel("select -r crate"); // the opening swallows it
        mel("select -r body");
        EXPECT_EQ(locked(), ".. ## .. .. ..");
        EXPECT_FALSE(isModified());
        call("setAutoUpdate", false);

        mel("deleteAttr bodySkin.lockedJointNames");
        load("body");
        EXPECT_TRUE(isModified()) << "it was before";
        mel("file -f -new; select -cl");
    }
}
