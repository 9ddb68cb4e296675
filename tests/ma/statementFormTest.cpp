// SPDX-License-Identifier: Apache-2.0
// The forms in which Maya's releases write the same thing: all are read, and written as the file's
// release does it.
#include "support/sceneFile.h"

namespace
{

class StatementForm : public SceneFileTest
{
};

struct Block {
    const char *what;
    std::string text; // whole statements, as Maya lays them out
};

// Blocks whose statements come back byte for byte, in this order; sizes may stand in between.
const Block kBlocks[] = {
    {"states", "createNode transform -n \"a\";\n"
               "\tsetAttr -k off \".v\" no;\n"
               "\tsetAttr -l on -k off \".tx\" 0.5;\n"
               "\tsetAttr -av -k on \".ty\";\n"
               "\tsetAttr -k off -cb on \".ro\";\n"},
    {"locks", "createNode transform -n \"a\";\n"
              "\tsetAttr \".t\" -type \"double3\" 1 2.5 -3e-07;\n"
              "lockNode -l 1 -lu 1;\n"},
    {"dynamic attributes",
     "createNode transform -n \"a\";\n"
     "\trename -uid \"1D4E9C1A-0000-0000-0000-000000000001\";\n"
     "\taddAttr -is true -ci true -h true -k true -sn \"h\" -ln \"handle\" -dv 1 -min 0 -max 5 "
     "-at \"double\";\n"
     "\taddAttr -ci true -m -sn \"opt\" -ln \"option\" -at \"compound\" -nc 2;\n"
     "\taddAttr -ci true -sn \"name\" -ln \"name\" -dt \"string\" -p \"option\";\n"
     "\taddAttr -ci true -sn \"on\" -ln \"on\" -min 0 -max 1 -at \"bool\" -p \"option\";\n"
     "\taddAttr -ci true -sn \"tags\" -ln \"tags\" -dt \"stringArray\";\n"
     "\taddAttr -ci true -m -sn \"flags\" -ln \"flags\" -at \"bool\";\n"
     "\tsetAttr \".h\" 4;\n"
     "\tsetAttr -s 2 \".opt\";\n"
     "\tsetAttr \".opt[0].name\" -type \"string\" \"a \\\"b\\\"\\n\\t\\\\c;//\";\n"
     "\tsetAttr \".opt[0].on\" yes;\n"
     "\tsetAttr \".opt[7].name\" -type \"string\" \"\";\n"
     "\tsetAttr \".tags\" -type \"stringArray\" 2 \"x\" \"\";\n"
     "\tsetAttr -s 2 \".flags[0]\" yes;\n"
     "\tsetAttr \".flags[2]\" yes;\n"},
    {"unknown types and attributes",
     "createNode fancySolver -n \"a\";\n"
     "\tsetAttr -s 2 \".in[3:4]\" 1 2 3 4;\n"
     "\tsetAttr \".state\" -type \"fancyState\" 3 \"a b\" Word |unquoted|path;\n"
     "\tsetAttr \".points\" -type \"pointArray\" 1 0 0.25 1 1;\n"
     "\tsetAttr \".deep[2].er[5].x\" -type \"float3\" 0.1 0.2 0.3;\n"},
    {"mesh", "createNode mesh -n \"aShape\" -p \"a\";\n"
             "\tsetAttr \".io\" yes;\n"
             "\tsetAttr -s 3 \".vt[0:2]\" 0 0 0 1 0 0 0 0 0.1;\n"
             "\tsetAttr -s 3 \".ed[0:2]\" 0 1 0 1 2 0 2 0 1;\n"
             "\tsetAttr -ch 3 \".fc[0]\" -type \"polyFaces\" f 3 0 1 2;\n"
             "\tsetAttr \".pt[1]\" -type \"float3\" 0 -1.5 0;\n"
             "\tsetAttr -s 3 \".uvst[0].uvsp[0:2]\" 0 0 1 0 1 1;\n"
             "\tsetAttr \".hfd\" -type \"dataPolyComponent\" Index_Data Face 0;\n"},
    {"components", "createNode groupParts -n \"g\";\n"
                   "\tsetAttr \".ic\" -type \"componentList\" 2 \"vtx[0:35]\" \"vtx[40]\";\n"},
    {"instances", "createNode transform -n \"a\";\n"
                  "createNode mesh -n \"aShape\" -p \"a\";\n"
                  "createNode transform -n \"b\";\n"
                  "parent -s -nc -r -add \"|a|aShape\" \"b\";\n"
                  "createNode objectSet -n \"s\";\n"
                  "connectAttr \"|a|aShape.iog\" \"s.dsm\" -na;\n"
                  "connectAttr \"|b|aShape.iog\" \"s.dsm\" -na;\n"},
    {"equal names", "createNode transform -n \"a\";\n"
                    "createNode joint -n \"hip\" -p \"a\";\n"
                    "createNode joint -n \"knee\" -p \"|a|hip\";\n"
                    "createNode transform -n \"b\";\n"
                    "createNode joint -n \"hip\" -p \"b\";\n"
                    "connectAttr \"b|hip.s\" \"knee.is\" -l on;\n"},
    {"statements without meaning here",
     "requires -nodeType \"strange\" \"plug\" \"1.0\";\n"
     "currentUnit -l meter -a degree -t ntsc;\n"
     "fileInfo \"key\" \"a \\\"value\\\"\";\n"
     "dataStructure -fmt \"raw\" -as \"name=x\";\n"
     "relationship \"link\" \":lightLinker1\" \":initialShadingGroup.message\";\n"},
    {"packed weights", "createNode skinCluster -n \"a\";\n"
                       "\tsetAttr -s 4 \".wl\";\n"
                       "\tsetAttr \".wl[0:1].w\"\n"
                       "\t\t2 0 0.75 7 0.25\n"
                       "\t\t1 7 nan;\n"
                       "\tsetAttr \".wl[5:6].w\"\n"
                       "\t\t0\n"
                       "\t\t1 0 -7e-09;\n"
                       "\tsetAttr \".nw\" 2;\n"},
};

TEST_F(StatementForm, isWrittenBackAsItWas)
{
    for (const Block &block : kBlocks) {
        SCOPED_TRACE(block.what);
        const bool needsParent = std::string(block.what) == "mesh";
        ASSERT_TRUE(open(
            write("form.ma", (needsParent ? "createNode transform -n \"a\";\n" : "") + block.text)))
            << takeErrors();
        EXPECT_EQ(takeWarnings(), "");
        const std::string saved = savedText();
        std::size_t at = 0; // in the saved text: each statement behind the one before
        for (std::size_t begin = 0; begin < block.text.size() && at != std::string::npos;) {
            const std::size_t end = block.text.find(";\n", begin) + 2;
            const std::string statement = block.text.substr(begin, end - begin);
            at = saved.find(statement, at);
            EXPECT_NE(at, std::string::npos) << statement << "is missing in\n" << saved;
            begin = end;
        }
    }
}

// Forms that are written back in another one.
TEST_F(StatementForm, givesTheValueThatItMeans)
{
    const struct {
        const char *statements, *question;
        std::vector<double> answer;
    } cases[] = {
        {"createNode skinCluster -n s;\n setAttr \".wl[0].w[2]\" 1;\n setAttr -k on "
         "\".wl[0].w\";\n",
         "getAttr s.wl[0].w[2]",
         {1}},
        {"createNode skinCluster -n s;\n setAttr -size 2 \".weightList\";\n"
         " setAttr \".weightList[1].weights[2]\" 1e-007;\n",
         "getAttr s.wl[1].w[2]",
         {1e-7}},
        // Weights of a deformer that the host does not know.
        {"createNode softMod -n s;\n setAttr \".wl[0:2].w\"\n 1 0 0.5\n 2 0 1 3 0.25\n 1 1 1;\n",
         "getAttr s.wl[1].w[3]",
         {0.25}},
        {"createNode mesh -n m;\n setAttr \".pt[3:4]\" -type \"float3\" 0 0 1 0 0 2;\n"
         " setAttr \".pt[6]\" 0 0 3;\n",
         "getAttr m.pt",
         {0, 0, 1, 0, 0, 2, 0, 0, 3}},
        {"createNode transform -n t;\n setAttr -l on \".tx\";\n setAttr \".tx\" 4;\n",
         "getAttr t.tx",
         {4}},
        {"createNode transform -n t;\n setAttr -av \".tx\";\n setAttr \".t\";\n"
         " setAttr -k off \".v\" no;\n",
         "getAttr t.v",
         {0}},
        {"createNode skinCluster -n s;\n setAttr \".pm[3]\" -type \"matrix\" 1 0 0 0 0 1 0 0 0 0 1 "
         "0"
         " 1 2 3 1;\n",
         "getAttr s.pm[3]",
         {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 2, 3, 1}},
        {"createNode transform -n t;\n addAttr -ci true -sn \"c\" -ln \"c\" -at \"float3\" -nc 3;\n"
         " addAttr -ci true -sn \"cr\" -ln \"cr\" -at \"float\" -p \"c\";\n"
         " addAttr -ci true -sn \"cg\" -ln \"cg\" -at \"float\" -p \"c\";\n"
         " addAttr -ci true -sn \"cb\" -ln \"cb\" -at \"float\" -p \"c\";\n"
         " setAttr \".c\" -type \"float3\" 1 0.5 0.25;\n",
         "getAttr t.c",
         {1, 0.5, 0.25}},
    };
    for (const auto &c : cases) {
        ASSERT_TRUE(open(write("form.ma", c.statements, "2017"))) << takeErrors();
        EXPECT_EQ(melNumbers(c.question), c.answer);
        savedText();
        ASSERT_TRUE(open(path("saved.ma"))) << takeErrors();
        EXPECT_EQ(melNumbers(c.question), c.answer) << "saved again";
    }
}

TEST_F(StatementForm, ofOlderReleasesHasWeightsInRuns)
{
    const std::string runs = "createNode skinCluster -n \"a\";\n"
                             "\tsetAttr -s 3 \".wl\";\n"
                             "\tsetAttr \".wl[0].w[7]\" 1;\n"
                             "\tsetAttr -s 2 \".wl[1].w[3:4]\" 0.25 0.75;\n"
                             "\tsetAttr -s 3 \".wl[2].w\";\n"
                             "\tsetAttr \".wl[2].w[0]\" 0.5;\n"
                             "\tsetAttr \".wl[2].w[2:3]\" 0.25 0.25;\n";
    ASSERT_TRUE(open(write("old.ma", runs, "2017"))) << takeErrors();
    EXPECT_NE(savedText().find(runs), std::string::npos) << savedText();
}

// 500 weights end a statement, in the middle of a vertex if it must be.
TEST_F(StatementForm, ofPackedWeightsMaySplitAVertex)
{
    std::string statements = "createNode skinCluster -n \"a\";\n";
    for (int vertex = 0; vertex < 251; ++vertex) {
        statements += "\tsetAttr \".wl[" + std::to_string(vertex) + "].w\" 2 0 0.5 1 0.25;\n" +
                      "\tsetAttr \".wl[" + std::to_string(vertex) + "].w\" 1 2 0.125;\n";
    }
    ASSERT_TRUE(open(write("split.ma", statements))) << takeErrors();
    const std::string saved = savedText();
    EXPECT_NE(saved.find("\t\t2 0 0.5 1 0.25;\n\tsetAttr \".wl[166:250].w\"\n\t\t1 2 0.125\n"),
              std::string::npos)
        << saved;
    ASSERT_TRUE(open(path("saved.ma")));
    EXPECT_EQ(savedText(), saved);
}

TEST_F(StatementForm, readsWhatOldAndForeignSystemsWrite)
{
    const std::string header = "//Maya ASCII 2014 scene\r\n//Codeset: 932\r\n";
    // In code page 932 the second byte of these is a backslash.
    const std::string name = "\x95\x5c\x94\x5c";
    ASSERT_TRUE(open(writeBytes(
        "old.ma",
        header + "createNode transform -n \"" + name + "\";\r\n" +
            "\tsetAttr \".t\" -type \"double3\"\r\n\t\t1.5e-007 -nan -1.#IND\r\n\t\t;\r\n" +
            "\taddAttr -dt \"string\" -ln \"note\";\r\n" +
            "\tsetAttr \".note\" -type \"string\" (\"" + name +
            "\"\r\n\t\t+ \";//\");\r\n// End of old\r\n")))
        << takeErrors();
    EXPECT_EQ(takeWarnings(), "");
    const std::string utf8 = "\xE8\xA1\xA8\xE8\x83\xBD"; // the same two characters
    EXPECT_EQ(melString("getAttr \"" + utf8 + ".note\""), utf8 + ";//");
    EXPECT_EQ(melNumbers("getAttr \"" + utf8 + ".tx\""), std::vector<double>{1.5e-7});
    const std::string saved = savedText();
    EXPECT_NE(saved.find("\tsetAttr \".t\" -type \"double3\" 1.5e-07 -nan -nan;\n"),
              std::string::npos)
        << saved;
    EXPECT_NE(saved.find("//Codeset: UTF-8\n"), std::string::npos);
}

TEST_F(StatementForm, saysWhichBytesAreNoText)
{
    ASSERT_TRUE(open(write("bytes.ma", "createNode transform -n \"a\xFF\";\n")));
    EXPECT_NE(takeWarnings().find("codeset \"UTF-8\" were replaced: 1"), std::string::npos);
    EXPECT_EQ(melStrings("ls -type transform \"a*\""), "a\xEF\xBF\xBD");
}

TEST_F(StatementForm, keepsLongNames)
{
    const std::string block = "createNode transform -name \"a\";\n"
                              "\taddAttr -cachedInternally true -shortName \"n\" -longName \"note\""
                              " -dataType \"string\";\n"
                              "\tsetAttr -lock on -keyable off \".visibility\" no;\n"
                              "\tsetAttr \".translate\" -type \"double3\" 1 2 3;\n"
                              "createNode joint -name \"hip\" -parent \"a\";\n";
    ASSERT_TRUE(open(write("long.ma", block))) << takeErrors();
    EXPECT_NE(savedText().find(block), std::string::npos) << savedText();
}

TEST_F(StatementForm, ofALongStringIsCut)
{
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "line " + std::to_string(i) + "\\n\\t\\\"\xC3\xA4\\\"; "; // escaped as in the file
    ASSERT_TRUE(open(write("string.ma", "createNode script -n \"a\";\n\tsetAttr \".b\" -type "
                                        "\"string\" \"" +
                                            text + std::string(900, 'x') + "\";\n")))
        << takeErrors();
    const std::string before = melString("getAttr \"a.b\"");
    const std::string saved = savedText();
    EXPECT_NE(saved.find("-type \"string\" (\n\t\t\"line 0"), std::string::npos) << saved;
    ASSERT_TRUE(open(path("saved.ma"))) << takeErrors();
    EXPECT_EQ(melString("getAttr \"a.b\""), before);
    EXPECT_GT(before.size(), 1500u);
}

// A scene's own words can't become statements of the file.
TEST_F(StatementForm, isNotBrokenByWhatNamesHold)
{
    ASSERT_TRUE(open(write("names.ma", "requires maya \"2019\\nquit;\";\n"
                                       "currentUnit -l \"cm;quit\" -a degree -t film;\n"
                                       "fileInfo \"k\\\"\" \"v\\n\";\n"
                                       "createNode \"odd; type\" -n \"a\";\n")))
        << takeErrors();
    const std::string saved = savedText();
    EXPECT_NE(saved.find("//Maya ASCII 2019_quit; scene\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("currentUnit -l \"cm;quit\" -a degree"), std::string::npos) << saved;
    ASSERT_TRUE(open(path("saved.ma"))) << takeErrors();
    EXPECT_EQ(savedText(), saved);
}

} // namespace
