// SPDX-License-Identifier: Apache-2.0
//
// Undo takes back every kind of change to the last detail, and redo makes it again.

#include <functional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "scene/sampleScene.h"
#include "scene/sceneText.h"
#include "scene/undoQueue.h"

using namespace host;

namespace
{

struct SceneChange {
    const char *what;
    std::function<void(Scene &)> make;
};

const SceneChange kChanges[] = {
    {"create a transform", [](Scene &s) { s.createNode("transform", "", s.node("left")); }},
    {"create a shape without parent", [](Scene &s) { s.createNode("mesh", "loose"); }},
    {"create a node of a type learned",
     [](Scene &s) { s.createNode("furBall", "f", {}, Scene::UnknownType::learn); }},
    {"create a shared node", [](Scene &s) { s.createSharedNode("objectSet", "sharedSet", {}); }},
    {"meet a default node", [](Scene &s) { s.defaultNode(":defaultArnoldFilter"); }},
    {"delete a node with connections", [](Scene &s) { s.deleteNode(s.node("skin")); }},
    {"delete a parent of an instance", [](Scene &s) { s.deleteNode(s.node("left")); }},
    {"delete an instanced node", [](Scene &s) { s.deleteNode(s.node("hand")); }},
    {"delete the source of a mesh", [](Scene &s) { s.deleteNode(s.node("bodyCube")); }},
    {"rename with its shape", [](Scene &s) { s.rename(s.node("body"), "torso"); }},
    {"rename to a name that is taken", [](Scene &s) { s.rename(s.node("body"), "hip"); }},
    {"set an identifier", [](Scene &s) { s.setUuid(s.node("hip"), "4A1C"); }},
    {"lock a node", [](Scene &s) { s.setNodeLock(s.node("hip"), true, true); }},
    {"keep a statement", [](Scene &s) { s.keepStatement(s.node("hip"), "instanceable -a 0;"); }},
    {"reparent", [](Scene &s) { s.reparent(s.node("knee"), s.node("hip"), s.node("left")); }},
    {"reparent to the world", [](Scene &s) { s.reparent(s.node("knee"), s.node("hip"), {}); }},
    {"reparent the first instance",
     [](Scene &s) { s.reparent(s.node("hand"), s.node("left"), s.node("body")); }},
    {"add an instance", [](Scene &s) { s.addInstance(s.node("hand"), s.node("hip")); }},
    {"remove the first instance",
     [](Scene &s) { s.removeInstance(s.node("hand"), s.node("left")); }},
    {"add an attribute",
     [](Scene &s) { s.addAttribute(s.node("skin"), makeAttribute("offset", "of", "double3")); }},
    {"remove an attribute with its values",
     [](Scene &s) { s.removeAttribute(s.node("hip"), plugNamed(s, "hip.colour").attribute); }},
    {"remove an attribute that is connected",
     [](Scene &s) { s.removeAttribute(s.node("hip"), plugNamed(s, "hip.gain").attribute); }},
    {"set a number", [](Scene &s) { s.setValue(plugNamed(s, "hip.translateX"), 1.5); }},
    {"set a text", [](Scene &s) { s.setValue(plugNamed(s, "hip.note"), std::string("right")); }},
    {"set an element that is new",
     [](Scene &s) { s.setValue(plugNamed(s, "skin.bindPreMatrix[7]"), kIdentityMatrix); }},
    {"set one packed number",
     [](Scene &s) { s.setValue(plugNamed(s, "handShape.vt[1].vx"), 9.0); }},
    {"set a weight", [](Scene &s) { s.setValue(plugNamed(s, "skin.wl[3].w[0]"), 0.5); }},
    {"set a weight to zero", [](Scene &s) { s.setValue(plugNamed(s, "skin.wl[3].w[2]"), 0.0); }},
    {"set a weight far away", [](Scene &s) { s.setValue(plugNamed(s, "skin.wl[900].w[5]"), 1.0); }},
    {"set a run of numbers",
     [](Scene &s) {
         s.setNumbers(plugNamed(s, "handShape.vt"), 2, {1, 2, 3, 4, 5, 6});
     }},
    {"keep an opaque range",
     [](Scene &s) {
         s.setOpaqueRange(plugNamed(s, "handShape.fc"), 0, 4, {"polyFaces", "f 3"});
     }},
    {"move data", [](Scene &s) { s.moveData(s.node("handShape"), s.node("bodyShape"), "vrts"); }},
    {"add a row of weights", [](Scene &s) { s.addElement(plugNamed(s, "skin.wl[8]")); }},
    {"add a packed element", [](Scene &s) { s.addElement(plugNamed(s, "handShape.vt[9]")); }},
    {"remove a row of weights", [](Scene &s) { s.removeElement(plugNamed(s, "skin.wl[3]")); }},
    {"remove a packed element", [](Scene &s) { s.removeElement(plugNamed(s, "hip.colour[4]")); }},
    {"unlock a plug", [](Scene &s) { s.setState(plugNamed(s, "rig:control.tx"), PlugState()); }},
    {"replace rows of weights",
     [](Scene &s) {
         s.setWeightRows(s.node("skin"), {4, 5}, {{{2, 1.0}}, {{0, 1.0}}});
     }},
    {"connect into a new element",
     [](Scene &s) { s.connect(plugNamed(s, "foot.wm[0]"), plugNamed(s, "skin.matrix[5]")); }},
    {"connect in place of another, locked",
     [](Scene &s) {
         s.connect(plugNamed(s, "foot.scale"), plugNamed(s, "knee.inverseScale"), true, true);
     }},
    {"disconnect the first of two",
     [](Scene &s) { s.disconnect(plugNamed(s, "hip.msg"), plugNamed(s, "skin.paintTrans")); }},
    {"disconnect",
     [](Scene &s) { s.disconnect(plugNamed(s, "knee.wm[0]"), plugNamed(s, "skin.matrix[2]")); }},
};

// One item of the undo queue. What a refused change has done already stays in it.
void makeAsOneItem(Session &session, const SceneChange &change)
{
    session.undo().openChunk(change.what);
    try {
        change.make(session.scene());
    } catch (const Error &) {
    }
    session.undo().closeChunk();
}

} // namespace

TEST(sceneUndo, takesBackEveryKindOfChange)
{
    for (const SceneChange &change : kChanges) {
        Session session;
        buildSampleScene(session);
        const std::string before = sessionText(session);
        session.undo().openChunk(change.what);
        ASSERT_NO_THROW(change.make(session.scene())) << change.what;
        session.undo().closeChunk();
        const std::string after = sessionText(session);
        EXPECT_NE(before, after) << change.what;
        for (int round = 0; round < 2; ++round) {
            EXPECT_TRUE(session.undoOnce());
            EXPECT_EQ(sessionText(session), before) << "undo: " << change.what;
            EXPECT_TRUE(session.redoOnce());
            EXPECT_EQ(sessionText(session), after) << "redo: " << change.what;
        }
    }
}

TEST(sceneUndo, walksBackThroughManyChangesAndForthAgain)
{
    const unsigned seed = 4711;
    std::mt19937 random(seed);
    Session session;
    buildSampleScene(session);
    std::vector<std::string> texts = {sessionText(session)};
    std::vector<const char *> made;
    for (int step = 0; step < 150; ++step) {
        const SceneChange &change = kChanges[random() % std::size(kChanges)];
        makeAsOneItem(session, change);
        if (session.undo().undoCount() == made.size())
            continue;
        made.push_back(change.what);
        texts.push_back(sessionText(session));
    }
    ASSERT_GT(made.size(), 30u);
    for (std::size_t i = made.size(); i-- > 0;) {
        session.undoOnce();
        ASSERT_EQ(sessionText(session), texts[i]) << made[i] << ", " << i << ", seed " << seed;
    }
    for (std::size_t i = 0; i < made.size(); ++i) {
        session.redoOnce();
        ASSERT_EQ(sessionText(session), texts[i + 1]) << made[i] << ", " << i << ", seed " << seed;
    }
}

TEST(undoQueue, keepsNestedChunksAsOneItemAndForgetsTheOldest)
{
    Session session;
    UndoQueue &queue = session.undo();
    queue.setLength(2);
    for (const char *name : {"first", "second", "third"}) {
        queue.openChunk(name);
        session.scene().createNode("transform", name);
        queue.openChunk("inner");
        session.scene().createNode("transform", name);
        queue.closeChunk();
        queue.closeChunk();
    }
    EXPECT_EQ(queue.undoName(), "third");
    session.undoOnce();
    session.undoOnce();
    EXPECT_TRUE(session.scene().findNode("first"));
    EXPECT_FALSE(session.scene().findNode("second"));
    EXPECT_EQ(queue.undo(), UndoQueue::Outcome::nothingLeft);
    session.undo().openChunk("new way");
    session.scene().createNode("transform", "fork");
    session.undo().closeChunk();
    EXPECT_EQ(queue.redoCount(), 0u);
}

TEST(undoQueue, isEmptiedByAStepThatFails)
{
    Session session;
    UndoQueue &queue = session.undo();
    for (const bool succeeds : {true, false}) {
        queue.openChunk("step");
        queue.record({[succeeds] { return succeeds; }, [] { return true; }});
        queue.closeChunk();
    }
    EXPECT_FALSE(session.undoOnce());
    EXPECT_EQ(queue.undoCount() + queue.redoCount(), 0u);
}

// A command's step stands in front of those of the commands that it ran.
TEST(undoQueue, undoesACommandAfterWhatItRanAndRedoesItBefore)
{
    UndoQueue queue;
    std::string order;
    const auto step = [&order](const char *name) {
        return UndoStep{[&order, name] {
                            order += std::string("-") + name;
                            return true;
                        },
                        [&order, name] {
                            order += std::string("+") + name;
                            return true;
                        }};
    };
    queue.openChunk("item");
    queue.record(step("before"));
    const std::size_t place = queue.openSteps();
    queue.record(step("inner1"));
    queue.record(step("inner2"));
    queue.recordAt(place, step("command"));
    queue.closeChunk();
    queue.undo();
    EXPECT_EQ(order, "-inner2-inner1-command-before");
    order.clear();
    queue.redo();
    EXPECT_EQ(order, "+before+command+inner1+inner2");

    queue.openChunk("item");
    queue.record(step("lost"));
    const std::size_t lostPlace = queue.openSteps();
    queue.flush();
    queue.recordAt(lostPlace, step("command"));
    queue.closeChunk();
    order.clear();
    queue.undo();
    EXPECT_EQ(order, "-command");
}
