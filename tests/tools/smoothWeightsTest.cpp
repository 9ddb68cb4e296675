// SPDX-License-Identifier: Apache-2.0
#include "tools/clothScene.h"

#include <cmath>

namespace
{

class smoothWeights : public clothScene
{
};

} // namespace

TEST_F(smoothWeights, levelsAPeakAndComesBackInOneStep)
{
    set("12", "0 1 0");
    set("3", "0.6 0.4 0");
    mel("skinCluster -e -sw 0.5 -swi 1 skin;");
    EXPECT_EQ(weights(12), "1 0 0");
    EXPECT_EQ(weights(3), "0.6 0.4 0"); // within the tolerance
    EXPECT_EQ(weights(7), "1 0 0");
    mel("undo;");
    EXPECT_EQ(weights(12), "0 1 0");
    mel("redo;");
    EXPECT_EQ(weights(12), "1 0 0");
}

TEST_F(smoothWeights, withoutToleranceGivesEachVertexTheMeanOfItsNeighbours)
{
    double before[25];
    for (int vertex = 0; vertex < 25; ++vertex) {
        before[vertex] = vertex * vertex % 31 / 32.0;
        set(std::to_string(vertex),
            std::to_string(1 - before[vertex]) + " " + std::to_string(before[vertex]) + " 0");
    }
    mel("skinCluster -e -sw 0 -swi 1 skin");
    for (int vertex = 0; vertex < 25; ++vertex) {
        double sum = 0;
        int count = 0;
        for (int other = 0; other < 25; ++other) {
            if (std::abs(vertex / 5 - other / 5) + std::abs(vertex % 5 - other % 5) == 1) {
                sum += before[other];
                ++count;
            }
        }
        const std::string name = "cloth.vtx[" + std::to_string(vertex) + "]";
        EXPECT_NEAR(melNumbers("skinPercent -q -v skin " + name)[1], sum / count, 1e-12) << name;
    }
}

TEST_F(smoothWeights, smoothsTheSelectedVerticesOrAll)
{
    const struct {
        const char *selection, *at6, *at18;
    } cases[] = {{"select -cl", "1 0 0", "1 0 0"},
                 {"select cloth.vtx[18] cloth.vtx[0]", "0 1 0", "1 0 0"},
                 {"select cloth; select -add cloth.vtx[6]", "1 0 0", "0 1 0"},
                 {"select cloth.f[0]", "1 0 0", "1 0 0"}};
    for (const auto &c : cases) {
        set("6", "0 1 0");
        set("18", "0 1 0");
        mel(c.selection);
        mel("skinCluster -e -sw 0.5 skin");
        EXPECT_EQ(weights(6), c.at6) << c.selection;
        EXPECT_EQ(weights(18), c.at18) << c.selection;
    }
}

TEST_F(smoothWeights, holdsLockedInfluences)
{
    set("12", "0 0.7 0.3");
    mel("skinCluster -e -inf joint3 -lw 1 skin; skinCluster -e -sw 0.5 skin");
    EXPECT_EQ(weights(12), "0.7 0 0.3");
}

TEST_F(smoothWeights, obeysTheLimitAndLeavesItOn)
{
    set("7", "0.6 0.4 0");
    set("17", "0.6 0.4 0");
    set("11", "0.6 0 0.4");
    set("13", "0.6 0 0.4");
    set("12", "0 0 1");
    mel("skinCluster -e -sw 0.5 -swi 1 skin");
    EXPECT_EQ(weights(12), "0.6 0.2 0.2");
    mel("undo");
    mel("skinCluster -e -sw 0.5 -swi 1 -omi 1 skin");
    EXPECT_EQ(weights(12), "0.75 0.25 0");
    EXPECT_EQ(melString("skinCluster -q -omi skin"), "1");
    mel("undo");
    EXPECT_EQ(weights(12), "0 0 1");
    EXPECT_EQ(melString("skinCluster -q -omi skin"), "0");
}

TEST_F(smoothWeights, saysOnceWhenLocksKeepVerticesAboveTheLimit)
{
    set("0", "0.4 0.3 0.3");
    set("12", "0.4 0.3 0.3");
    mel("skinCluster -e -inf joint2 -lw 1 skin; skinCluster -e -inf joint3 -lw 1 skin");
    takeWarnings();
    mel("skinCluster -e -sw 0.5 -swi 1 -omi 1 skin");
    EXPECT_EQ(takeWarnings(), "Locked influences prevented enforcement of the max influences on "
                              "some points.");
    EXPECT_EQ(weights(12), "0.4 0.3 0.3");
}

TEST_F(smoothWeights, refusesWhatItCanNotDo)
{
    set("12", "0 1 0");
    const struct {
        const char *command, *error;
    } cases[] = {
        {"skinCluster -e -sw 1.5 skin",
         "The value 1.5 of flag 'sw' is out of range or not supported."},
        {"skinCluster -e -sw 0.5", "No skinCluster was given, and none belongs to what is "
                                   "selected."},
        {"skinCluster -e -sw 0.5 nobody", "No object matches name: nobody"},
    };
    for (const auto &c : cases)
        EXPECT_NE(melError(c.command).find(c.error), std::string::npos) << c.command;
    EXPECT_EQ(weights(12), "0 1 0");
}

// The neighbours are worked out once; another edge between the vertices must be noticed, and its
// undo as well.
TEST_F(smoothWeights, followsTheFacesOfTheMesh)
{
    mel("select cloth.vtx[24]; ArtPaintSkinWeightsTool; artAttrPaintOperation "
        "artAttrSkinPaintCtx Smooth; artSkinSelectInfluence artAttrSkinPaintCtx joint1;");
    const auto flooded = [&] {
        set("24", "0 0 1");
        mel("artAttrSkinPaintCtx -e -clear artAttrSkinContext");
        const std::string result = weights(24);
        mel("undo; undo");
        return result;
    };
    set("1", "0 1 0");
    set("5", "0 1 0");
    EXPECT_EQ(flooded(), "1 0 0");
    mel("setAttr clothShapeOrig.edge[0].edg1 24"); // from vertex 24 instead of 0
    EXPECT_EQ(flooded(), "0.5 0 0.5");
    mel("undo");
    EXPECT_EQ(flooded(), "1 0 0");
}
