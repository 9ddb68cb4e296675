// SPDX-License-Identifier: Apache-2.0
//
// Undo takes back every kind of change to the last detail, and redo makes it again.

#include <functional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "scene/sampleScene.h"
#include "scene/sceneChanges.h"
#include "scene/sceneText.h"
#include "scene/undoQueue.h"

using namespace host;

namespace
{

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
    for (const SceneChange &change : sceneChanges()) {
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
        const SceneChange &change = sceneChanges()[random() % sceneChanges().size()];
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
        queue.record({[succeeds] {
                          if (!succeeds)
                              throw std::bad_alloc();
                      },
                      [] {}});
        queue.closeChunk();
    }
    EXPECT_FALSE(session.undoOnce());
    EXPECT_EQ(queue.undoCount() + queue.redoCount(), 0u);
    EXPECT_FALSE(queue.isUndoing());
    queue.openChunk("next");
    EXPECT_TRUE(queue.isRecording());
    queue.closeChunk();
}

// A command's step stands in front of those of the commands that it ran.
TEST(undoQueue, undoesACommandAfterWhatItRanAndRedoesItBefore)
{
    UndoQueue queue;
    std::string order;
    const auto step = [&order](const char *name) {
        return Change{[&order, name] { order += std::string("-") + name; },
                      [&order, name] { order += std::string("+") + name; }};
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
