// SPDX-License-Identifier: Apache-2.0
// Importing: new names where the old ones are taken, with everything that refers to them; undone as
// one.
#include "support/sceneFile.h"

namespace
{

class Import : public SceneFileTest
{
protected:
    Import()
    {
        mel("createNode transform -n \"rig\"; createNode joint -n \"hip\" -p rig;"
            "createNode joint -n \"knee\" -p hip; setAttr \"knee.tx\" 2;"
            "createNode skinCluster -n \"skin\"; connectAttr \"knee.wm\" \"skin.ma[3]\";"
            "setAttr \"skin.wl[2].w[3]\" 0.5; lockNode -l 1 skin");
        file_ = path("rig.ma");
        EXPECT_TRUE(MFileIO::exportAll(file_.c_str()));
    }
    std::string file_;
};

TEST_F(Import, numbersNamesThatAreTaken)
{
    const std::string before = savedText();
    mel("file -import \"" + file_ + "\"");
    EXPECT_EQ(melStrings("listRelatives -ad rig1"), "knee1 hip1");
    EXPECT_EQ(melNumbers("getAttr \"knee1.tx\""), std::vector<double>{2});
    EXPECT_EQ(melStrings("listConnections -s true -d false \"skin1.ma\""), "knee1");
    EXPECT_EQ(melNumbers("getAttr \"skin1.wl[2].w[3]\""), std::vector<double>{0.5});
    EXPECT_EQ(melStrings("ls -type camera"), "perspShape topShape frontShape sideShape");
    const std::string after = savedText();
    mel("undo");
    EXPECT_EQ(savedText(), before);
    mel("redo");
    EXPECT_EQ(savedText(), after);
}

TEST_F(Import, keepsUuidsButThoseThatAreTaken)
{
    const std::string hip = melString("ls -uuid hip");
    EXPECT_EQ(hip.size(), 36u);
    EXPECT_NE(textOf(file_).find("rename -uid \"" + hip + "\";"), std::string::npos);
    mel("file -import \"" + file_ + "\"");
    const std::string twin = melString("ls -uuid hip1");
    EXPECT_EQ(twin.size(), 36u);
    EXPECT_NE(twin, hip);
    EXPECT_EQ(savedText(), savedText());
    mel("undo; redo");
    EXPECT_EQ(melString("ls -uuid hip1"), twin);
    mel("file -f -new; file -import \"" + file_ + "\"");
    EXPECT_EQ(melString("ls -uuid hip"), hip);
    ASSERT_TRUE(open(write("old.ma", "createNode joint -n \"toe\";\n")));
    EXPECT_EQ(melString("ls -uuid toe"), "") << "what a file does not say stays so";
    EXPECT_EQ(melString("createNode joint; ls -uuid joint1").size(), 36u);
}

TEST_F(Import, putsNamesIntoANamespace)
{
    ASSERT_TRUE(MFileIO::importFile(file_.c_str(), nullptr, false, "left")) << takeErrors();
    EXPECT_EQ(melStrings("ls -long -type joint \"left:*\""),
              "|left:rig|left:hip |left:rig|left:hip|left:knee");
    EXPECT_EQ(melStrings("listConnections -s true -d false \"left:skin.ma\""), "left:knee");
    EXPECT_EQ(melStrings("file -import -ns \"right\" -rnn \"" + file_ + "\""),
              "right:rig right:hip right:knee right:skin");
    EXPECT_EQ(melStrings("rename knee j9; file -import -rpr \"b\" -rnn \"" + file_ + "\""),
              "b_rig b_hip knee b_skin");
    EXPECT_EQ(melStrings("file -import -rpr \"b\" -rnn \"" + file_ + "\""),
              "b_rig1 b_hip1 b_knee b_skin1");
    EXPECT_EQ(melError("file -dr 1 -import \"" + file_ + "\""),
              "file: References are not loaded; only a file may say -deferReference.");
}

TEST_F(Import, ofABrokenFileChangesNothing)
{
    const std::string broken = write("broken.ma", "createNode joint -n \"toe\";\ncreateNode");
    const std::string before = savedText();
    EXPECT_FALSE(MFileIO::importFile(broken.c_str()));
    EXPECT_NE(takeErrors().find("broken.ma line 5: The file is cut off"), std::string::npos);
    EXPECT_EQ(savedText(), before);
}

} // namespace
