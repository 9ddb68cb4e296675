// SPDX-License-Identifier: Apache-2.0
//
// The older slots: Maya's own attributes, and the table's lists.

#include "locks/lockScene.h"
#include "model/messages.h"

class legacyLocks : public LockScene
{
protected:
    legacyLocks()
    {
        loadBody();
        mel("addAttr -at bool -m -ln lockVertex bodySkin");
    }
    static std::string vertexLock(int vertex)
    {
        return melString("getAttr bodySkin.lockVertex[" + std::to_string(vertex) + "]");
    }
};

TEST_F(legacyLocks, lockThroughMayaAndStoreNothing)
{
    on("c0 r2", "lockSelected");
    EXPECT_EQ(locked(), "#.. #.. ### #.. #..");
    EXPECT_TRUE(isLockedInMaya("hip"));
    EXPECT_EQ(vertexLock(1), "1");
    EXPECT_EQ(stored(), "");
    call("lockSelected");
    EXPECT_EQ(takeInfos(), std::string(kJointAlreadyLocked) + "\n" + kVertexAlreadyLocked);

    call("unlockSelected");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_FALSE(isLockedInMaya("hip"));
    EXPECT_EQ(vertexLock(1), "0");
    EXPECT_EQ(takeErrors(), "");
    call("unlockSelected");
    EXPECT_EQ(takeErrors(), std::string(kJointNotLocked) + "\n" + kVertexNotLocked);
}

TEST_F(legacyLocks, unlockEverything)
{
    on("c0 r2", "lockSelected");
    call("unlockAll");
    EXPECT_EQ(locked(), "... ... ... ... ...");
    EXPECT_FALSE(isLockedInMaya("hip"));
    EXPECT_EQ(vertexLock(1), "0");
}

TEST_F(legacyLocks, endAtAShapeRow)
{
    on("r0 r2", "lockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForLocking);
    call("unlockSelected");
    EXPECT_EQ(takeInfos(), kShapeRowForUnlocking);
    EXPECT_EQ(locked(), "... ... ... ... ...");
}

TEST_F(legacyLocks, askASkinClusterWithoutTheAttributeOnce)
{
    mel("deleteAttr bodySkin.lockVertex");
    on("r1 r2 r3", "lockSelected");
    const std::string errors = takeErrors();
    EXPECT_NE(errors, "");
    EXPECT_EQ(errors.find('\n'), std::string::npos) << errors;
    EXPECT_EQ(locked(), "... ### ### ### ...");
}
