// SPDX-License-Identifier: Apache-2.0
//
// Taking the table's last edit back through Maya's undo queue, and only that edit.

#include "model/messages.h"
#include "support/editScene.h"

class undoEdits : public EditScene
{
protected:
    undoEdits() { loadBody(); }

    // "0.8 0.12 0.08", if the table shows the same.
    std::string firstVertex() const { return weights(0) + disagreement(); }
};

TEST_F(undoEdits, goesBackAndForthAsFarAsTheTableWasEdited)
{
    mel("createNode transform -n before");
    EXPECT_TRUE(type(1, 0, "0.8"));
    EXPECT_TRUE(type(1, 0, "0.6"));
    call("undoLastAction");
    EXPECT_EQ(firstVertex(), "0.8 0.12 0.08");
    call("undoLastAction");
    EXPECT_EQ(firstVertex(), "0.5 0.3 0.2");
    EXPECT_EQ(takeWarnings(), "");
    call("undoLastAction");
    EXPECT_EQ(takeWarnings(), kNotLastChange);
    EXPECT_EQ(melString("objExists before"), "1") << "not the table's";
    call("redoLastAction");
    call("redoLastAction");
    EXPECT_EQ(firstVertex(), "0.6 0.24 0.16");
    call("redoLastAction");
    EXPECT_EQ(takeWarnings(), kNotNextToRedo);
    call("restorePreviousWeights");
    EXPECT_EQ(shown(1), "0.800 0.120 0.080") << "what the table showed before the last step";
}

TEST_F(undoEdits, refusesWhatIsNotItsOwn)
{
    const struct {
        const char *what, *since;
    } cases[] = {
        {"another command", "createNode transform -n since"},
        {"another command, and the edit redone", "undo; createNode transform -n since"},
        {"the same edit by a script", "korvexCmd -setData"},
        {"the window asked for again", "korvexCmd"},
        {"an edit of nothing", "korvexCmd -numMax"},
        {"undone elsewhere", "undo"},
        {"flushed", "flushUndo"},
        {"undo switched off and on", "undoInfo -state off; undoInfo -state on"},
        {"a script in one item", "undoInfo -openChunk; korvexCmd -setData; undoInfo -closeChunk"},
    };
    for (const auto &c : cases) {
        EXPECT_TRUE(type(1, 0, "0.8"));
        mel(c.since);
        const std::string items = undoItems(), held = firstVertex();
        call("undoLastAction");
        EXPECT_EQ(takeWarnings(), kNotLastChange) << c.what;
        EXPECT_EQ(undoItems(), items) << c.what;
        EXPECT_EQ(firstVertex(), held) << c.what;
        mel("flushUndo");
    }
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(undoEdits, refusesAnEditThatWasNotRecorded)
{
    EXPECT_TRUE(type(1, 0, "0.8"));
    mel("undoInfo -stateWithoutFlush off");
    EXPECT_TRUE(type(1, 1, "1"));
    mel("undoInfo -stateWithoutFlush on");
    call("undoLastAction");
    EXPECT_EQ(takeWarnings(), kNotLastChange) << "the one before it would mix both";
    EXPECT_EQ(firstVertex(), "0 1 0");
}

TEST_F(undoEdits, passesOverWhatMayaRefusedToSmooth)
{
    EXPECT_TRUE(type(1, 0, "0.8"));
    selectCells(1, 0, 1, 0);
    call("applySmoothSkinWeights", 1.5, 1);
    call("applySkinPaintSmooth", 2.0);
    EXPECT_NE(takeErrors().find("out of range"), std::string::npos);
    call("undoLastAction");
    EXPECT_EQ(takeWarnings(), "");
    EXPECT_EQ(firstVertex(), "0.5 0.3 0.2");
}

TEST_F(undoEdits, redoesOnlyWhatMayaWouldRedo)
{
    EXPECT_TRUE(type(1, 0, "0.8"));
    call("undoLastAction");
    mel("createNode transform -n since; undo");
    call("redoLastAction");
    EXPECT_EQ(takeWarnings(), kNotNextToRedo);
    EXPECT_EQ(melString("objExists since"), "0");
    EXPECT_EQ(firstVertex(), "0.5 0.3 0.2");
}

TEST_F(undoEdits, keepsToTheQueuesLength)
{
    mel("flushUndo; undoInfo -infinity off; undoInfo -length 1");
    EXPECT_TRUE(type(1, 0, "0.8"));
    EXPECT_TRUE(type(1, 0, "0.6"));
    call("undoLastAction");
    EXPECT_EQ(firstVertex(), "0.8 0.12 0.08");
    call("undoLastAction");
    EXPECT_EQ(takeWarnings(), kNotLastChange);
    mel("undoInfo -infinity on");
}

TEST_F(undoEdits, forgetsTheSceneBefore)
{
    EXPECT_TRUE(type(1, 0, "0.8"));
    mel("file -f -new");
    call("undoLastAction");
    call("redoLastAction");
    EXPECT_EQ(takeWarnings(), std::string(kNotLastChange) + "\n" + kNotNextToRedo);
    EXPECT_EQ(takeErrors(), "");
}
