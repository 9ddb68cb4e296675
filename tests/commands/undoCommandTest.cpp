// SPDX-License-Identifier: Apache-2.0
// Undo of every command that changes the scene: the scene must be written as it was before.

#include "support/sceneFile.h"

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

using undo = SceneFileTest;

constexpr const char *kCommands[] = {
    "setAttr box.tx 7",
    "setAttr box.s -type \"double3\" 2 3 4",
    "setAttr box.note -type \"string\" \"new\"",
    "setAttr \"box.w[3:5]\" 1 2 3",
    "setAttr \"skin.wl[0:3].w[1]\" .1 .2 .3 .4",
    "setAttr -l on -k off box.ry",
    "addAttr -ln extra -at long -dv 3 -k true hip; setAttr hip.extra 5",
    "addAttr -ln c -at compound -m -nc 2 box; addAttr -ln a -at double -p c box;"
    "addAttr -ln b -dt \"string\" -p c box; setAttr box.c[3].a 2",
    "deleteAttr box.w",
    "deleteAttr box.out",
    "removeMultiInstance box.w[2]",
    "aliasAttr grin box.w[3]; aliasAttr -rm box.smile",
    "connectAttr box.ry inner.rx",
    "connectAttr -f box.ry inner.ty",
    "disconnectAttr box.tx inner.ty",
    "createNode joint -p box",
    "createNode mesh",
    "delete hip",
    "delete skin",
    "delete",
    "delete -ch loose",
    "rename body torso",
    "lockNode -l on box",
    "parent knee inner",
    "parent -w knee",
    "parent -s -r -add bodyShape box",
    "group -n all hip box",
    "move -r 1 0 0 box knee",
    "rotate -r -ws 0 30 0 inner",
    "scale 2 2 2 box",
    "xform -ws -t 5 5 5 -ro 0 90 0 knee",
    "xform -ws -piv 1 1 1 inner",
    "undoInfo -openChunk; setAttr box.tx 1.5; setAttr box.ty 1.5;"
    "undoInfo -closeChunk; rename box crate",
};

TEST_F(undo, restoresTheSceneAndRedoRepeatsTheChange)
{
    for (const char *command : kCommands) {
        SCOPED_TRACE(command);
        mel("file -f -new");
        mel(kRig);
        const std::string before = savedText();
        const std::string selected = melStrings("ls -sl");
        mel(command);
        const std::string after = savedText();
        EXPECT_TRUE(after != before) << "the command changes something";

        mel("undo");
        EXPECT_EQ(savedText(), before);
        EXPECT_EQ(melStrings("ls -sl"), selected);
        mel("redo");
        EXPECT_EQ(savedText(), after);
        mel("undo");
        EXPECT_EQ(savedText(), before);
        EXPECT_EQ(takeWarnings(), "");
    }
}

TEST_F(undo, ofAScriptThatUndoesMeansItsOwnChanges)
{
    mel("createNode transform -n a");
    mel("setAttr a.tx 4; undo; setAttr a.ty 3");
    EXPECT_EQ(melNumbers("getAttr a.t"), (std::vector<double>{0, 3, 0}));
    mel("undo");
    EXPECT_EQ(melNumbers("getAttr a.t"), (std::vector<double>{0, 0, 0}));
}

} // namespace
