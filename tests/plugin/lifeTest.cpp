// SPDX-License-Identifier: Apache-2.0
//
// The plug-in's coming and going.

#include <QPushButton>

#include "model/messages.h"
#include "support/editorScene.h"

class life : public EditorScene
{
};

TEST_F(life, hasOneWindowHoweverOftenItIsAskedFor)
{
    window_->hide();
    mel("korvexCmd; korvexCmd");
    EXPECT_EQ(windows(), std::vector<QWidget *>{window_});
    EXPECT_TRUE(window_->isVisible());
    window_->showMinimized();
    mel("korvexCmd");
    EXPECT_FALSE(window_->isMinimized());
    EXPECT_EQ(window_->windowTitle(), "Korvex");
}

TEST_F(life, putsNothingButItsCommandOnTheUndoQueue)
{
    delete window_;
    mel("flushUndo");
    mel("korvexCmd");
    EXPECT_EQ(melString("undoInfo -q") + melString("undoInfo -q -undoName"), "1korvexCmd");
    delete windows().front();
    EXPECT_EQ(melString("undoInfo -q"), "1");
}

TEST_F(life, survivesBeingLoadedTwice)
{
    makeSkin("body", {"hip"}, {{1}, {1}, {1}, {1}});
    load("body");
    mel("loadPlugin \"" KORVEX_PLUGIN_DIR "/korvex.so\"");
    EXPECT_EQ(windows(), std::vector<QWidget *>{window_});
    EXPECT_EQ(model_->rowCount(), 5);
}

TEST_F(life, endsWithItsWindowAndItsCallbacks)
{
    makeSkin("body", {"hip"}, {{1}, {1}, {1}, {1}});
    load("body");
    EXPECT_NE(melError("unloadPlugin korvex"), "") << "its command is on the undo queue";
    mel("flushUndo; unloadPlugin korvex");
    EXPECT_EQ(windows(), std::vector<QWidget *>{});
    mel("select body.vtx[0]; select -cl"); // a callback left would run code that is gone
    EXPECT_NE(melError("korvexCmd"), "");
    mel("loadPlugin \"" KORVEX_PLUGIN_DIR "/korvex.so\"");
}

TEST_F(life, carriesNoEditBeforeTheWindowWasOpened)
{
    mel("flushUndo; unloadPlugin korvex; loadPlugin \"" KORVEX_PLUGIN_DIR "/korvex.so\"");
    EXPECT_EQ(windows(), std::vector<QWidget *>{});
    for (const char *flag : {"-setData", "-sd", "-numMax", "-round", "-replace", "-dragSlider",
                             "-dragSliderColumn", "-skinPaintSmooth", "-smoothSkinWeights"})
        EXPECT_EQ(melError(std::string("korvexCmd ") + flag), kWindowNeverOpened) << flag;
    EXPECT_NE(melError("korvexCmd -potato"), "");
    EXPECT_NE(melError("korvexCmd -setData 3"), "");
    EXPECT_NE(melError("korvexCmd -q -setData"), "");
    EXPECT_NE(melError("korvexCmd -e -setData"), "");
}

TEST_F(life, endsWithAWindowThatSomebodyElseDeletes)
{
    makeSkin("body", {"hip"}, {{1}, {1}, {1}, {1}});
    delete window_;
    mel("select body; korvexCmd");
    ASSERT_EQ(windows().size(), 1u);
    EXPECT_NE(windows().front()->findChild<QTableView *>(), nullptr);
}

// What is left behind, the sanitizers see.
TEST_F(life, comesAndGoesAHundredTimes)
{
    makeSkin("body", {"hip", "knee"}, {{0.5, 0.5}, {1, 0}, {0, 1}, {1, 0}});
    for (int i = 0; i < 100; ++i) {
        if (i % 3 == 0)
            delete windows().front();
        else if (i % 3 == 1)
            windows().front()->close();
        mel("korvexCmd; select body");
        ASSERT_EQ(windows().size(), 1u) << i;
        window_ = windows().front();
        QPushButton *load = window_->findChild<QPushButton *>("LoadComponent");
        ASSERT_NE(load, nullptr);
        load->click();
        view_ = window_->findChild<QTableView *>();
        view_->selectAll();
        EXPECT_TRUE(view_->model()->setData(view_->model()->index(1, 0), "*=0.5"));
        emit view_->customContextMenuRequested(QPoint(5, 5));
        window_->grab();
        mel("flushUndo; unloadPlugin korvex; loadPlugin \"" KORVEX_PLUGIN_DIR
            "/korvex.so\"; korvexCmd");
    }
    mel("flushUndo");
}
