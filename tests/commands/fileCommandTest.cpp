// SPDX-License-Identifier: Apache-2.0
// The file command: its results, what it refuses, and what stands afterwards.

#include "support/sceneFile.h"

namespace
{

using fileCommand = SceneFileTest;

TEST_F(fileCommand, savesUnderTheNameThatItWasGiven)
{
    const std::string file = path("rig.ma");
    mel("createNode joint -n hip");
    EXPECT_EQ(melError("file -save"), "file: The scene has no name yet; -rename gives it one.");
    mel("file -rename \"" + path("rig") + "\"");
    EXPECT_EQ(melString("file -q -mf"), "1");
    EXPECT_EQ(melString("file -save -type \"mayaAscii\""), file);
    EXPECT_EQ(melString("file -q -mf") + melString("file -q -sn -shn"), "0rig.ma");
    EXPECT_EQ(melString("file -q -ex \"" + file + "\""), "1");
    mel("file -new"); // nothing is lost
    EXPECT_EQ(melString("file -open \"" + file + "\""), file);
    EXPECT_EQ(melStrings("ls -type joint"), "hip");
}

// Else the next save would go to the place that could not be written once more.
TEST_F(fileCommand, keepsTheOldNameWhenSavingUnderAnotherFails)
{
    const std::string file = path("rig.ma");
    mel("createNode joint -n hip; file -rename \"" + file + "\"; file -save");
    for (const char *name : {"no/such/folder.ma", "rig.mb", "folder/"}) {
        mel("file -rename \"" + path(name) + "\"");
        EXPECT_NE(melError("file -f -save"), "");
        EXPECT_EQ(melString("file -q -sn"), file) << name;
    }
    EXPECT_EQ(melString("file -f -save"), file);
}

TEST_F(fileCommand, losesNoChangesUnlessForced)
{
    const std::string file = path("other.ma");
    mel("file -ea \"" + file + "\"; createNode joint -n hip");
    EXPECT_EQ(melError("file -new"), "Unsaved changes.");
    EXPECT_EQ(melError("file -open \"" + file + "\""), "Unsaved changes.");
    EXPECT_EQ(melString("objExists hip"), "1");
    EXPECT_EQ(melString("file -f -new"), "untitled");
    EXPECT_EQ(melString("objExists hip") + melString("undoInfo -q"), "00");
}

// With what the selection needs: transforms above, joints, history, shading; and nothing of others.
TEST_F(fileCommand, exportsTheSelectionWithWhatItNeeds)
{
    const std::string file = path("part.ma");
    mel("group -em -n rig; group -em -n props; select -cl; joint -n hip; joint -n knee; select -cl;"
        "polyCube -n body; polyCube -n crate; parent hip body rig; parent crate props;"
        "skinCluster -tsb -n skin hip knee body; skinCluster -tsb -n other hip crate;"
        "skinPercent -tv knee 0.25 skin body.vtx[3]; createNode lambert -n red;"
        "createNode shadingEngine -n redSG; connectAttr red.oc redSG.ss;"
        "connectAttr -na redSG.pa renderPartition.sets; sets -fe redSG body crate;"
        "createNode transform -n loose");
    mel("select -cl");
    EXPECT_EQ(melError("file -es \"" + file + "\""), "file: Nothing is selected to export.");
    mel("select body.vtx[0]; file -es \"" + file + "\"");
    mel("file -f -open \"" + file + "\"");
    EXPECT_EQ(takeWarnings(), "");
    EXPECT_EQ(melStrings("ls -type transform -type skinCluster -type objectSet -type lambert"),
              "lambert1 initialShadingGroup initialParticleSE defaultLightSet defaultObjectSet "
              "persp top front side rig hip knee body skin skinSet tweakSet1 red redSG");
    EXPECT_EQ(melStrings("sets -q redSG"), "body");
    EXPECT_EQ(melStrings("sets -q skinSet"), "body.vtx[0:7]");
    EXPECT_EQ(melString("getAttr skin.weightList[3].weights[1]"), "0.25");
    EXPECT_EQ(melStrings("listConnections -s 1 -d 0 -type joint skin.matrix"), "hip knee");
    EXPECT_EQ(melStrings("listConnections renderPartition.sets"), "redSG");
    EXPECT_EQ(melStrings("listRelatives -ad rig").find("crate"), std::string::npos);

    mel("file -f -new; select persp; file -es \"" + path("empty.ma") + "\"");
    mel("file -f -open \"" + path("empty.ma") + "\""); // only what every scene has
    EXPECT_EQ(melStrings("ls -type transform"), "top front side persp");
}

// What was saved and has changed since, undo included, is not yet saved again.
TEST_F(fileCommand, savesEveryKindOfChange)
{
    const std::string file = path("changes.ma");
    const auto withoutName = [](const std::string &text) {
        const std::size_t begin = text.find("requires");
        return text.substr(begin, text.find("// End of") - begin);
    };
    mel("createNode joint -n hip; setAttr hip.tx 1; file -rename \"" + file + "\"; file -save");
    for (const char *change :
         {"undo", "redo", "rename hip leg", "undo", "redo", "setAttr -l on leg.ty",
          "addAttr -ln extra -at double leg", "undo", "fileInfo key value", "fileInfo -rm key",
          "requires \"other\" \"1.0\"", "currentUnit -t ntsc", "lockNode -l on leg"}) {
        EXPECT_EQ(melString("file -q -modified"), "0") << change;
        mel(change);
        EXPECT_EQ(melString("file -q -modified"), "1") << change;
        mel("file -save");
        EXPECT_EQ(withoutName(textOf(file)), withoutName(savedText())) << change;
    }
}

TEST_F(fileCommand, refusesWithoutTouchingTheScene)
{
    mel("createNode transform -n old");
    const std::string before = savedText();
    const std::string binary = writeBytes("binary.ma", std::string("FOR4\0\0", 6));
    const std::string calls[] = {
        "file -f -open \"" + path("nobody.ma") + "\"",
        "file -f -open \"" + path("") + "\"",
        "file -f -open \"" + binary + "\"",
        "file -f -open \"\"",
        "file -f -open",
        "file -import \"" + path("nobody.ma") + "\"",
        "file -ea \"" + path("no/such/folder.ma") + "\"",
        "file -ea -type \"mayaBinary\" \"" + binary + "\"",
        "file -es \"" + path("no/such/folder.ma") + "\"",
        "file -r \"" + binary + "\"",
        "file -f -new -save",
        "file",
    };
    for (const std::string &call : calls) {
        EXPECT_NE(melError(call), "");
        EXPECT_EQ(savedText(), before) << call;
    }
}

} // namespace
