// SPDX-License-Identifier: Apache-2.0
// What opening a file and running a command costs grows as their input does.
//
// Eight times the input may take up to 24 times the processor's time, which leaves room for caches
// and logarithms; what grows with the square takes 64 times. Only the ratio within one run counts.
#include <algorithm>
#include <ctime>

#include "support/sceneFile.h"

namespace
{

constexpr unsigned kFactor = 8;
constexpr double kMostTimes = 3.0 * kFactor;

using Statements = std::string (*)(unsigned index);

struct Growth {
    const char *name;
    unsigned size;        // of the smaller file, in repetitions
    const char *before;   // statements in front
    Statements repeated;  // a repetition
    const char *commands; // run on the open scene, all of their results thrown away
};

std::string number(unsigned index)
{
    return std::to_string(index);
}

const Growth kGrowths[] = {
    {"nodes", 1000, "",
     [](unsigned i) {
         return "createNode transform -n \"n" + number(i) + "\";\n\tsetAttr \".tx\" 1;\n";
     },
     "ls; ls -l \"n*\"; ls -dag; ls -type transform; select -r \"n*\"; ls -sl; listRelatives -p "
     "\"n*\"; ls -uuid; select -cl"},
    {"chain", 200, "createNode transform -n \"n0\";\n",
     [](unsigned i) {
         return "createNode transform -n \"n" + number(i + 1) + "\";\nconnectAttr \"n" + number(i) +
                ".tx\" \"n" + number(i + 1) + ".tx\";\n";
     },
     "setAttr n0.tx 3; listHistory n1; listConnections n1"},
    {"connections into one node", 1000, "createNode objectSet -n \"all\";\n",
     [](unsigned i) {
         return "createNode transform -n \"n" + number(i) + "\";\nconnectAttr \"n" + number(i) +
                ".iog\" \"all.dsm\" -na;\n";
     },
     "listConnections all; sets -q all; select -r all; ls -sl; listHistory all"},
    {"aliases", 500, "createNode blendShape -n \"blend\";\n",
     [](unsigned i) {
         return "createNode transform -n \"n" + number(i) + "\";\nconnectAttr \"n" + number(i) +
                ".tx\" \"blend.w[" + number(i) + "]\";\n";
     },
     "aliasAttr -q blend; listAttr -m blend.w"},
    {"name spaces", 1000, "",
     [](unsigned i) { return "createNode transform -n \"s" + number(i) + ":n\";\n"; },
     "ls \"*:n\"; ls \"s1*:*\""},
    {"one name below many parents", 1000, "",
     [](unsigned i) {
         return "createNode transform -n \"p" + number(i) +
                "\";\ncreateNode joint -n \"same\" -p \"p" + number(i) +
                "\";\n\tsetAttr \".tx\" 1;\n";
     },
     "ls same; ls -l \"*|same\"; select -r \"p*\"; ls -sl -dag"},
    {"instances", 100,
     "createNode transform -n \"a\";\ncreateNode transform -n \"leaf\" -p \"a\";\n",
     [](unsigned i) {
         return "createNode transform -n \"p" + number(i) +
                "\";\nparent -s -nc -r -add \"|a|leaf\" \"p" + number(i) + "\" ;\n";
     },
     "ls -dag -ap; ls -ap leaf; listRelatives -ap leaf"},
    {"file information", 2000, "",
     [](unsigned i) { return "fileInfo \"key" + number(i) + "\" \"value\";\n"; }, ""},
    {"warnings", 500, "createNode transform -n \"n\";\n",
     [](unsigned i) {
         return "connectAttr \"gone" + number(i) + ".x\" \"n.tx\";\nnoCommand" + number(i) +
                " 1;\n";
     },
     ""},
    {"weights from the last to the first", 2000, "createNode skinCluster -n \"skin\";\n",
     [](unsigned i) { return "\tsetAttr \".wl[0].w[" + number(20000 - i) + "]\" 1;\n"; }, ""},
    {"tweaks from the last to the first", 2000, "createNode mesh -n \"m\";\n",
     [](unsigned i) {
         return "\tsetAttr \".pt[" + number(20000 - i) + "]\" -type \"float3\" 1 2 3;\n";
     },
     ""},
};

class CostOf : public SceneFileTest
{
protected:
    // In seconds of the processor.
    double cost(const Growth &row, unsigned size)
    {
        std::string text = row.before;
        for (unsigned i = 0; i < size; ++i)
            text += row.repeated(i);
        const std::string file = write("growth.ma", text);
        const std::clock_t begin = std::clock();
        EXPECT_TRUE(open(file)) << takeErrors();
        mel(row.commands);
        const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
        takeWarnings();
        return seconds;
    }
};

TEST_F(CostOf, filesAndCommandsGrowsAsTheirInput)
{
    for (const Growth &row : kGrowths) {
        // A disturbance of the machine makes a figure larger, never smaller.
        double least = 1e9;
        for (unsigned i = 0; i < 3 && least > kMostTimes; ++i)
            least = std::min(least, cost(row, row.size * kFactor) / cost(row, row.size));
        EXPECT_LE(least, kMostTimes) << row.name;
    }
}

// The same for what is picked: flattening copies each component once.
TEST_F(CostOf, selectedComponentsGrowsAsTheirNumber)
{
    const auto costOf = [](const std::string &vertices) {
        const std::clock_t begin = std::clock();
        mel("select -r \"" + vertices +
            "\"; ls -sl -fl; filterExpand -sm 31; "
            "skinPercent -q -v skinCluster1 \"" +
            vertices + "\"");
        return double(std::clock() - begin);
    };
    mel("polyPlane -n sheet -sx 159 -sy 99 -ch 0; select -cl; joint -n hip; "
        "skinCluster hip sheet");
    double least = 1e9;
    for (unsigned i = 0; i < 3 && least > kMostTimes; ++i)
        least = std::min(least, costOf("sheet.vtx[0:15999]") / costOf("sheet.vtx[0:1999]"));
    EXPECT_LE(least, kMostTimes);
}

} // namespace
