// SPDX-License-Identifier: Apache-2.0
//
// Unlocking: parts of what was locked, and all of it.

#include "locks/lockScene.h"
#include "model/messages.h"

class unlockSelected : public LockScene
{
};

TEST_F(unlockSelected, unlocksWhatIsLockedAndPassesOverTheRest)
{
    loadBody();
    on("c0 r2 4:2", "newLockSelected");
    view_->selectAll();
    view_->selectionModel()->select(
        QItemSelection(model_->index(0, 0), model_->index(0, 2)),
        QItemSelectionModel::Deselect); // leaves whole rows and no whole column
    call("newUnlockSelected");
    EXPECT_EQ(locked(), "#.. #.. #.. #.. #.#") << "a whole row is no cell of its column";
    on("c0 4:2 3:1", "newUnlockSelected");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_EQ(stored(), "cells 3[0]");
    EXPECT_FALSE(isLockedInMaya("hip"));
    EXPECT_EQ(takeInfos() + takeErrors(), "");
}

TEST_F(unlockSelected, endsAtAShapeRow)
{
    loadBody();
    on("r2", "newLockSelected");
    on("r0 r2", "newUnlockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForUnlocking);
    EXPECT_EQ(locked(), "... ... ### ... ...");

    on("c1", "newLockSelected");
    on("0:1", "newUnlockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), ".#. .#. ### .#. .#.");
}

TEST_F(unlockSelected, splitsALockedRowButForTheCellsThatAreSelected)
{
    makeSkin("shirt", {"chest", "ankle"}, {{1, 0}, {1, 0}, {0, 1}, {1, 0}});
    loadBody();
    load("body shirt.vtx[2]");
    on("r2", "newLockSelected");
    on("2:0 2:1", "newUnlockSelected");
    EXPECT_EQ(locked(), ".... .... ..#. .... .... .... ....") << "chest shows no weight there";
    EXPECT_EQ(stored(), "cells 1[0]|ankle");
}

TEST_F(unlockSelected, splitsALockedJointButForTheCellsThatAreSelected)
{
    makeSkin("shirt", {"chest", "ankle"}, {{1, 0}, {1, 0}, {0, 1}, {1, 0}});
    loadBody();
    load("body shirt.vtx[2]");
    on("c0", "newLockSelected");
    on("1:0 2:0", "newUnlockSelected");
    EXPECT_EQ(locked(), ".... .... .... #... #... .... ....");
    EXPECT_EQ(stored("bodySkin"), "cells 2[0]|hip 3[0]|hip");
    EXPECT_EQ(stored("shirtSkin"), "");
    EXPECT_FALSE(isLockedInMaya("hip"));
}

TEST_F(unlockSelected, splitsRowAndJointOfACellThatBothLock)
{
    loadBody();
    on("c1 r2", "newLockSelected");
    on("2:1", "newUnlockSelected");
    EXPECT_EQ(locked(), "... .#. #.# .#. .#.");
    load();
    EXPECT_EQ(locked(), "... .#. #.# .#. .#.");
}

TEST_F(unlockSelected, takesAWholeColumnAndACellOfItForTheColumn)
{
    loadBody();
    on("c1", "newLockSelected");
    on("c1 2:1", "newUnlockSelected");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_EQ(stored(), "");
}

class unlockCell : public LockScene
{
};

TEST_F(unlockCell, reportsEachCellThatIsNotLocked)
{
    loadBody();
    on("2:1", "newLockSelected");
    on("r2", "unlockCell");
    EXPECT_EQ(takeErrors(), std::string(kCellNotLocked) + "\n" + kCellNotLocked);
    EXPECT_EQ(locked(), "... ... ... ... ...");
}

TEST_F(unlockCell, splitsARowAndThenUnlocksTheOtherSelectedCells)
{
    loadBody();
    on("r2", "newLockSelected");
    on("2:0", "unlockCell");
    EXPECT_EQ(locked(), "... ... .## ... ...");
    EXPECT_EQ(stored(), "cells 1[0]|knee 1[1]|ankle");
    on("2:1 2:2", "unlockCell");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(unlockCell, endsAtAShapeRow)
{
    loadBody();
    on("c1", "newLockSelected");
    call("unlockCell");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    EXPECT_EQ(locked(), ".#. .#. .#. .#. .#.");
}

class unlockAll : public LockScene
{
};

TEST_F(unlockAll, unlocksAndRestoresEverything)
{
    loadBody();
    on("c1 r2 4:2", "newLockSelected");
    const std::string before = locked();
    call("newUnlockAll");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_EQ(stored(), "cells 3[0]");
    EXPECT_FALSE(isLockedInMaya("knee"));

    call("restoreLocks");
    EXPECT_EQ(locked(), before);
    EXPECT_EQ(stored(), "joints |knee; vertices 1; cells 3[0] 3[1]|ankle");
    EXPECT_TRUE(isLockedInMaya("knee"));
    EXPECT_EQ(takeErrors() + takeInfos(), "");
}

TEST_F(unlockAll, forgetsWhatItRememberedWhenNothingIsLocked)
{
    loadBody();
    on("2:1", "newLockSelected");
    call("newUnlockAll");
    call("newUnlockAll");
    EXPECT_EQ(takeErrors(), kNothingToUnlock);
    call("restoreLocks");
    EXPECT_EQ(locked(), "... ... ... ... ...");
}

TEST_F(unlockAll, restoresNothingBeyondATableThatBecameSmaller)
{
    loadBody();
    on("4:2", "newLockSelected");
    on("r3", "newLockSelected");
    call("newUnlockAll");
    load("body.vtx[0]");
    call("restoreLocks");
    EXPECT_EQ(locked(), "... ...");
    EXPECT_EQ(takeErrors() + takeInfos(), "");
}

TEST_F(unlockAll, unlocksAJointThatSeveralSkinClustersStore)
{
    makeSkin("shirt", {"chest", "hip"}, {{1, 0}, {1, 0}, {0, 1}, {1, 0}});
    loadBody();
    load("body shirt");
    on("c0", "newLockSelected");
    load();
    call("newUnlockAll");
    EXPECT_EQ(stored("bodySkin") + stored("shirtSkin"), "");
    load();
    EXPECT_EQ(locked().find('#'), std::string::npos);
}
