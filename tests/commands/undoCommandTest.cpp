// SPDX-License-Identifier: Apache-2.0
// Undo of every command that changes the scene: the scene must be written as it was before.

#include "commands/savedScene.h"

#include <ostream>

namespace
{

// A small rig with one of everything that the commands below change.
constexpr const char *kRig =
    "polyCube -w 2 -h 4 -d 2 -sx 1 -sy 2 -sz 1 -n body;"
    "select -cl; joint -n hip -p 0 -2 0; joint -n knee -p 0 1 0; joint -n ankle -p 0 2 1;"
    "skinCluster -tsb -mi 3 -n skin hip knee ankle body;"
    "createNode transform -n box; setAttr box.t 1 2 3; setAttr box.r 10 20 30;"
    "createNode transform -n inner -p box; setAttr inner.s 1 2 1;"
    "polyCube -n loose; addAttr -ln note -dt \"string\" box;"
    "setAttr box.note -type \"string\" \"old\"; addAttr -ln w -at double -m box;"
    "setAttr \"box.w[2:3]\" .5 .25; connectAttr box.tx inner.ty; aliasAttr smile box.w[2];"
    "addAttr -ln out -at double box; connectAttr box.out loose.tz;"
    "select -r box knee;";

struct undoCase {
    const char *name;
    const char *command;
};

void PrintTo(const undoCase &row, std::ostream *out)
{
    *out << row.command;
}

class undoOf : public testing::TestWithParam<undoCase>
{
};

TEST_P(undoOf, restoresTheSceneAndRedoRepeatsTheChange)
{
    melRecorder maya;
    maya.run(kRig);
    ASSERT_TRUE(maya.status);
    const std::string before = savedScene();
    const std::string selected = maya.run("print(`ls -sl`)");

    EXPECT_EQ(maya.run(GetParam().command), "");
    ASSERT_TRUE(maya.status);
    const std::string after = savedScene();
    EXPECT_TRUE(after != before) << "the command changes something";

    maya.run("undo");
    EXPECT_EQ(savedScene(), before);
    EXPECT_EQ(maya.run("print(`ls -sl`)"), selected);
    maya.run("redo");
    EXPECT_EQ(savedScene(), after);
    maya.run("undo");
    EXPECT_EQ(savedScene(), before);
}

constexpr undoCase kCases[] = {
    {"setAttrNumber", "setAttr box.tx 7"},
    {"setAttrTuple", "setAttr box.s -type \"double3\" 2 3 4"},
    {"setAttrString", "setAttr box.note -type \"string\" \"new\""},
    {"setAttrRange", "setAttr \"box.w[3:5]\" 1 2 3"},
    {"setAttrWeights", "setAttr \"skin.wl[0:3].w[1]\" .1 .2 .3 .4"},
    {"setAttrLock", "setAttr -l on -k off box.ry"},
    {"addAttr", "addAttr -ln extra -at long -dv 3 -k true hip; setAttr hip.extra 5"},
    {"addAttrCompound",
     "addAttr -ln c -at compound -m -nc 2 box; addAttr -ln a -at double -p c box;"
     "addAttr -ln b -dt \"string\" -p c box; setAttr box.c[3].a 2"},
    {"deleteAttr", "deleteAttr box.w"},
    {"deleteConnectedAttr", "deleteAttr box.out"},
    {"removeMultiInstance", "removeMultiInstance box.w[2]"},
    {"aliasAttr", "aliasAttr grin box.w[3]; aliasAttr -rm box.smile"},
    {"connectAttr", "connectAttr box.ry inner.rx"},
    {"connectAttrForced", "connectAttr -f box.ry inner.ty"},
    {"disconnectAttr", "disconnectAttr box.tx inner.ty"},
    {"createNode", "createNode joint -p box"},
    {"createShape", "createNode mesh"},
    {"deleteHierarchy", "delete hip"},
    {"deleteSkinCluster", "delete skin"},
    {"deleteSelected", "delete"},
    {"deleteHistory", "delete -ch loose"},
    {"rename", "rename body torso"},
    {"lockNode", "lockNode -l on box"},
    {"parent", "parent knee inner"},
    {"parentToWorld", "parent -w knee"},
    {"instance", "parent -s -r -add bodyShape box"},
    {"group", "group -n all hip box"},
    {"move", "move -r 1 0 0 box knee"},
    {"rotate", "rotate -r -ws 0 30 0 inner"},
    {"scale", "scale 2 2 2 box"},
    {"xform", "xform -ws -t 5 5 5 -ro 0 90 0 knee"},
    {"xformPivot", "xform -ws -piv 1 1 1 inner"},
    {"nestedChunk", "undoInfo -openChunk; setAttr box.tx 1.5; setAttr box.ty 1.5;"
                    "undoInfo -closeChunk; rename box crate"},
};

INSTANTIATE_TEST_SUITE_P(commands, undoOf, testing::ValuesIn(kCases),
                         [](const auto &row) { return row.param.name; });

TEST(undo, aScriptThatUndoesMeansItsOwnChanges)
{
    melRecorder maya;
    maya.run("createNode transform -n a");
    maya.run("setAttr a.tx 4; undo; setAttr a.ty 3");
    EXPECT_EQ(maya.run("print(`getAttr a.t`)"), "0\n3\n0");
    maya.run("undo");
    EXPECT_EQ(maya.run("print(`getAttr a.t`)"), "0\n0\n0");
}

TEST(undo, nothingOfAnOldSceneIsLeftAfterANewOne)
{
    melRecorder maya;
    maya.run("createNode transform -n a; setAttr a.tx 1; file -f -new; createNode transform -n b");
    ASSERT_TRUE(maya.status);
    maya.run("undo");
    EXPECT_EQ(maya.run("print(`objExists b`)"), "0");
    EXPECT_EQ(maya.run("undo"), "Warning: There are no more commands to undo.");
}

} // namespace
