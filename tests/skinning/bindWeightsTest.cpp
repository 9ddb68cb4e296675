// SPDX-License-Identifier: Apache-2.0
#include <cstdlib>

#include "support/mayaSession.h"

using bindWeights = MayaSession;

// Numbers of a scene that Maya bound and saved: five joints in a chain, closest distance.
TEST_F(bindWeights, reproduceWhatMayaSaved)
{
    mel("polyCube -w 5 -sx 5 -n body; select -cl;"
        "joint -p -2 0 0; joint -p -1 0 0; joint -p 0 0 0; joint -p 1 0 0; joint -p 2 0 0");
    EXPECT_EQ(melStrings("skinCluster -mi 4 -dr 4 joint3 body"), "skinCluster1");
    EXPECT_EQ(melStrings("skinCluster -q -inf body"), "joint1 joint2 joint3 joint4 joint5")
        << "without -toSelectedBones a joint stands for its skeleton";
    const std::vector<double> expected = {.91727462321159092, .068227038090118319,
                                          .011324378064340626, .0031739606339501398, 0};
    const std::vector<double> row = melNumbers("skinPercent -q -v skinCluster1 body.vtx[0]");
    ASSERT_EQ(row.size(), expected.size());
    for (std::size_t i = 0; i < row.size(); ++i)
        EXPECT_NEAR(row[i], expected[i], 1e-15) << i;
    EXPECT_EQ(melWeights("body.vtx[5]"), "0 0.00591629 0.0356444 0.47922 0.47922");
    EXPECT_EQ(melNumbers("skinPercent -ib 0.01 -q -v skinCluster1 body.vtx[0]").size(), 3u);
}

TEST_F(bindWeights, dependOnDropoffPoseAndLimit)
{
    mel("polyCube -h 2 -sy 2 -n body; setAttr body.ty 1");
    for (const char *height : {"0", "1", "2"})
        mel(std::string("select -cl; joint -p 0 ") + height + " 0");
    mel("skinCluster -tsb -mi 3 -dr 10 joint1 joint2 joint3 body");
    EXPECT_EQ(melWeights("body.vtx[2]"), "0.00408163 0.991837 0.00408163");
    EXPECT_EQ(melWeights("body.vtx[0]"), "0.995885 0.00409829 1.68654e-05")
        << "the geometry's own transform counts";

    mel("setAttr joint1.ty 50; skinPercent -tv joint3 1 skinCluster1 body.vtx[0:3]");
    mel("skinCluster -e -mi 2 skinCluster1");
    EXPECT_EQ(melWeights("body.vtx[2]"), "0.00409836 0.995902 0") << "rebound, in the bind pose";
    mel("undo");
    EXPECT_EQ(melWeights("body.vtx[2]"), "0 0 1");
    mel("skinPercent -rtd skinCluster1 body.vtx[2]");
    EXPECT_EQ(melWeights("body.vtx[2]"), "0.00408163 0.991837 0.00408163");
    EXPECT_EQ(melWeights("body.vtx[3]"), "0 0 1");
}

// Meshes made of cylinders, cubes and spheres that Maya 2016 bound and whose weights nobody
// touched. Resetting brings them back.
TEST_F(bindWeights, agreeWithARealScene)
{
    const char *scenes = std::getenv("KORVEX_SCENES");
    if (!scenes)
        GTEST_SKIP() << "KORVEX_SCENES does not say where real scenes are";
    mel(std::string("file -f -o \"") + scenes + "/mesh_test_2016.ma\"");
    const struct {
        const char *cluster, *shape;
    } cases[] = {{"skinCluster1", "meshShape"},
                 {"skinCluster2", "animatedCubeShape"},
                 {"skinCluster3", "meshAShape"},
                 {"skinCluster5", "meshCShape"},
                 {"skinCluster6", "meshDShape"}};
    for (const auto &c : cases) {
        const std::string cluster = c.cluster;
        const std::string vertices = cluster + " " + c.shape + ".vtx[0:11]";
        const std::string query = "getAttr " + cluster + ".weightList[0:11].weights[";
        std::vector<std::vector<double>> saved;
        for (int i = 0; i < 2; ++i)
            saved.push_back(melNumbers(query + std::to_string(i) + "]"));
        const std::string influences = melStrings("skinCluster -q -inf " + cluster);
        const std::string first = influences.substr(0, influences.find(' '));
        mel("skinPercent -tv " + first + " 1 " + vertices);
        EXPECT_EQ(melNumbers(query + "0]")[11], 1.0);
        mel("skinPercent -rtd " + vertices);
        for (int i = 0; i < 2; ++i) {
            const std::vector<double> bound = melNumbers(query + std::to_string(i) + "]");
            ASSERT_EQ(bound.size(), 12u);
            for (std::size_t v = 0; v < bound.size(); ++v) // points are single precision
                EXPECT_NEAR(bound[v], saved[std::size_t(i)][v], 1e-6) << cluster << " " << v;
        }
    }
}
