// SPDX-License-Identifier: Apache-2.0
// What may be asked of a node whose attributes are only known from its file, and what may be done.

#include "support/sceneFile.h"

namespace
{

constexpr const char *kNode = "createNode furBall -n f;\n"
                              "  setAttr \".gain\" 7;\n"
                              "  setAttr -k on \".empty\";\n"
                              "  setAttr \".tint[1]\" -type \"double3\" 1 2 3;\n"
                              "  setAttr \".look.depth\" 4;\n"
                              "createNode transform -n t;\n"
                              "connectAttr \"t.tx\" \"f.driven\";\n";

class question : public SceneFileTest
{
protected:
    void openNode() { ASSERT_TRUE(open(write("f.ma", kNode))); }
};

TEST_F(question, changesNothing)
{
    constexpr const char *kQuestions[] = {
        "objExists \"f.gain[0]\"",
        "objExists \"f.empty[3].deep[1]\"",
        "objExists \"f.gain.child\"",
        "catchQuiet(`getAttr \"f.gain[0]\"`)",
        "catchQuiet(`getAttr \"f.tint[9]\"`)",
        "catchQuiet(`getAttr -size \"f.gain[2]\"`)",
        "catchQuiet(`listAttr \"f.gain[0]\"`)",
        "listAttr f",
        "catchQuiet(`attributeQuery -n f -m gain`)",
        "catchQuiet(`addAttr -q -ex \"f.gain[0]\"`)",
        "catchQuiet(`isConnected \"t.tx\" \"f.driven[0]\"`)",
        "catchQuiet(`listConnections \"f.driven[0]\"`)",
        "catchQuiet(`ls \"f.gain[0]\"`)",
        "catchQuiet(`select \"f.gain[0]\"`)",
        "catchQuiet(`aliasAttr -q \"f.gain[0]\"`)",
    };
    openNode();
    const std::string before = savedText();
    for (const char *asked : kQuestions) {
        mel(asked);
        EXPECT_EQ(savedText(), before) << asked;
        EXPECT_EQ(melString("getAttr f.gain"), "7") << asked;
    }
    EXPECT_EQ(melString("file -q -mf"), "0");
}

TEST_F(question, isOneThingAndAChangeAnother)
{
    constexpr const char *kChanges[] = {
        "setAttr \"f.empty[2]\" 5",
        "setAttr -size 3 f.empty; setAttr \"f.empty[1]\" 5",
        "connectAttr -na t.ty f.empty",
    };
    openNode();
    const std::string before = savedText();
    for (const char *change : kChanges) {
        mel(std::string("undoInfo -openChunk; ") + change + "; undoInfo -closeChunk");
        const std::string after = savedText();
        EXPECT_NE(after, before) << change;
        mel("undo");
        EXPECT_EQ(savedText(), before) << change;
        EXPECT_EQ(melString("objExists \"f.empty[1]\""), "0") << change;
        mel("redo");
        EXPECT_EQ(savedText(), after) << change;
        mel("undo");
    }
    for (const char *refused :
         {"setAttr \"f.gain[2]\" 5", "setAttr -size 2 f.gain", "connectAttr -na t.ty f.gain",
          "connectAttr -na t.ty f.driven", "setAttr \"f.gone[2]\" 5"}) {
        EXPECT_NE(melError(refused), "") << refused;
        EXPECT_EQ(savedText(), before) << refused;
    }
}

// What a file sets before it says that the attribute is an array.
TEST_F(question, ofAFileMovesWhatThereWasIntoTheFirstElement)
{
    ASSERT_TRUE(
        open(write("late.ma", std::string(kNode) + "select -ne f;\n  setAttr \".gain[2]\" 9;\n"
                                                   "connectAttr \"t.ty\" \"f.driven[1]\";\n")));
    EXPECT_EQ(melString("getAttr \"f.gain[0]\""), "7");
    EXPECT_EQ(melString("getAttr \"f.gain[2]\""), "9");
    EXPECT_EQ(melStrings("listConnections -p on \"f.driven[0]\""), "t.translateX");
}

} // namespace
