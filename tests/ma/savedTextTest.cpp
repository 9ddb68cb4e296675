// SPDX-License-Identifier: Apache-2.0
// What a save changes in the text of the file that was opened: the lines that an edit is about.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include <maya/MGlobal.h>

#include "support/maText.h"
#include "support/sceneFile.h"

namespace
{

using lines = std::vector<std::string>;

lines linesOf(const std::string &text)
{
    std::istringstream stream(text);
    lines all;
    for (std::string line; std::getline(stream, line);)
        all.push_back(line);
    return all;
}

// "- line" only in the first text, "+ line" only in the second, however often.
lines changedLines(const std::string &before, const std::string &after)
{
    lines old = linesOf(before);
    lines added;
    for (const std::string &line : linesOf(after)) {
        const auto found = std::find(old.begin(), old.end(), line);
        if (found == old.end())
            added.push_back("+ " + line);
        else
            old.erase(found);
    }
    for (std::string &line : old)
        line = "- " + line;
    old.insert(old.end(), added.begin(), added.end());
    return old;
}

class SavedText : public SceneFileTest
{
protected:
    // The file says what the host's own form of the scene says.
    void expectSaysTheScene(const std::string &file)
    {
        const std::string own = path("own.ma");
        ASSERT_TRUE(MFileIO::exportAll(own.c_str())) << takeErrors();
        ASSERT_TRUE(open(file)) << takeErrors();
        const std::string reopened = path("reopened.ma");
        ASSERT_TRUE(MFileIO::exportAll(reopened.c_str())) << takeErrors();
        for (const std::string &line : differences(maText(own), maText(reopened))) {
            // Sizes are hints: connections that were cut leave elements that hold nothing.
            if (line.find(" -s = ") == std::string::npos)
                ADD_FAILURE() << line;
        }
    }
};

const std::string kHeader = "//Maya ASCII 2019 scene\n//Name: other.ma\n"
                            "//Last modified: Thu, Oct 03, 2019 03:03:58 PM\n//Codeset: 1252\n";
const std::string kStatements =
    "requires maya \"2019\";\n"
    "requires -nodeType \"fancy\"\n\t\t \"fancyPlugin\" \"1.0\";\n"
    "fileInfo \"product\" \"Maya 2019\";\n"
    "createNode transform -n \"a\";\n"
    "\trename -uid \"10000000-0000-0000-0000-000000000001\";\n"
    "\tsetAttr \".t\" -type \"double3\" 1.50 2 -3e-007 ;\n"
    "createNode joint -n \"hip\" -p \"a\";\n"
    "\trename -uid \"10000000-0000-0000-0000-000000000002\";\n"
    "\taddAttr -ci true -sn \"liw\" -ln \"lockInfluenceWeights\" -min 0 -max 1 -at \"bool\";\n"
    "\tsetAttr -k off \".v\" no;\n"
    "createNode joint -n \"knee\" -p \"hip\";\n"
    "createNode transform -n \"b\";\n"
    "createNode mesh -n \"bShape\" -p \"b\";\n"
    "\tsetAttr -s 3 \".vt[0:2]\"  0.0 0 0 1.0 0 0 0 0\n\t\t 1.10;\n"
    "\tfancyStatement 1;\n"
    "createNode skinCluster -n \"skin\";\n"
    "\tsetAttr -s 4 \".wl\";\n"
    "\tsetAttr \".wl[0:1].w\"\n"
    "\t\t2 0 0.750 1 0.250\n"
    "\t\t1 0 0.50;\n"
    "\tsetAttr \".wl[1:3].w\"\n"
    "\t\t1 2 0.50\n"
    "\t\t3 0 0.25000 1 0.25000\n\t\t 4 0.5\n"
    "\t\t1 0 1.0;\n"
    "\tsetAttr -s 2 \".pm\";\n"
    "\tsetAttr -s 7 \".ma\";\n"
    "createNode skinCluster -n \"old\";\n"
    "\tsetAttr -s 2 \".wl\";\n"
    "\tsetAttr -s 2 \".wl[0].w[0:1]\"  7.5e-001 0.250;\n"
    "\tsetAttr -s 2 \".wl[1].w\";\n"
    "\tsetAttr \".wl[1].w[0]\" 0.50;\n"
    "\tsetAttr \".wl[1].w[3]\" 0.50;\n"
    "createNode fancy -n \"strange\";\n"
    "\tsetAttr \".data\" -type \"fancyData\" 1  2 ;\n"
    "\tsetAttr \".text\" -type \"string\" (\n\t\t\"one\"\n\t\t+ \"two\");\n"
    "lockNode -l 1 ;\n"
    "select -ne :time1;\n"
    "\tsetAttr \".o\" 1.0;\n"
    "connectAttr \"hip.wm\" \"skin.ma[0]\";\n"
    "connectAttr \"knee.wm\" \"skin.ma[1]\"\n\t\t;\n"
    "connectAttr \"nobody.wm\" \"skin.ma[2]\";\n"
    "connectAttr \"bShape.iog\" \":initialShadingGroup.dsm\" -na;\n"
    "relationship \"link\" \":lightLinker1\" \":initialShadingGroup.message\";\n"
    "// End of other.ma\n";

const struct {
    const char *edit;
    lines changes;
} kEdits[] = {
    {"", {}},
    {"setAttr a.ty 7; undo", {}},
    {"setAttr a.ty 0.1",
     {"- \tsetAttr \".t\" -type \"double3\" 1.50 2 -3e-007 ;",
      "+ \tsetAttr \".t\" -type \"double3\" 1.50 0.1 -3e-007 ;"}},
    {"setAttr -l on a.tx", {"+ \tsetAttr -l on \".tx\";"}},
    {"setAttr -k on hip.v",
     {"- \tsetAttr -k off \".v\" no;", "+ \tsetAttr \".v\" no;", "+ \tsetAttr -k on \".v\";"}},
    {"setAttr hip.liw 1", {"+ \tsetAttr \".liw\" yes;"}},
    {"setAttr bShape.vt[2] 0 0.5 1.1",
     {"- \tsetAttr -s 3 \".vt[0:2]\"  0.0 0 0 1.0 0 0 0 0",
      "+ \tsetAttr -s 3 \".vt[0:2]\"  0.0 0 0 1.0 0 0 0 0.5"}},
    // A weight of a vertex that has a line, one in another statement, one in two statements.
    {"setAttr skin.wl[0].w[1] 0.125", {"- \t\t2 0 0.750 1 0.250", "+ \t\t2 0 0.750 1 0.125"}},
    {"setAttr skin.wl[0].w[1] 0", {"- \t\t2 0 0.750 1 0.250", "+ \t\t1 0 0.750"}},
    {"setAttr skin.wl[1].w[1] 0.25", {"- \t\t1 2 0.50", "+ \t\t2 1 0.25 2 0.50"}},
    {"setAttr skin.wl[2].w[2] 0.125",
     {"- \t\t3 0 0.25000 1 0.25000", "+ \t\t4 0 0.25000 1 0.25000 2 0.125"}},
    {"setAttr skin.wl[2].w[4] 0",
     {"- \t\t3 0 0.25000 1 0.25000", "- \t\t 4 0.5", "+ \t\t2 0 0.25000 1 0.25000"}},
    {"setAttr skin.wl[9].w[0] 1",
     {"- \tsetAttr -s 4 \".wl\";", "+ \tsetAttr -s 5 \".wl\";", "+ \tsetAttr \".wl[9].w\"",
      "+ \t\t1 0 1;"}},
    // Runs and single weights.
    {"setAttr old.wl[0].w[1] 0.5",
     {"- \tsetAttr -s 2 \".wl[0].w[0:1]\"  7.5e-001 0.250;",
      "+ \tsetAttr -s 2 \".wl[0].w[0:1]\"  7.5e-001 0.5;"}},
    {"setAttr old.wl[0].w[0] 0",
     {"- \tsetAttr -s 2 \".wl[0].w[0:1]\"  7.5e-001 0.250;", "+ \tsetAttr \".wl[0].w[1]\" 0.250;"}},
    {"setAttr old.wl[1].w[0] 0; setAttr old.wl[1].w[4] 0.5",
     {"- \tsetAttr \".wl[1].w[0]\" 0.50;", "+ \tsetAttr \".wl[1].w[4]\" 0.5;"}},
    {"lockNode -l 0 strange; setAttr -type \"string\" strange.text \"three\"",
     {"- \tsetAttr \".text\" -type \"string\" (", "- \t\t\"one\"", "- \t\t+ \"two\");",
      "- lockNode -l 1 ;", "+ \tsetAttr \".text\" -type \"string\" \"three\";"}},
    {"setAttr time1.o 5", {"- \tsetAttr \".o\" 1.0;", "+ \tsetAttr \".o\" 5;"}},
    {"addAttr -ln \"extra\" -at \"double\" a; setAttr a.extra 2",
     {"+ \taddAttr -ci true -sn \"extra\" -ln \"extra\" -at \"double\";",
      "+ \tsetAttr \".extra\" 2;"}},
    {"deleteAttr hip.liw",
     {"- \taddAttr -ci true -sn \"liw\" -ln \"lockInfluenceWeights\" -min 0 -max 1 -at \"bool\";"}},
    {"disconnectAttr knee.wm skin.ma[1]", {"- connectAttr \"knee.wm\" \"skin.ma[1]\"", "- \t\t;"}},
    {"connectAttr b.wm skin.ma[5]",
     {"- \tsetAttr -s 7 \".ma\";", "+ \tsetAttr -s 8 \".ma\";",
      "+ connectAttr \"b.wm\" \"skin.ma[5]\";"}},
    // The block of a renamed node stays, and what it is called elsewhere follows.
    {"rename hip pelvis",
     {"- createNode joint -n \"hip\" -p \"a\";", "- createNode joint -n \"knee\" -p \"hip\";",
      "- connectAttr \"hip.wm\" \"skin.ma[0]\";", "+ createNode joint -n \"pelvis\" -p \"a\";",
      "+ createNode joint -n \"knee\" -p \"pelvis\";",
      "+ connectAttr \"pelvis.wm\" \"skin.ma[0]\";"}},
    {"delete knee",
     {"- createNode joint -n \"knee\" -p \"hip\";", "- connectAttr \"knee.wm\" \"skin.ma[1]\"",
      "- \t\t;"}},
    {"fileInfo \"product\" \"x\"; fileInfo \"key\" \"y\"",
     {"- fileInfo \"product\" \"Maya 2019\";", "+ fileInfo \"product\" \"x\";",
      "+ fileInfo \"key\" \"y\";"}},
    {"lockNode -l 1 a", {"+ lockNode -l 1;"}},
};

TEST_F(SavedText, changesTheLinesThatAnEditIsAbout)
{
    for (const bool hasCrLf : {false, true}) {
        std::string text = kHeader + kStatements;
        for (std::size_t at = 0; hasCrLf && (at = text.find('\n', at)) != std::string::npos;
             at += 2)
            text.insert(at, 1, '\r');
        for (const auto &edit : kEdits) {
            SCOPED_TRACE(edit.edit + std::string(hasCrLf ? " (CR LF)" : ""));
            const std::string file = writeBytes("scene.ma", text);
            ASSERT_TRUE(open(file)) << takeErrors();
            mel(edit.edit);
            takeWarnings();
            mel("file -save");
            EXPECT_EQ(takeWarnings(), "");
            const std::string saved = textOf(file);
            lines expected = edit.changes;
            if (!expected.empty())
                expected.insert(expected.begin(),
                                "- //Last modified: Thu, Oct 03, 2019 03:03:58 PM");
            for (std::string &line : expected)
                line += hasCrLf ? "\r" : "";
            EXPECT_EQ(changedLines(text, saved), expected);
            expectSaysTheScene(file);
        }
    }
}

TEST_F(SavedText, movesNodesBehindTheirNewParents)
{
    const std::string file = writeBytes("scene.ma", kHeader + kStatements);
    for (const std::string edit :
         {"parent hip b", "parent knee a; parent a b", "parent hip b; parent hip a",
          "group -n g a b", "createNode joint -n new -p knee; parent b new",
          "delete a; createNode transform -n a"}) {
        SCOPED_TRACE(edit);
        writeBytes("scene.ma", kHeader + kStatements);
        ASSERT_TRUE(open(file)) << takeErrors();
        mel(edit);
        takeWarnings();
        mel("file -save");
        EXPECT_EQ(takeWarnings(), "");
        EXPECT_NE(textOf(file).find("1.0 0 0 0 0\n\t\t 1.10;"), std::string::npos);
        expectSaysTheScene(file);
    }
}

// The scene decides, whatever became of the file meanwhile.
TEST_F(SavedText, saysTheSceneWhateverTheFileSays)
{
    for (const std::string &now :
         {std::string(), kHeader + "createNode joint -n \"c\";\n", std::string("text"),
          kHeader + "createNode \"un", kHeader + kStatements.substr(0, 800) + "\";\n"}) {
        SCOPED_TRACE(now);
        const std::string file = writeBytes("scene.ma", kHeader + kStatements);
        ASSERT_TRUE(open(file)) << takeErrors();
        mel("setAttr a.tx 4");
        writeBytes("scene.ma", now);
        if (now.empty())
            std::filesystem::remove(file);
        mel("file -save");
        expectSaysTheScene(file);
    }
}

TEST_F(SavedText, goesOnUnderANewNameInTheCodesetThatFits)
{
    // Code page 932: the second byte of the first character is a backslash.
    const std::string text =
        "//Maya ASCII 2019 scene\n//Codeset: 932\ncreateNode transform -n \"a\";\n"
        "\taddAttr -ci true -sn \"note\" -ln \"note\" -dt \"string\";\n"
        "\tsetAttr \".note\" -type \"string\" \"\x95\x5c\x83\x65\";\n";
    ASSERT_TRUE(open(writeBytes("old.ma", text))) << takeErrors();
    mel("file -modified 1; file -save");
    EXPECT_EQ(textOf(path("old.ma")), text);
    const std::string renamed = path("new.ma");
    mel("file -rename \"" + renamed + "\"; file -save");
    EXPECT_EQ(textOf(renamed), text);
    mel("setAttr -type \"string\" a.note \"\xd0\xb6\xe2\x82\xac\"; file -save");
    EXPECT_NE(textOf(renamed).find("//Codeset: UTF-8"), std::string::npos);
    EXPECT_EQ(textOf(path("old.ma")), text);
    expectSaysTheScene(renamed);
}

// Real scenes, however they wrote what goes, moves or gets another name.
TEST_F(SavedText, saysWhatEachRealSceneHoldsAfterAnEdit)
{
    const char *folder = std::getenv("KORVEX_SCENES");
    if (!folder)
        GTEST_SKIP() << "KORVEX_SCENES is not set";
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".ma")
            continue;
        SCOPED_TRACE(entry.path().filename().string());
        const std::string text = textOf(entry.path().string());
        const std::string file = writeBytes("scene.ma", text);
        ASSERT_TRUE(open(file)) << takeErrors();
        mel("file -modified 1; file -save");
        EXPECT_TRUE(textOf(file) == text) << "an unchanged scene";

        const std::string joints = melStrings("ls -type joint");
        const std::string joint = joints.empty() ? "persp" : joints.substr(0, joints.find(' '));
        for (const std::string &edit :
             {"rename " + joint + " renamed; setAttr -l on renamed.tx; polyCube -n cube",
              "group -n top " + joint + "; addAttr -ln extra -dt string top",
              std::string("delete `ls -type groupId`; delete `ls -type mesh`"),
              std::string("delete `ls -type joint`")}) {
            SCOPED_TRACE(edit);
            writeBytes("scene.ma", text);
            ASSERT_TRUE(open(file)) << takeErrors();
            MGlobal::executeCommand(edit.c_str(), false, true);
            takeErrors();
            takeWarnings();
            mel("file -save");
            EXPECT_EQ(takeWarnings(), "");
            expectSaysTheScene(file);
        }
    }
}

} // namespace
