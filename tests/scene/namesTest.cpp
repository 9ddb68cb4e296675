// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "scene/sampleScene.h"

using namespace host;
using testing::ElementsAre;

TEST(nodeNames, getTheNextFreeNumberWhereTheyClash)
{
    const struct {
        const char *wanted, *given;
    } cases[] = {
        {"arm", "arm"},         {"arm", "arm1"},
        {"arm", "arm2"},        {"arm#", "arm3"},
        {"leg#", "leg1"},       {"leg", "leg"},
        {"", "transform1"},     {"", "transform2"},
        {"rig:arm", "rig:arm"}, {"rig:arm", "rig:arm1"},
        {"knee1", "knee1"},     {"lambert1", "lambert2"}, // clashes with a node outside the DAG too
        {"j9", "j9"},           {"j9", "j10"},
        {"j9", "j11"},          {"arm09", "arm09"},
        {"arm09", "arm10"},     {"arm099", "arm099"},
        {"arm099", "arm100"},   {"x99999999999999999999", "x99999999999999999999"},
        {"toe2", "toe2"},       {"toe#", "toe1"},
        {"toe#", "toe3"},       {"x99999999999999999999", "x999999999999999999991"},
    };
    Scene scene;
    for (const auto &c : cases) {
        EXPECT_EQ(scene.createNode("transform", c.wanted)->name(), c.given) << c.wanted;
    }
    scene.deleteNode(scene.node("arm1"));
    EXPECT_EQ(scene.createNode("transform", "arm")->name(), "arm1") << "free again";
}

TEST(nodeNames, mayRepeatBelowDifferentParentsAndAreThenPaths)
{
    Scene scene;
    const NodePtr left = scene.createNode("transform", "left");
    const NodePtr right = scene.createNode("transform", "right");
    const NodePtr first = scene.createNode("joint", "hip", left);
    const NodePtr second = scene.createNode("joint", "hip", right);
    EXPECT_EQ(second->name(), "hip");
    EXPECT_EQ(first->uniqueName(), "left|hip");
    EXPECT_EQ(scene.node("right|hip"), second);
    EXPECT_EQ(scene.node("|left|hip"), first);
    EXPECT_EQ(scene.findNode("|hip"), nullptr);
    EXPECT_THROW(scene.node("hip"), Error);
    scene.reparent(second, right, left);
    EXPECT_EQ(second->name(), "hip1");
    EXPECT_EQ(first->uniqueName(), "hip");
}

TEST(nodeNames, leadToEachInstanceOfANode)
{
    Session session;
    buildSampleScene(session);
    Scene &scene = session.scene();
    std::vector<std::string> paths;
    for (const DagPath &path : scene.pathsMatching("hand|handShape"))
        paths.push_back(path.fullName() + " " + std::to_string(path.instanceNumber()));
    EXPECT_THAT(paths, ElementsAre("|left|hand|handShape 0", "|right|hand|handShape 1"));
    EXPECT_EQ(scene.node("handShape"), scene.node("|right|hand|handShape"));
    EXPECT_EQ(scene.pathsMatching("right|hand").front().partialName(), "right|hand");
}

TEST(nodeNames, carryTheirNamespaces)
{
    Session session;
    buildSampleScene(session);
    Scene &scene = session.scene();
    scene.createNode("transform", "rig:left:hand");
    EXPECT_THAT(scene.namespaces(), ElementsAre("rig", "rig:left"));
    EXPECT_EQ(scene.node(":rig:control"), scene.node("rig:control"));
    EXPECT_EQ(scene.findNode("control"), nullptr);
}
