// SPDX-License-Identifier: Apache-2.0
// The forms in which files give values, read through the commands that scripts use too.

#include "commands/savedScene.h"

#include <ostream>
#include <vector>

namespace
{

struct valueForm {
    const char *statements; // after a createNode
    const char *question;
    const char *answer; // lines are separated by blanks here
};

void PrintTo(const valueForm &row, std::ostream *out)
{
    *out << row.statements;
}

class fileForm : public testing::TestWithParam<valueForm>
{
protected:
    static std::string answer(melRecorder &maya, const std::string &question)
    {
        std::string text = maya.run("print(`" + question + "`)");
        for (char &c : text)
            c = c == '\n' ? ' ' : c;
        return text;
    }
};

TEST_P(fileForm, isReadAndComesBackAfterSaving)
{
    melRecorder maya;
    ASSERT_EQ(openStatements(maya, GetParam().statements), "");
    ASSERT_TRUE(maya.status);
    EXPECT_EQ(answer(maya, GetParam().question), GetParam().answer);

    savedScene();
    maya.run("file -f -open \"" + scenePath("saved.ma") + "\"");
    ASSERT_TRUE(maya.status);
    EXPECT_EQ(answer(maya, GetParam().question), GetParam().answer);
}

const valueForm kForms[] = {
    // Weights: single, run, packed, and a chunk that ends inside vertex 1.
    {"createNode skinCluster -n s;\n setAttr -s 2 \".wl\";\n setAttr \".wl[0].w[7]\"  1;\n"
     " setAttr -s 2 \".wl[1].w[12:13]\" 0.75 0.25;\n",
     "getAttr s.wl[1].w", "0.75 0.25"},
    {"createNode skinCluster -n s;\n setAttr \".wl[0:1].w\"\n 2 0 0.75 4 0.25\n 1 3 0.5;\n"
     " setAttr \".wl[1:2].w\"\n 1 5 0.5\n 1 0 1;\n",
     "getAttr -mi s.wl[1].w", "3 5"},
    {"createNode skinCluster -n s;\n setAttr \".wl[0].w[2]\" 1;\n setAttr -k on \".wl[0].w\";\n",
     "getAttr s.wl[0].w[2]", "1"},
    {"createNode skinCluster -n \"s\";\n setAttr -size 2 \".weightList\";\n"
     " setAttr \".weightList[1].weights[2]\" 1e-007;\n",
     "getAttr s.wl[1].w[2]", "1e-07"},
    // Weights of a deformer that the host does not know.
    {"createNode softMod -n s;\n setAttr \".wl[0:2].w\"\n 1 0 0.5\n 2 0 1 3 0.25\n 1 1 1;\n",
     "getAttr s.wl[1].w[3]", "0.25"},
    // Numbers.
    {"createNode mesh -n m;\n setAttr -s 3 \".vt[0:2]\" 0 0 0 1 1 1 2 2 2.5;\n", "getAttr m.vt[2]",
     "2 2 2.5"},
    {"createNode mesh -n m;\n setAttr \".pt[3:4]\" -type \"float3\" 0 0 1 0 0 2;\n"
     " setAttr \".pt[6]\" 0 0 3;\n",
     "getAttr m.pt", "0 0 1 0 0 2 0 0 3"},
    {"createNode dagPose -n p;\n setAttr -s 6 \".g[3:5]\" yes no yes;\n", "getAttr p.g", "1 0 1"},
    {"createNode transform -n t;\n setAttr \".t\" -type \"double3\" 1 2 -nan;\n"
     " setAttr -l on \".tx\";\n setAttr \".tx\" 4;\n",
     "getAttr t.tx", "4"},
    {"createNode transform -n t;\n setAttr -av \".tx\";\n setAttr \".t\";\n"
     " setAttr -k off \".v\" no;\n",
     "getAttr t.v", "0"},
    // Data.
    {"createNode script -n s;\n setAttr \".b\" -type \"string\" ( \"one; \\\"\" + \"two\"\n"
     " + \"\\n\\\\three // \");\n setAttr \".st\" 3;\n",
     "getAttr s.b", "one; \"two \\three // "},
    {"createNode groupParts -n g;\n setAttr \".ic\" -type \"componentList\" 2 \"vtx[0:35]\""
     " \"vtx[40]\"  ;\n",
     "getAttr g.ic", "vtx[0:35] vtx[40]"},
    {"createNode skinCluster -n s;\n setAttr \".pm[3]\" -type \"matrix\" 1 0 0 0 0 1 0 0 0 0 1 0"
     " 1 2 3 1;\n",
     "getAttr s.pm[3]", "1 0 0 0 0 1 0 0 0 0 1 0 1 2 3 1"},
    {"createNode mesh -n m;\n setAttr -s 2 -ch 8 \".fc[0:1]\" -type \"polyFaces\"\n f 4 0 4 -2 -4"
     "\n mu 0 4 0 1 3 2\n f 3 0 1 -3;\n",
     "getAttr -s m.fc", "2"},
    // Dynamic attributes.
    {"createNode transform -n t;\n addAttr -ci true -m -sn \"opt\" -ln \"option\" -at \"compound\""
     " -nc 2;\n addAttr -ci true -sn \"name\" -ln \"name\" -dt \"string\" -p \"option\";\n"
     " addAttr -ci true -m -sn \"val\" -ln \"val\" -at \"bool\" -p \"option\";\n"
     " setAttr -s 2 \".opt\";\n setAttr \".opt[4].name\" -type \"string\" \"x\";\n"
     " setAttr -s 3 \".opt[4].val[0:2]\" yes no yes;\n",
     "getAttr t.option[4].val", "1 0 1"},
    {"createNode transform -n t;\n addAttr -ci true -sn \"c\" -ln \"c\" -at \"float3\" -nc 3;\n"
     " addAttr -ci true -sn \"cr\" -ln \"cr\" -at \"float\" -p \"c\";\n"
     " addAttr -ci true -sn \"cg\" -ln \"cg\" -at \"float\" -p \"c\";\n"
     " addAttr -ci true -sn \"cb\" -ln \"cb\" -at \"float\" -p \"c\";\n"
     " setAttr \".c\" -type \"float3\" 1 0.5 0.25;\n",
     "getAttr t.c", "1 0.5 0.25"},
    // What nobody has declared.
    {"createNode strange -n s;\n setAttr \".a\" 3;\n setAttr -s 3 \".b[0:2]\" 4 5 6;\n"
     " setAttr \".c[7].d\" -type \"string\" \"text\";\n",
     "getAttr s.c[7].d", "text"},
    {"createNode strange -n s;\n setAttr \".e\" -type \"pointArray\" 1 1 2 3 4;\n"
     " setAttr \".f\" -type \"HIKCharacterState\" \"x y\" 5 -1 ;\n",
     "getAttr -type s.e", "pointArray"},
};

INSTANTIATE_TEST_SUITE_P(values, fileForm, testing::ValuesIn(kForms));

TEST(fileStatements, instancesArePickedByTheirPath)
{
    melRecorder maya;
    ASSERT_EQ(openStatements(maya, "createNode transform -n \"a\";\n"
                                   "createNode mesh -n \"m\" -p \"a\";\n"
                                   "createNode transform -n \"b\";\n"
                                   "parent -s -nc -r -add \"|a|m\" \"b\" ;\n"
                                   "createNode objectSet -n \"set\";\n"
                                   "connectAttr \"|a|m.iog\" \"set.dsm\" -na;\n"
                                   "connectAttr \"|b|m.iog\" \"set.dsm\" -na;\n"),
              "");
    EXPECT_EQ(maya.run("print(`listConnections -p 1 set.dsm`)"),
              "m.instObjGroups[0]\nm.instObjGroups[1]");
}

TEST(fileStatements, refuseWhatCannotBeRightAndKeepTheOldScene)
{
    const char *const hostile[] = {
        "createNode skinCluster -n s;\n setAttr -s 90000000 \".wl\";\n",
        "createNode mesh -n m;\n setAttr \".vt[90000000]\" 0 0 0;\n",
        "createNode mesh -n m;\n setAttr \".vt[0:2]\" 0 0 0 1 1 1;\n",
        "createNode skinCluster -n s;\n setAttr \".wl[0].w\" 99999 0 1;\n",
        "createNode skinCluster -n s;\n setAttr \".wl[0].w\" 1 -3 1;\n",
        "createNode transform -n t;\n setAttr \".tx\" abc;\n",
        "createNode transform -n t;\n setAttr \".tx\" 1 2;\n",
        "createNode transform -n t;\n setAttr \".s\" -type \"stringArray\" 7 \"x\";\n",
        "setAttr \".tx\" 1;\n",
        "createNode transform -n t -p \"nobody\";\n",
    };
    melRecorder maya;
    maya.run("createNode transform -n old");
    for (const char *statements : hostile) {
        const std::string shown = openStatements(maya, statements);
        EXPECT_FALSE(maya.status) << statements;
        EXPECT_NE(shown.find("opened.ma line "), std::string::npos) << shown;
        EXPECT_EQ(maya.run("print(`objExists old`)"), "1") << statements;
    }
}

TEST(fileStatements, keepWhatHasNoMeaningHere)
{
    const std::vector<std::string> kept = {
        "file -rdi 1 -ns \"rig\" -rfn \"rigRN\" \"rig.ma\";",
        "requires -nodeType \"strange\" \"plug\" \"1.0\";",
        "currentUnit -l meter -a degree -t ntsc;",
        "fileInfo \"key\" \"a \\\"value\\\"\";",
        "relationship \"link\" \":lightLinker1\" \":initialShadingGroup.message\";",
        "dataStructure -fmt \"raw\" -as \"name=x\";",
    };
    std::string statements;
    for (const std::string &statement : kept)
        statements += statement + "\n";
    melRecorder maya;
    openStatements(maya, statements);
    ASSERT_TRUE(maya.status);
    const std::string saved = savedScene();
    for (const std::string &statement : kept)
        EXPECT_NE(saved.find(statement + "\n"), std::string::npos) << statement << "\n" << saved;
}

} // namespace
