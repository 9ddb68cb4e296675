// SPDX-License-Identifier: Apache-2.0
// The file command: its results, what it refuses, and what stands afterwards.

#include "commands/savedScene.h"

namespace
{

TEST(fileCommand, savesUnderTheNameThatItWasGiven)
{
    melRecorder maya;
    const std::string path = scenePath("rig.ma");
    std::filesystem::remove(path);
    maya.run("createNode joint -n hip");
    EXPECT_EQ(maya.run("file -save"),
              "Error: line 1: file: The scene has no name yet; -rename gives it one.");
    maya.run("file -rename \"" + path.substr(0, path.size() - 3) + "\"");
    EXPECT_EQ(maya.run("print(`file -q -mf`)"), "1");
    EXPECT_EQ(maya.run("print(`file -save -type \"mayaAscii\"`)"), path);
    EXPECT_EQ(maya.run("print(`file -q -mf`); print(\" \" + `file -q -sn -shn`)"), "0 |  rig.ma");
    EXPECT_EQ(maya.run("print(`file -q -ex \"" + path + "\"`)"), "1");
    maya.run("file -new");
    EXPECT_TRUE(maya.status) << "nothing is lost";
    EXPECT_EQ(maya.run("print(`file -open \"" + path + "\"`)"), path);
    EXPECT_EQ(maya.run("print(`ls -type joint`)"), "hip");
}

TEST(fileCommand, losesNoChangesUnlessForced)
{
    melRecorder maya;
    const std::string path = scenePath("other.ma");
    maya.run("file -ea \"" + path + "\"; createNode joint -n hip");
    EXPECT_EQ(maya.run("file -new"), "Error: line 1: Unsaved changes.");
    EXPECT_EQ(maya.run("file -open \"" + path + "\""), "Error: line 1: Unsaved changes.");
    EXPECT_EQ(maya.run("print(`objExists hip`)"), "1");
    EXPECT_EQ(maya.run("print(`file -f -new`)"), "untitled");
    EXPECT_EQ(maya.run("print(`objExists hip`); print(`undoInfo -q`)"), "0 | 0");
}

TEST(fileCommand, refusesWithoutTouchingTheScene)
{
    melRecorder maya;
    maya.run("createNode transform -n old");
    const std::string before = savedScene();
    const std::string folder = std::filesystem::path(scenePath("x")).parent_path().string();
    const std::string binary = scenePath("binary.ma");
    std::ofstream(binary, std::ios::binary) << std::string("FOR4\0\0", 6);
    const std::string calls[] = {
        "file -f -open \"" + folder + "/nobody.ma\"",
        "file -f -open \"" + folder + "\"",
        "file -f -open \"" + binary + "\"",
        "file -f -open \"\"",
        "file -f -open",
        "file -import \"" + folder + "/nobody.ma\"",
        "file -ea \"" + folder + "/no/such/folder.ma\"",
        "file -ea -type \"mayaBinary\" \"" + binary + "\"",
        "file -es \"" + folder + "/part.ma\"",
        "file -r \"" + binary + "\"",
        "file -f -new -save",
        "file",
    };
    for (const std::string &call : calls) {
        maya.run(call);
        EXPECT_FALSE(maya.status) << call;
        EXPECT_EQ(savedScene(), before) << call;
    }
    EXPECT_FALSE(std::filesystem::exists(folder + "/part.ma"));
}

TEST(fileCommand, importsIntoANamespaceAndTakesItBack)
{
    melRecorder maya;
    maya.run("createNode joint -n hip; createNode joint -n knee -p hip; setAttr knee.tx 3");
    const std::string path = scenePath("leg.ma");
    maya.run("file -ea \"" + path + "\"");
    const std::string before = savedScene();
    EXPECT_EQ(maya.run("print(`file -import -ns \"left\" -rnn \"" + path + "\"`)"),
              "left:hip\nleft:knee");
    EXPECT_EQ(maya.run("print(`getAttr \"left:knee.tx\"`)"), "3");
    const std::string after = savedScene();
    maya.run("undo");
    EXPECT_EQ(savedScene(), before);
    maya.run("redo");
    EXPECT_EQ(savedScene(), after);
}

} // namespace
