// SPDX-License-Identifier: Apache-2.0
//
// Memory runs out anywhere in a change: the scene is as it was, and so is the undo queue.

#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

#include "scene/sampleScene.h"
#include "scene/sceneChanges.h"
#include "scene/sceneText.h"

namespace
{

// The request after that many is refused, as one for a large block is; -1: none.
long requestsLeft = -1;

} // namespace

[[gnu::noinline]] void *operator new(std::size_t size)
{
    if (requestsLeft >= 0 && requestsLeft-- == 0)
        throw std::bad_alloc();
    if (void *memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

// Out of line: where only one of the two is inlined, the compiler takes them for a mismatch.
[[gnu::noinline]] void operator delete(void *memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

using namespace host;

namespace
{

// As a command runs it: false if memory ran out, and all is taken back.
bool makeWithin(Session &session, const SceneChange &change, long requests)
{
    UndoQueue &queue = session.undo();
    queue.openChunk(change.what);
    bool isDone = true;
    try {
        requestsLeft = requests;
        change.make(session.scene());
        requestsLeft = -1;
    } catch (const std::bad_alloc &) {
        requestsLeft = -1;
        queue.rollback(0);
        isDone = false;
    }
    queue.closeChunk();
    return isDone;
}

} // namespace

TEST(outOfMemory, leavesTheSceneAsItWas)
{
    for (const SceneChange &change : sceneChanges()) {
        Session session;
        buildSampleScene(session);
        session.undo().flush();
        const std::string before = sessionText(session);
        long requests = 0;
        while (!makeWithin(session, change, requests)) {
            ASSERT_EQ(sessionText(session), before) << change.what << " with " << requests;
            ASSERT_EQ(session.undo().undoCount(), 0u) << change.what;
            requests += 1 + requests / 16;
        }
        EXPECT_TRUE(session.undoOnce());
        EXPECT_EQ(sessionText(session), before) << change.what;
    }
}
