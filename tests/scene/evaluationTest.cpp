// SPDX-License-Identifier: Apache-2.0
//
// Values that arrive through connections, and matrices against numbers worked out by hand.

#include <gtest/gtest.h>

#include "scene/sampleScene.h"
#include "scene/transform.h"

using namespace host;

namespace
{

struct Setting {
    const char *plug;
    double value;
};

void set(Scene &scene, const std::vector<Setting> &settings)
{
    for (const Setting &setting : settings)
        scene.setValue(plugNamed(scene, setting.plug), setting.value);
}

// Where a point of the node's own space lies in the world.
void expectPoint(Scene &scene, const char *node, const skin::Vec3 &own, const skin::Vec3 &expected,
                 const char *what)
{
    const Value value = evaluate(plugNamed(scene, std::string(node) + ".worldMatrix[0]"));
    ASSERT_TRUE(std::holds_alternative<Matrix>(value));
    const skin::Vec3 point = transformPoint(own, std::get<Matrix>(value));
    EXPECT_NEAR(point.x, expected.x, 1e-12) << what;
    EXPECT_NEAR(point.y, expected.y, 1e-12) << what;
    EXPECT_NEAR(point.z, expected.z, 1e-12) << what;
}

} // namespace

TEST(worldMatrix, composesATransformInMayasOrder)
{
    const struct {
        const char *what;
        std::vector<Setting> settings;
        skin::Vec3 own, world;
    } cases[] = {
        {"scale, then rotate, then translate",
         {{"a.sx", 2}, {"a.rz", 90}, {"a.tx", 1}, {"a.ty", 2}, {"a.tz", 3}},
         {1, 0, 0},
         {1, 4, 3}},
        {"x turns first", {{"a.rx", 90}, {"a.ry", 90}}, {0, 0, 1}, {0, -1, 0}},
        {"z turns first", {{"a.rx", 90}, {"a.ry", 90}, {"a.ro", 5}}, {0, 0, 1}, {1, 0, 0}},
        {"around a pivot", {{"a.rz", 90}, {"a.rpx", 1}}, {2, 0, 0}, {1, 1, 0}},
        {"from a scale pivot", {{"a.sx", 3}, {"a.spx", 1}}, {2, 0, 0}, {4, 0, 0}},
        {"sheared", {{"a.shxy", 1}}, {0, 1, 0}, {1, 1, 0}},
        {"below a parent", {{"p.ry", 90}, {"p.tx", 10}, {"a.tx", 1}}, {0, 0, 0}, {10, 0, -1}},
        {"without its parent",
         {{"p.ry", 90}, {"p.tx", 10}, {"a.tx", 1}, {"a.it", 0}},
         {0, 0, 0},
         {1, 0, 0}},
    };
    for (const auto &c : cases) {
        Scene scene;
        scene.createNode("transform", "a", scene.createNode("transform", "p"));
        set(scene, c.settings);
        expectPoint(scene, "a", c.own, c.world, c.what);
    }
}

TEST(worldMatrix, leavesTheParentsScaleOutOfAJointThatCompensates)
{
    Session session;
    buildSampleScene(session);
    Scene &scene = session.scene();
    set(scene, {{"hip.sx", 2}, {"hip.joz", 90}, {"knee.tx", 1}, {"knee.rx", 90}});
    expectPoint(scene, "knee", {0, 0, 0}, {0, 2, 0}, "its place is scaled");
    expectPoint(scene, "knee", {1, 0, 0}, {0, 3, 0}, "its size is not");
    set(scene, {{"knee.ssc", 0}});
    expectPoint(scene, "knee", {1, 0, 0}, {0, 4, 0}, "unless it does not compensate");
}

TEST(worldMatrix, hasTheOffsetBetweenNodeAndParent)
{
    Scene scene;
    const NodePtr up = scene.createNode("transform", "up");
    const NodePtr low = scene.createNode("joint", "low", up);
    scene.createNode("transform", "driver");
    set(scene, {{"up.tx", 10}, {"up.rz", 90}, {"low.ty", 1}, {"driver.sx", 2}, {"driver.tx", 3}});
    Matrix offset = kIdentityMatrix;
    offset[13] = 5;
    scene.setValue(plugNamed(scene, "low.opm"), offset);
    expectPoint(scene, "low", {1, 0, 0}, {4, 1, 0}, "stored");
    const Value above = evaluate(plugNamed(scene, "low.parentMatrix[0]"));
    EXPECT_EQ(translationOf(std::get<Matrix>(above)).x, 5) << "local * parentMatrix = world";
    scene.connect(plugNamed(scene, "driver.wm[0]"), plugNamed(scene, "low.opm"));
    expectPoint(scene, "low", {1, 0, 0}, {9, 5, 0}, "connected");
    setWorldTranslation(scene, DagPath::first(low), {0, 0, 0});
    expectPoint(scene, "low", {0, 0, 0}, {0, 0, 0}, "placed");
}

// Each of a chain of joints hangs on the one before twice: as child and by its offset.
TEST(worldMatrix, ofOffsetsThatFeedEachOtherEndsSoon)
{
    Scene scene;
    NodePtr above;
    for (int i = 0; i < 60; ++i) {
        const NodePtr joint = scene.createNode("joint", "j" + std::to_string(i), above);
        scene.setValue(joint->plug("translateX"), 1.0);
        if (above)
            scene.connect(above->plug("worldMatrix").element(0), joint->plug("opm"));
        above = joint;
        if (i == 2)
            expectPoint(scene, "j2", {0, 0, 0}, {7, 0, 0}, "1, 1 + 1 + 1, 1 + 3 + 3");
    }
    EXPECT_GT(translationOf(worldMatrix(DagPath::first(above))).x, 1e17);
    scene.connect(above->plug("worldMatrix").element(0), plugNamed(scene, "j0.opm"));
    worldMatrix(DagPath::first(above)); // a circle ends
}

TEST(worldMatrix, isOfTheInstanceAskedFor)
{
    Session session;
    buildSampleScene(session);
    Scene &scene = session.scene();
    set(scene, {{"left.tx", 5}, {"right.tx", -5}, {"hand.ty", 1}});
    const Value right = evaluate(plugNamed(scene, "handShape.worldMatrix[1]"));
    EXPECT_EQ(std::get<Matrix>(right)[12], -5);
    const Value parent = evaluate(plugNamed(scene, "hand.parentMatrix[0]"));
    EXPECT_EQ(std::get<Matrix>(parent)[12], 5);
    const Value inverse = evaluate(plugNamed(scene, "hand.worldInverseMatrix[0]"));
    EXPECT_EQ(std::get<Matrix>(inverse)[13], -1);
}

TEST(connections, passValuesThroughCompoundsAndTheirChildren)
{
    Session session;
    buildSampleScene(session);
    Scene &scene = session.scene();
    set(scene, {{"hip.obcg", 0.5}, {"hip.ty", 7}, {"body.tx", 1}});
    scene.connect(plugNamed(scene, "hip.objectColorRGB"), plugNamed(scene, "skin.ifcl[3]"));
    scene.connect(plugNamed(scene, "hip.translate"), plugNamed(scene, "body.rotatePivot"));
    scene.connect(plugNamed(scene, "body.rotatePivot"), plugNamed(scene, "left.translate"));
    EXPECT_EQ(evaluateNumber(plugNamed(scene, "skin.ifcl[3].ifcg")), 0.5);
    EXPECT_EQ(evaluateNumber(plugNamed(scene, "left.ty")), 7) << "through two compounds";
    EXPECT_EQ(evaluateNumber(plugNamed(scene, "body.tx")), 1) << "beside a connection";
    EXPECT_FALSE(isSettable(plugNamed(scene, "left.ty"))) << "its compound is connected";
    EXPECT_TRUE(isSettable(plugNamed(scene, "left.ry")));
    EXPECT_FALSE(isSettable(plugNamed(scene, "rig:control.t"))) << "a child is locked";
    scene.disconnect(plugNamed(scene, "hip.translate"), plugNamed(scene, "body.rotatePivot"));
    EXPECT_EQ(evaluateNumber(plugNamed(scene, "left.ty")), 0);
}

TEST(evaluation, comesAlongAsManyConnectionsAsThereAre)
{
    Scene scene;
    const unsigned length = 3000;
    NodePtr last = scene.createNode("transform", "first");
    scene.setValue(last->plug("tx"), 5.0);
    for (unsigned i = 0; i < length; ++i) {
        const NodePtr next = scene.createNode("transform", "");
        scene.connect(last->plug("tx"), next->plug("tx"));
        last = next;
    }
    EXPECT_EQ(evaluateNumber(last->plug("tx")), 5.0);
}

// A file may hold circles: of values, and of a matrix that depends on what it feeds.
TEST(connections, endCirclesWithAValue)
{
    Session session;
    buildSampleScene(session);
    Scene &scene = session.scene();
    set(scene, {{"hip.tx", 3}});
    scene.connect(plugNamed(scene, "hip.tx"), plugNamed(scene, "body.tx"));
    scene.connect(plugNamed(scene, "body.tx"), plugNamed(scene, "hip.tx"));
    EXPECT_EQ(evaluateNumber(plugNamed(scene, "hip.tx")), 3);
    scene.connect(plugNamed(scene, "left.worldMatrix[0]"), plugNamed(scene, "left.tx"));
    expectPoint(scene, "left", {0, 0, 0}, {0, 0, 0}, "a matrix is no number");
}
