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
    on("c1", "newLockSelected");
    EXPECT_EQ(locked(), ".#.. .#.. .#.. .#.. .#.. .#.. .#.. .#..");
    EXPECT_TRUE(isLockedInMaya("knee"));
    EXPECT_FALSE(isLockedInMaya("hip"));
    EXPECT_EQ(stored("bodySkin"), "joints |knee");
    EXPECT_EQ(stored("shirtSkin"), "joints |knee");
    EXPECT_EQ(takeInfos() + takeErrors(), "");

    load();
    EXPECT_EQ(locked(), ".#.. .#.. .#.. .#.. .#.. .#.. .#.. .#..") << "after loading again";
    on("c1", "newUnlockSelected");
    EXPECT_EQ(stored("bodySkin") + stored("shirtSkin"), "");
    EXPECT_FALSE(isLockedInMaya("knee"));
}

TEST_F(lockSelected, storesAJointOnceForAShapeThatIsLoadedTwice)
{
    loadBody();
    load("body body.vtx[2]");
    on("c0", "newLockSelected");
    EXPECT_EQ(stored(), "joints |hip");
}

TEST_F(lockSelected, onlyListsAJointThatMayaHasLocked)
{
    loadBody();
    mel("setAttr hip.lockInfluenceWeights 1");
    on("c0", "newLockSelected");
    EXPECT_EQ(takeInfos(), kJointAlreadyLocked);
    EXPECT_EQ(locked(), "#.. #.. #.. #.. #..");
    EXPECT_EQ(stored(), "");
}

TEST_F(lockSelected, locksRowsByTheVerticesThatTheyStandFor)
{
    loadBody();
    load("body.vtx[1] body.vtx[3]");
    on("r2", "newLockSelected");
    EXPECT_EQ(locked(), "... ... ###");
    EXPECT_EQ(stored(), "vertices 3");
}

TEST_F(lockSelected, locksSingleCells)
{
    loadBody();
    on("2:1 2:2 3:1 3:2 4:0", "newLockSelected");
    EXPECT_EQ(locked(), "... ... .## .## #..");
    EXPECT_EQ(stored(), "cells 1[0]|knee 1[1]|ankle 2[0]|knee 2[1]|ankle 3[0]|hip");
}

TEST_F(lockSelected, saysWhatIsLockedAlreadyAndGoesOn)
{
    loadBody();
    on("c0 r1 3:2", "newLockSelected");
    EXPECT_EQ(takeInfos(), "");
    const std::string once = stored();
    on("c0 r1 r2 3:2", "newLockSelected");
    EXPECT_EQ(takeInfos(), std::string(kJointAlreadyLocked) + "\n" + kRowAlreadyLocked);
    EXPECT_EQ(locked(), "#.. ### ### #.# #..");
    EXPECT_EQ(once, "joints |hip; vertices 0; cells 2[0]|ankle");
    EXPECT_EQ(stored(), "joints |hip; vertices 0 1; cells 2[0]|ankle");
}

TEST_F(lockSelected, endsAtAShapeRow)
{
    loadBody();
    on("r0 2:1", "newLockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), "... ... ... ... ...");

    on("r3 r0 r4", "newLockSelected"); // in the order of selecting
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), "... ... ... ### ...");

    on("0:1 1:1 2:1", "newLockSelected");
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
    on("2:1", "lockCell");
    call("lockCell");
    EXPECT_EQ(stored(), "cells 1[0]|knee 1[1]|knee");
    call("newUnlockSelected");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_EQ(stored(), "cells 1[0] 1[1]");
}

TEST_F(lockCell, locksCellByCellWhatIsSelectedAsAWhole)
{
    loadBody();
    on("r2", "lockCell");
    EXPECT_EQ(stored(), "cells 1[0]|hip 1[1]|knee 1[2]|ankle");
    on("c1", "lockCell");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), "... ... ### ... ...");
}
