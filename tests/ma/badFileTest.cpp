// SPDX-License-Identifier: Apache-2.0
// Files that are cut off, malformed or hostile: an error that names file and line, and the scene as
// it was. What only a part of the file suffers from is a warning.
#include <filesystem>

#include "support/sceneFile.h"

namespace
{

std::string times(unsigned count, const std::string &text)
{
    std::string all;
    all.reserve(count * text.size());
    for (unsigned i = 0; i < count; ++i)
        all += text;
    return all;
}

class BadFile : public SceneFileTest
{
protected:
    // Opens a file that must be refused with an error that has `error` in it.
    void expectRefused(const std::string &name, const std::string &error)
    {
        mel("createNode joint -n \"hip\"; setAttr \"hip.tx\" 3");
        const std::string before = savedText();
        EXPECT_FALSE(open(path(name))) << name;
        const std::string shown = takeErrors();
        EXPECT_NE(shown.find(error), std::string::npos) << name << ": " << shown;
        EXPECT_NE(shown.find(path(name)), std::string::npos) << shown;
        EXPECT_EQ(savedText(), before) << name;
        mel("delete hip");
        takeWarnings();
    }
};

TEST_F(BadFile, isRefusedBeforeItsFirstStatement)
{
    const struct {
        const char *name;
        std::string bytes;
        const char *error;
    } cases[] = {
        {"empty.ma", "", "empty.ma line 1: The file is empty"},
        {"binary.mb", std::string("FOR8\0\0\0\0MAYA", 12), "line 1: This is a Maya binary file"},
        {"text.ma", "createNode joint;\n", "line 1: This is not a Maya ASCII file"},
        {"nul.ma", std::string("//Maya ASCII 2019 scene\n\n\0;", 27), "nul.ma line 3: NUL byte"},
    };
    for (const auto &row : cases) {
        writeBytes(row.name, row.bytes);
        expectRefused(row.name, row.error);
    }
    expectRefused("missing.ma", "File not found");
    expectRefused("", "folder");
}

TEST_F(BadFile, isRefusedAtTheLineWhereItGoesWrong)
{
    const std::string skin = "createNode skinCluster -n \"skin\";\n";
    const struct {
        const char *name;
        std::string statements; // from line 4 on
        const char *error;
    } cases[] = {
        {"cutInString.ma", skin + "\tsetAttr \".an\" -type \"str", "line 5: The file is cut off"},
        {"cutInValues.ma", skin + "\n\tsetAttr \".wl[0].w\"\n\t\t1 0",
         "line 6: The file is cut off"},
        {"negativeIndex.ma", skin + "\tsetAttr \".wl[0].w\" 1 -3 1;\n", "line 5: "},
        {"missingValues.ma", skin + "\tsetAttr \".wl[0].w\" 2 0 1;\n", "line 5: "},
        {"sameNode.ma", skin + skin, "line 5: The name \"skin\" is taken"},
        {"samePath.ma",
         "createNode transform -n \"a\";\ncreateNode transform -n \"b\" -p \"a\";\n"
         "createNode transform -n \"b\" -p \"a\";\n",
         "line 6: The name \"b\" is taken"},
        {"noParent.ma", "createNode transform -n \"a\" -p \"b\";\n", "line 4: No object matches"},
        {"belowItself.ma",
         "createNode transform -n \"a\";\ncreateNode transform -n \"b\" -p \"a\";\n"
         "parent -s -nc -r -add \"|a\" \"b\";\n",
         "line 6: "},
        {"longWeights.ma", skin + "\tsetAttr \".weightList[0].weights[0]\" x;\n", "line 5: "},
        {"notAboutANode.ma", "createNode transform -n \"a\" -p \"initialShadingGroup\";\n",
         "line 4: Only a node of the DAG can be a parent"},
        {"billionIndex.ma", skin + "\tsetAttr \".wl[1000000000].w[0]\" 1;\n", "line 5: "},
        {"deepParentheses.ma", skin + "\tsetAttr \".en\" " + times(100000, "(") + ";\n",
         "line 5: "},
        {"longLine.ma", skin + "\tsetAttr \".an\" \"" + std::string(70u << 20, 'a') + "\";\n",
         "line 4: The statement is longer than 64 MB"},
        {"manyValues.ma", skin + "\tsetAttr \".x\" " + times(4000000, "1 ") + ";\n",
         "line 4: The statement has too many values"},
        {"procedure.ma", "global proc run() { system(\"true\"); }\n", "line 4: Syntax error"},
        {"backQuotes.ma", "createNode joint -n `system \"true\"`;\n",
         "line 4: A scene file can not"},
        {"aboutNothing.ma", "setAttr \".t\" 1 2 3;\n", "line 4: There is no node"},
        {"renames.ma", skin + "rename \"hip\";\n", "line 5: A file can not rename"},
    };
    for (const auto &row : cases) {
        write(row.name, row.statements);
        expectRefused(row.name, row.error);
    }
}

// Nested instances double the ways down to a node with every level.
TEST_F(BadFile, isRefusedWhenInstancesMultiply)
{
    std::string statements = "createNode transform -n \"a0\";\ncreateNode transform -n \"b0\";\n";
    std::string above;
    for (unsigned i = 0; i < 40; ++i) {
        const std::string a = above + "|a" + std::to_string(i);
        const std::string b = above + "|b" + std::to_string(i);
        for (const char *name : {"a", "b"}) {
            const std::string child = name + std::to_string(i + 1);
            statements += "createNode transform -n \"" + child + "\" -p \"" + a + "\";\n" +
                          "parent -s -nc -r -add \"" + a + "|" + child + "\" \"" + b + "\";\n";
        }
        above = a;
    }
    write("instances.ma", statements);
    expectRefused("instances.ma", "Too many instances");
}

TEST_F(BadFile, runsNothingThatAFileMayNotHold)
{
    const std::string forbidden = path("forbidden");
    ASSERT_TRUE(open(write("commands.ma", "system(\"touch " + forbidden + "\");\n" +
                                              "python(\"open('" + forbidden + "', 'w')\");\n" +
                                              "eval \"createNode joint\";\nfile -f -new;\n" +
                                              "createNode joint -n \"hip\";\n")));
    const std::string warnings = takeWarnings();
    for (const char *part : {"commands.ma line 4: \"system\"", "line 5: \"python\"",
                             "line 6: \"eval\"", "line 7: \"file\""})
        EXPECT_NE(warnings.find(part), std::string::npos) << warnings;
    EXPECT_FALSE(std::filesystem::exists(forbidden));
    EXPECT_EQ(melStrings("ls -type joint"), "hip");
}

TEST_F(BadFile, opensWithoutWhatIsMissing)
{
    std::string statements = "file -r -ns \"rig\" -dr 1 -rfn \"rigRN\" \"rigs/arm.ma\";\n"
                             "createNode joint -n \"hip\";\n";
    for (int i = 0; i < 25; ++i)
        statements += "connectAttr \"lost" + std::to_string(i) + ".t\" \"hip.t\";\n";
    statements += "createNode joint -n \"knee\";\n";
    ASSERT_TRUE(open(write("missing.ma", statements)));
    const std::string warnings = takeWarnings();
    EXPECT_NE(warnings.find("line 4: The referenced file \"rigs/arm.ma\""), std::string::npos);
    EXPECT_NE(warnings.find("line 6: No object matches name: lost0 (and 24 more such"),
              std::string::npos)
        << warnings;
    EXPECT_EQ(melStrings("ls -type joint"), "hip knee");
    EXPECT_NE(savedText().find("file -r -ns \"rig\" -dr 1 -rfn \"rigRN\" \"rigs/arm.ma\";\n"),
              std::string::npos);
}

TEST_F(BadFile, mayHaveASkinOfNoVertices)
{
    ASSERT_TRUE(open(write(
        "nothing.ma", "createNode transform -n \"m\";\ncreateNode mesh -n \"mShape\" -p \"m\";\n"
                      "\tsetAttr -s 0 \".vt\";\ncreateNode joint -n \"hip\";\n"
                      "createNode skinCluster -n \"skin\";\n\tsetAttr -s 0 \".wl\";\n"
                      "connectAttr \"skin.og[0]\" \"mShape.i\";\n"
                      "connectAttr \"hip.wm\" \"skin.ma[0]\";\n")));
    EXPECT_EQ(melStrings("skinCluster -q -inf skin"), "hip");
    melError("skinPercent -q -v skin \"m.vtx[0]\"");
    EXPECT_NE(savedText(), "");
}

} // namespace
