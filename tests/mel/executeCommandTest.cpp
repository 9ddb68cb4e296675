// SPDX-License-Identifier: Apache-2.0
// MGlobal::executeCommand: echo, results, what is recorded for undo, and texts from outside.

#include "mel/melRecorder.h"

#include <maya/MEventMessage.h>

#include <gtest/gtest.h>

namespace
{

int undoItems()
{
    int items = -1;
    MGlobal::executeCommand("undoInfo -q", items);
    return items;
}

double valueOf(const char *plug)
{
    double value = -1.0;
    MGlobal::executeCommand(MString("getAttr ") + plug, value);
    return value;
}

TEST(executeCommand, echoesTextAndResultOnlyWhenAsked)
{
    melRecorder maya;
    EXPECT_EQ(maya.run("createNode transform -n a;", true),
              "createNode transform -n a; | // a // ");
    EXPECT_EQ(maya.run("select -cl  ;", true), "select -cl  ;");
    EXPECT_EQ(maya.run("ls -sl", true), "ls -sl") << "an array without elements shows no result";
    EXPECT_EQ(maya.run("ls a persp", true), "ls a persp | // a persp // ");
    EXPECT_EQ(maya.run("createNode transform -n b"), "");
    EXPECT_EQ(maya.run("fred", true), "fred | Error: line 1: Cannot find procedure \"fred\".");
    EXPECT_EQ(maya.status, MStatus::kFailure);
}

TEST(executeCommand, recordsOneItemOrNothing)
{
    melRecorder maya;
    maya.run("createNode transform -n a");
    const int before = undoItems();
    maya.run("setAttr a.tx 1; setAttr a.ty 2", false, true);
    EXPECT_EQ(undoItems(), before + 1);
    maya.run("setAttr a.tx 5", false, false);
    maya.run("getAttr a.tx", false, true);
    maya.run("setAttr a.tx abc", false, true);
    EXPECT_FALSE(maya.status);
    EXPECT_EQ(undoItems(), before + 1) << "nothing unrecorded, harmless or failed is on the queue";
    maya.run("undo");
    EXPECT_EQ(valueOf("a.ty"), 0.0);
}

// The steps of the open item once outlived their scene, and undo ran them on freed nodes.
TEST(executeCommand, forgetsTheItemThatReplacesItsOwnScene)
{
    melRecorder maya;
    maya.run("createNode transform -n a; setAttr a.tx 4; file -f -new");
    EXPECT_EQ(undoItems(), 0);
    EXPECT_EQ(maya.run("undo"), "Warning: There are no more commands to undo.");
    maya.run("createNode transform -n a; setAttr a.tx 4; file -f -new; createNode transform -n b");
    EXPECT_EQ(undoItems(), 1) << "what was recorded in the new scene";
    maya.run("undo");
    EXPECT_EQ(maya.run("print(`objExists b`)"), "0");
}

TEST(executeCommand, givesTheResultOfTheLastStatement)
{
    melRecorder maya;
    int number = 7;
    EXPECT_TRUE(MGlobal::executeCommand("objExists persp; objExists nobody", number));
    EXPECT_EQ(number, 0);
    number = 7;
    EXPECT_FALSE(MGlobal::executeCommand("objExists persp; select -cl", number));
    EXPECT_FALSE(MGlobal::executeCommand("nodeType persp", number));
    EXPECT_EQ(number, 7) << "a failed call leaves the result alone";
}

TEST(executeCommand, tellsTheLineOfTheFailingStatement)
{
    melRecorder maya;
    EXPECT_EQ(maya.run("// first\nselect -cl;\n\n  fred 1\n2;\n"),
              "Error: line 4: Cannot find procedure \"fred\".");
    EXPECT_EQ(maya.run("select -cl;\nselect =;"),
              "Error: Line 2.8: Syntax error: assignments are not supported");
}

void callAgain(void *)
{
    MGlobal::executeCommand("select -tgl persp");
}

// A callback that causes its own event must end in an error, not on a full stack.
TEST(executeCommand, stopsCommandsThatCallEachOtherForEver)
{
    melRecorder maya;
    const MCallbackId id = MEventMessage::addEventCallback("SelectionChanged", callAgain);
    const std::string shown = maya.run("select persp");
    MMessage::removeCallback(id);
    EXPECT_NE(shown.find("Commands call each other too deeply."), std::string::npos) << shown;
}

} // namespace
