// SPDX-License-Identifier: Apache-2.0
//
// Locking: what the selection locks, in the table and in the scene.

#include "locks/lockScene.h"
#include "model/messages.h"

class lockSelected : public LockScene
{
};

TEST_F(lockSelected, locksAJointInTheTableInMayaAndOnEverySkinCluster)
{
    makeSkin("shirt", {"chest", "ankle"}, {{1, 0}, {1, 0}, {0, 1}, {1, 0}});
    loadBody();
    load("body shirt.vtx[2] shirt.vtx[0]");
    selectColumn(1);
    call("newLockSelected");
    EXPECT_EQ(locked(), ".#.. .#.. .#.. .#.. .#.. .#.. .#.. .#..");
    EXPECT_TRUE(isLockedInMaya("knee"));
    EXPECT_FALSE(isLockedInMaya("hip"));
    EXPECT_EQ(stored("bodySkin"), "joints |knee");
    EXPECT_EQ(stored("shirtSkin"), "joints |knee");
    EXPECT_EQ(takeInfos() + takeErrors(), "");

    load();
    EXPECT_EQ(locked(), ".#.. .#.. .#.. .#.. .#.. .#.. .#.. .#..") << "after loading again";
    selectColumn(1);
    call("newUnlockSelected");
    EXPECT_EQ(stored("bodySkin") + stored("shirtSkin"), "");
    EXPECT_FALSE(isLockedInMaya("knee"));
}

TEST_F(lockSelected, storesAJointOnceForAShapeThatIsLoadedTwice)
{
    loadBody();
    load("body body.vtx[2]");
    selectColumn(0);
    call("newLockSelected");
    EXPECT_EQ(stored(), "joints |hip");
}

TEST_F(lockSelected, onlyListsAJointThatMayaHasLocked)
{
    loadBody();
    mel("setAttr hip.lockInfluenceWeights 1");
    selectColumn(0);
    call("newLockSelected");
    EXPECT_EQ(takeInfos(), kJointAlreadyLocked);
    EXPECT_EQ(locked(), "#.. #.. #.. #.. #..");
    EXPECT_EQ(stored(), "");
}

TEST_F(lockSelected, locksRowsByTheVerticesThatTheyStandFor)
{
    loadBody();
    load("body.vtx[1] body.vtx[3]");
    selectRow(2);
    call("newLockSelected");
    EXPECT_EQ(locked(), "... ... ###");
    EXPECT_EQ(stored(), "vertices 3");
}

TEST_F(lockSelected, locksSingleCells)
{
    loadBody();
    selectCells(2, 1, 3, 2);
    alsoSelect(4, 0);
    call("newLockSelected");
    EXPECT_EQ(locked(), "... ... .## .## #..");
    EXPECT_EQ(stored(), "cells 1[0]|knee 1[1]|ankle 2[0]|knee 2[1]|ankle 3[0]|hip");
}

TEST_F(lockSelected, saysWhatIsLockedAlreadyAndGoesOn)
{
    loadBody();
    selectColumn(0);
    alsoSelectRow(1);
    alsoSelect(3, 2);
    call("newLockSelected");
    EXPECT_EQ(takeInfos(), "");
    const std::string once = stored();
    selectColumn(0);
    alsoSelectRow(1);
    alsoSelectRow(2);
    alsoSelect(3, 2);
    call("newLockSelected");
    EXPECT_EQ(takeInfos(), std::string(kJointAlreadyLocked) + "\n" + kRowAlreadyLocked);
    EXPECT_EQ(locked(), "#.. ### ### #.# #..");
    EXPECT_EQ(once, "joints |hip; vertices 0; cells 2[0]|ankle");
    EXPECT_EQ(stored(), "joints |hip; vertices 0 1; cells 2[0]|ankle");
}

TEST_F(lockSelected, endsAtAShapeRow)
{
    loadBody();
    selectRow(0);
    alsoSelect(2, 1);
    call("newLockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), "... ... ... ... ...");

    selectRow(3); // in the order of selecting
    alsoSelectRow(0);
    alsoSelectRow(4);
    call("newLockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), "... ... ... ### ...");

    selectCells(0, 1, 2, 1);
    call("newLockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking) << "once, not for each cell";
    EXPECT_EQ(stored(), "vertices 2");
}

TEST_F(lockSelected, refusesAnEmptySelection)
{
    const struct {
        const char *slot;
        const char *error;
    } cases[] = {
        {"newLockSelected", kNothingToLock}, {"newUnlockSelected", kNothingSelectedToUnlock},
        {"newUnlockAll", kNothingToUnlock},  {"lockSelected", kNothingToLock},
        {"unlockAll", kNothingToUnlock},     {"unlockSelected", kNothingSelectedToUnlock},
    };
    for (const char *mesh : {"", "body"}) {
        if (*mesh)
            loadBody();
        for (const auto &c : cases) {
            call(c.slot);
            EXPECT_EQ(takeErrors(), c.error) << c.slot << mesh;
        }
    }
}

class lockCell : public LockScene
{
};

TEST_F(lockCell, storesASecondLockOfTheSameCell)
{
    loadBody();
    selectCells(2, 1, 2, 1);
    call("lockCell");
    call("lockCell");
    EXPECT_EQ(stored(), "cells 1[0]|knee 1[1]|knee");
    call("newUnlockSelected");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_EQ(stored(), "cells 1[0] 1[1]");
}

TEST_F(lockCell, locksCellByCellWhatIsSelectedAsAWhole)
{
    loadBody();
    selectRow(2);
    call("lockCell");
    EXPECT_EQ(stored(), "cells 1[0]|hip 1[1]|knee 1[2]|ankle");
    selectColumn(1);
    call("lockCell");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), "... ... ### ... ...");
}
