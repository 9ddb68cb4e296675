// SPDX-License-Identifier: Apache-2.0
//
// Skin clusters that take no locks: one error each, and the table works on.

#include "locks/lockScene.h"
#include "model/messages.h"

class refusedLocks : public LockScene
{
protected:
    static std::string notStored(const std::string &skinCluster)
    {
        std::string message = kLocksNotStored;
        return message.replace(message.find("^1s"), 3, skinCluster);
    }
    void lockARowAndTwoCells()
    {
        on("r2 3:0 3:1", "newLockSelected");
        EXPECT_EQ(locked(), "... ... ### ##. ...");
    }
};

TEST_F(refusedLocks, holdUntilTheNextLoadWhereTheNodeIsLocked)
{
    makeSkin("body", {"hip", "knee", "ankle"}, {{1, 0, 0}, {0.2, 0.4, 0.4}, {0, 1, 0}, {1, 0, 0}});
    mel("lockNode bodySkin");
    load("body");
    EXPECT_EQ(takeErrors(), "") << "nothing is to be stored yet";
    lockARowAndTwoCells();
    EXPECT_EQ(takeErrors(), notStored("bodySkin"));
    call("newUnlockAll");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    takeErrors();

    lockARowAndTwoCells();
    load();
    EXPECT_EQ(locked(), "... ... ... ... ...");
    mel("lockNode -lock 0 bodySkin");
    takeErrors();
    lockARowAndTwoCells();
    EXPECT_EQ(takeErrors(), "");
    EXPECT_EQ(stored(), "vertices 1; cells 2[0]|hip 2[1]|knee");
}

TEST_F(refusedLocks, areReportedOnceWhereAnAttributeIsLocked)
{
    loadBody();
    mel("setAttr -lock 1 bodySkin.lockedCellIndices");
    lockARowAndTwoCells();
    EXPECT_EQ(takeErrors(), notStored("bodySkin"));
    EXPECT_EQ(stored(), "vertices 1") << "what can be stored is";
}

TEST_F(refusedLocks, areReportedWhereTheSkinWasDeleted)
{
    loadBody();
    mel("delete body");
    lockARowAndTwoCells();
    EXPECT_EQ(takeErrors(), notStored("a deleted skin cluster"));
    call("checkLockAttr");
    EXPECT_EQ(takeErrors(), kShapeNotInTable);
    EXPECT_EQ(locked(), "... ... ... ... ...");
}
