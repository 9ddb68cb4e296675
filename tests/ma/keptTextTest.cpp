// SPDX-License-Identifier: Apache-2.0
// What a scene file says and the host can't make sense of: the scene opens, a warning names it, and
// the next save has it again.
#include <chrono>
#include <functional>

#include <sys/stat.h>

#include "ma/sceneWriter.h"
#include "support/sceneFile.h"

namespace
{

class KeptText : public SceneFileTest
{
protected:
    // Opens the statements, saves them, and opens that: both times the same text comes out.
    std::string reopened(const std::string &statements)
    {
        EXPECT_TRUE(open(write("kept.ma", statements))) << takeErrors();
        takeWarnings();
        const std::string saved = savedText();
        EXPECT_TRUE(open(path("saved.ma"))) << takeErrors();
        takeWarnings();
        EXPECT_EQ(savedText(), saved);
        return saved;
    }
};

TEST_F(KeptText, comesBackAsTheFileHadIt)
{
    const std::string mesh = "createNode mesh -n \"m\";\n";
    const std::string shape = "createNode blendShape -n \"b\";\n";
    const std::string node = "createNode transform -n \"a\";\n";
    const std::string many = "1 " + std::string(2000, '1');
    const struct {
        std::string block, statement;
        const char *warning;
    } cases[] = {
        {"createNode fancy -n \"f\";\n", "\tsetAttr \".x\" -type \"HIKCharacter\";", "line 5: "},
        {"createNode groupParts -n \"g\";\n", "\tsetAttr \".ic\" -type \"componentList\";", ""},
        {shape, "\tsetAttr \".it[0].itg[0].iti[6000].ict\" -type \"componentList\";", "line 5: "},
        {mesh, "\tsetAttr -s 3 \".clst[0].clsp[0:2]\"  1 0.5 1;", "line 5: setAttr: Error reading"},
        {mesh, "\tsetAttr \".vt[0:2]\" 0 0 0 1 1 1;", "line 5: "},
        {mesh, "\tsetAttr \".vt[90000000]\" 0 0 0;", "out of range"},
        {shape, "\tsetAttr \".ip[0].brandnew\" 7;", "No object matches name: b.ip[0].brandnew"},
        {node, "\tsetAttr \".v\" abc;", "line 5: "},
        {node, "\tsetAttr \".t\" 1 2;", "line 5: "},
        {node, "\taddAttr -ci true -sn \"n\" -ln \"new\" -at \"quaternion9\";", "unknown"},
        {node, "\tsetAttr \".x[0].x[0].x[0].x[0].x[0].x[0].x[0].x[0].x[0].x\" 1;", "too deeply"},
        {node, "\tsetAttr \".ptw\" -type \"doubleArray\" 1000000000 1;", "line 5: "},
        {node, "connectAttr \"gone.t\" \"a.t\" -l on;", "No object matches name: gone"},
        {shape + node, "connectAttr \"a.tx\" \"b.ip[0].brandnew\";", "brandnew"},
        {node, "futureCommand -x 1 \"a\";", "\"futureCommand\" is no command of a scene file"},
        {"", "fileInfo \"only\";", "line 4: Wrong number of arguments"},
        {"", "requires \"plug\";", "line 4: "},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.statement);
        const std::string statements = c.block + c.statement + "\n";
        ASSERT_TRUE(open(write("once.ma", statements))) << takeErrors();
        EXPECT_NE(takeWarnings().find(c.warning), std::string::npos);
        EXPECT_NE(reopened(statements).find(c.statement + "\n"), std::string::npos) << savedText();
    }
}

TEST_F(KeptText, losesToValuesThatWereSetSince)
{
    ASSERT_TRUE(open(write("old.ma", "createNode transform -n \"a\";\n"
                                     "\taddAttr -ln \"n\" -at \"double\";\n"
                                     "\tsetAttr \".n\" 1 2;\n\tsetAttr \".t\" 1 2;\n")));
    mel("setAttr a.t 4 5 6");
    std::string saved = savedText();
    EXPECT_LT(saved.find("setAttr \".t\" 1 2;"), saved.find("-type \"double3\" 4 5 6;"));
    mel("deleteAttr a.n");
    EXPECT_EQ(savedText().find(".n"), std::string::npos) << "goes with its attribute";
    ASSERT_TRUE(open(path("saved.ma")));
    EXPECT_EQ(melNumbers("getAttr a.t"), (std::vector<double>{4, 5, 6}));
}

TEST_F(KeptText, ofAConnectionFollowsItsNodes)
{
    ASSERT_TRUE(open(write("gone.ma", "createNode transform -n \"a\";\n"
                                      "connectAttr \"gone.t\" \"a.t\";\n"
                                      "connectAttr \":plugInDefault.msg\" \"a.x\";\n")));
    mel("rename a b");
    EXPECT_NE(savedText().find("connectAttr \"gone.t\" \"b.t\";"), std::string::npos);
    EXPECT_NE(savedText().find("connectAttr \":plugInDefault.msg\" \"b.x\";"), std::string::npos);
    mel("delete b");
    EXPECT_EQ(savedText().find("gone"), std::string::npos);
}

TEST_F(KeptText, isToldInNoMoreThanTwentyLines)
{
    std::string statements = "createNode transform -n \"a\";\n";
    for (int i = 0; i < 500; ++i)
        statements += "command" + std::string(1, char('a' + i % 26)) +
                      std::string(1, char('a' + i / 26)) + " 1;\n\tsetAttr \".t\" 1 2;\n";
    ASSERT_TRUE(open(write("many.ma", statements)));
    const std::string warnings = takeWarnings();
    EXPECT_LE(std::count(warnings.begin(), warnings.end(), '\n'), 20);
    EXPECT_NE(warnings.find("line 6: setAttr: Error reading data element number 3:  (and 499 more"),
              std::string::npos)
        << warnings;
}

// Names, parents and children of node types that nobody knows.
TEST_F(KeptText, hasAllNodesOfUnknownTypes)
{
    const struct {
        std::string statements;
        const char *question, *answer;
    } cases[] = {
        {"createNode someRig -n \"rig\";\n\tsetAttr \".t\" -type \"double3\" 1 2 3;\n"
         "\tsetAttr \".own\" 5;\n\tsetAttr -l on \".v\" no;\n"
         "createNode transform -n \"c\" -p \"rig\";\ncreateNode joint -n \"hip\" -p \"c\";\n",
         "ls -l hip", "|rig|c|hip"},
        {"createNode someRig -n \"rig\";\ncreateNode someRig -n \"other\";\n"
         "createNode joint -n \"hip\" -p \"rig\";\n",
         "ls -l -dag -type someRig", "|rig |other"},
        {"createNode odd -n \"odd1\";\ncreateNode transform -n \"g\";\n"
         "createNode odd -n \"odd2\" -p \"g\";\n",
         "ls -l odd1 odd2", "|odd1 |g|odd2"},
        {"createNode transform -n \"g\";\ncreateNode odd -n \"o\";\n"
         "createNode joint -n \"hip\" -p \"g\";\nparent -s -nc -r -add \"|g|hip\" \"o\";\n",
         "ls -l -ap hip", "|g|hip |o|hip"},
        {"createNode ikHandle -n \"i\";\ncreateNode transform -n \"g\";\n"
         "createNode ikHandle -n \"i2\" -p \"g\";\n"
         "createNode poleVectorConstraint -n \"c\" -p \"i\";\n",
         "ls -l i i2 c", "|i |g|i2 |i|c"},
        {"createNode lookAt -n \"l\";\ncreateNode transform -n \"t\" -p \"l\";\n"
         "createNode camera -n \"tShape\" -p \"t\";\n",
         "ls -l tShape", "|l|t|tShape"},
    };
    for (const auto &c : cases) {
        ASSERT_TRUE(open(write("types.ma", c.statements))) << takeErrors();
        EXPECT_EQ(takeWarnings(), "");
        EXPECT_EQ(melStrings(c.question), c.answer) << c.statements;
        const std::string saved = savedText();
        ASSERT_TRUE(open(path("saved.ma"))) << takeErrors();
        EXPECT_EQ(melStrings(c.question), c.answer) << saved;
        mel("file -f -new");
        mel("file -i \"" + path("saved.ma") + "\"");
        EXPECT_EQ(melStrings(c.question), c.answer) << "imported: " << saved;
    }
    std::string values = cases[0].statements;
    values.insert(values.find("\tsetAttr \".own"),
                  "\tsetAttr \".r\" 1 2;\n\tsetAttr \".it\" -type \"Odd\";\n");
    ASSERT_TRUE(open(write("values.ma", values)));
    EXPECT_NE(takeWarnings().find("line 10: setAttr: Error reading data element number 3"),
              std::string::npos);
    EXPECT_EQ(melNumbers("xform -q -ws -t hip"), (std::vector<double>{1, 2, 3}));
    const std::string saved = savedText();
    for (const char *statement :
         {"setAttr \".r\" 1 2;", "setAttr \".it\" -type \"Odd\";", "setAttr -l on \".v\" no;",
          "setAttr \".own\" 5;", "setAttr \".t\" -type \"double3\" 1 2 3;"})
        EXPECT_NE(saved.find(statement), std::string::npos) << saved;
    melError("createNode transform -n t -p initialShadingGroup");
    EXPECT_EQ(melNumbers("objExists t"), std::vector<double>{0});
}

TEST_F(KeptText, hasEachConnectionOfInstances)
{
    const std::string statements =
        "createNode transform -n \"a\";\ncreateNode transform -n \"s\" -p \"a\";\n"
        "createNode mesh -n \"sShape\" -p \"s\";\n\tsetAttr -s 2 \".iog\";\n"
        "createNode transform -n \"b\";\nparent -s -nc -r -add \"|a|s\" \"b\";\n"
        "createNode objectSet -n \"set\";\ncreateNode groupId -n \"id\";\n";
    const std::string connections = "connectAttr \"id.id\" \"sShape.ciog.cog[0].cgid\";\n"
                                    "connectAttr \"|a|s|sShape.iog\" \"set.dsm\" -na;\n"
                                    "connectAttr \"|b|s|sShape.iog\" \"set.dsm\" -na;\n";
    ASSERT_TRUE(open(write("instances.ma", statements + connections)));
    EXPECT_EQ(takeWarnings(), "");
    EXPECT_EQ(melStrings("listConnections -p 1 -s 1 -d 0 set.dsm"),
              "sShape.instObjGroups[0] sShape.instObjGroups[1]");
    const std::string saved = reopened(statements + connections);
    EXPECT_NE(saved.find("connectAttr \"|a|s|sShape.iog\" \"set.dsm\" -na;\n"
                         "connectAttr \"|b|s|sShape.iog\" \"set.dsm\" -na;\n"),
              std::string::npos)
        << saved;
    EXPECT_NE(saved.find(".cgid\";"), std::string::npos);
}

TEST_F(KeptText, hasTheFirstOfTwoConnectionsIntoAPlug)
{
    ASSERT_TRUE(open(write("two.ma", "createNode mesh -n \"m\";\ncreateNode objectSet -n \"s\";\n"
                                     "connectAttr \"m.foo.objectGroups[1]\" \"s.dsm\" -na;\n"
                                     "connectAttr \"time1.o\" \"m.x\";\n"
                                     "connectAttr \"lambert1.msg\" \"m.x\";\n")));
    const std::string warnings = takeWarnings();
    EXPECT_NE(warnings.find("line 6: 'm.foo.objectGroups[1]' is nothing"), std::string::npos);
    EXPECT_NE(warnings.find("line 8: 'm.x' already has an incoming connection from 'time1.o"),
              std::string::npos)
        << warnings;
    mel("select -r s");
    EXPECT_EQ(melStrings("listConnections m.x"), "time1");
}

// The default cameras may have been renamed, grouped, or left out.
TEST_F(KeptText, mayHaveItsOwnDefaultCameras)
{
    for (const char *change :
         {"rename persp hello; createNode transform -n persp",
          "createNode transform -n c; parent persp c", "group top", "rename perspShape b",
          "group side; rename front f", "createNode transform -n a; group -n top a",
          "createNode transform -n c; parent persp c; "
          "parent top c",
          "group front side"}) {
        mel("file -f -new");
        mel(change);
        savedText();
        ASSERT_TRUE(open(path("saved.ma"))) << change << takeErrors();
        EXPECT_EQ(takeWarnings(), "");
        const std::string cameras = melStrings("ls -l -type camera");
        const std::string saved = savedText();
        ASSERT_TRUE(open(path("saved.ma"))) << change << takeErrors();
        EXPECT_EQ(melStrings("ls -l -type camera"), cameras) << change;
        EXPECT_EQ(savedText(), saved) << change;
    }
    ASSERT_TRUE(open(write("none.ma", "createNode transform -n \"a\";\n")));
    EXPECT_EQ(melStrings("ls -assemblies"), "persp top front side a");
}

// Elements of arrays: at the default they are not saved, "" is a value, and any index comes back.
TEST_F(KeptText, hasTheElementsThatHoldSomething)
{
    mel("createNode transform -n a; addAttr -ln text -dt \"string\" -m; "
        "addAttr -ln flag -at bool -m; addAttr -ln number -at long -dv 3 -m; "
        "addAttr -ln cell -at compound -nc 2 -m; addAttr -ln used -at bool -p cell; "
        "addAttr -ln who -dt \"string\" -m -p cell");
    mel("getAttr a.text[3]; setAttr a.text[5] -type \"string\" \"x\"; "
        "setAttr a.text[7] -type \"string\" \"\"; setAttr a.flag[2] 0; setAttr a.flag[4] 1; "
        "setAttr a.flag[5] 0; setAttr a.number[0] 3; setAttr a.number[2] 0; "
        "setAttr a.number[1500000] 7; setAttr a.cell[1].used 0; "
        "setAttr a.cell[6].who[2] -type \"string\" \"j\"; createNode skinCluster -n k; "
        "setAttr k.wl[1500000].w[1] 1");
    const std::string saved = savedText();
    ASSERT_TRUE(open(path("saved.ma"))) << takeErrors();
    EXPECT_EQ(takeWarnings(), "");
    const struct {
        const char *array;
        std::vector<double> indices;
    } cases[] = {{"a.text", {5, 7}}, {"a.flag", {4}},        {"a.number", {2, 1500000}},
                 {"a.cell", {6}},    {"a.cell[6].who", {2}}, {"k.wl", {1500000}}};
    for (const auto &c : cases)
        EXPECT_EQ(melNumbers(std::string("getAttr -mi ") + c.array), c.indices) << saved;
    EXPECT_EQ(savedText(), saved);
}

TEST_F(KeptText, mayStandInFormsOfOtherSystems)
{
    const std::string one =
        "//Maya ASCII 2017 scene\ncreateNode transform -n \"a\";\n// End of a\n";
    std::string carriageReturns = one;
    std::replace(carriageReturns.begin(), carriageReturns.end(), '\n', '\r');
    for (const std::string &text : {one, "\xEF\xBB\xBF" + one, carriageReturns}) {
        ASSERT_TRUE(open(writeBytes("form.ma", text))) << takeErrors();
        EXPECT_EQ(takeWarnings(), "");
        EXPECT_EQ(melNumbers("objExists a"), std::vector<double>{1});
    }
    ASSERT_TRUE(open(writeBytes("cut.ma", one.substr(0, one.rfind("//")))));
    EXPECT_NE(takeWarnings().find("does not end with"), std::string::npos);
    ASSERT_EQ(mkfifo(path("pipe.ma").c_str(), 0600), 0);
    EXPECT_FALSE(open(path("pipe.ma")));
    EXPECT_NE(takeErrors().find("This is not a file"), std::string::npos);
}

// A number of faces that is not there does not make a file that can't be opened again.
TEST_F(KeptText, mayAnnounceMoreThanThereIs)
{
    reopened("createNode mesh -n \"m\";\n\tsetAttr -s 1 -ch 9 \".fc[0]\" -type \"polyFaces\" f "
             "2000000000 0 1 2;\n\tsetAttr -s 1000000000 \".vt\";\n");
}

// What a save would lose has a name; nothing is written then.
TEST(missingNames, areThoseOfNodesAndTheirConnections)
{
    using Names = std::vector<std::string>;
    host::Scene scene(host::Scene::Cameras::leftToFile);
    const host::NodePtr a = scene.createNode("transform", "a");
    const host::NodePtr b = scene.createNode("transform", "b");
    scene.connect(a->plug("tx"), b->plug("tx"));
    EXPECT_EQ(host::ma::missingNames(scene, {a, b}, 1), Names());
    EXPECT_EQ(host::ma::missingNames(scene, {a, b}, 0), Names{"1 connections"});
    EXPECT_EQ(host::ma::missingNames(scene, {b}, 1), (Names{"a", "a.translateX -> b.translateX"}));
}

TEST_F(KeptText, isReadInProportionToItsLength)
{
    const auto seconds = [this](const std::string &statements) {
        const std::string file = write("long.ma", statements);
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(open(file)) << takeErrors();
        savedText();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    const struct {
        const char *what, *head;
        std::function<std::string(const std::string &)> line;
    } cases[] = {
        {"equal names", "",
         [](const std::string &i) {
             return "createNode transform -n \"t" + i +
                    "\";\ncreateNode transform -n \"b\" -p \"t" + i +
                    "\";\ncreateNode transform -n \"c\" -p \"|t" + i + "|b\";\n";
         }},
        {"fileInfo", "", [](const std::string &i) { return "fileInfo \"" + i + "\" \"x\";\n"; }},
        {"weights downwards", "createNode skinCluster -n \"k\";\n",
         [](const std::string &i) {
             return "\tsetAttr \".wl[0].w[" + std::to_string(100000 - std::stoi(i)) + "]\" 1;\n";
         }},
        {"tweaks downwards", "createNode mesh -n \"m\";\n",
         [](const std::string &i) {
             return "\tsetAttr \".pt[" + std::to_string(100000 - std::stoi(i)) + "]\" 1 2 3;\n";
         }},
    };
    for (const auto &c : cases) {
        std::string texts[2] = {c.head, c.head};
        for (int i = 0; i < 8000; ++i) {
            texts[1] += c.line(std::to_string(i));
            if (i < 2000)
                texts[0] += c.line(std::to_string(i));
        }
        EXPECT_LT(seconds(texts[1]), 8.0 * seconds(texts[0]) + 0.1) << c.what;
    }
}

} // namespace
