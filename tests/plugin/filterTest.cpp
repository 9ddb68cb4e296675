// SPDX-License-Identifier: Apache-2.0
#include <QHeaderView>

#include "model/messages.h"
#include "support/editorScene.h"

class filter : public EditorScene
{
protected:
    filter()
    {
        makeSkin("body", {"a", "b", "c"}, {{1, 0, 0}, {0.5, 0, 0.5}, {0, 0, 1}, {1, 0, 0}});
        makeSkin("hat", {"b", "d"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    }
};

TEST_F(filter, hidesTheColumnsWithoutWeightAndShowsThemAgain)
{
    load("body hat");
    call("toggleFilter", true);
    EXPECT_EQ(hiddenColumns(), "d");
    view_->setColumnWidth(0, 99);
    call("toggleFilter", false);
    EXPECT_EQ(hiddenColumns(), "");
    EXPECT_EQ(view_->columnWidth(0), view_->horizontalHeader()->defaultSectionSize());
    EXPECT_EQ(view_->columnWidth(3), view_->horizontalHeader()->defaultSectionSize());
}

TEST_F(filter, followsWhatIsLoaded)
{
    load("body");
    call("toggleFilter", true);
    EXPECT_EQ(hiddenColumns(), "b");
    load("body.vtx[0]");
    EXPECT_EQ(hiddenColumns(), "b c");
    load("hat");
    EXPECT_EQ(hiddenColumns(), "d");
    load("body hat.vtx[0]");
    EXPECT_EQ(hiddenColumns(), "d");
}

TEST_F(filter, needsATableAndRemembersToHide)
{
    call("toggleFilter", true);
    EXPECT_EQ(takeErrors(), kNothingLoaded);
    load("body");
    EXPECT_EQ(hiddenColumns(), "b");
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(filter, isAButtonOfTheWindow)
{
    load("body");
    QWidget *button = window_->findChild<QWidget *>("Filter");
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(QMetaObject::invokeMethod(button, "setChecked", Q_ARG(bool, true)));
    EXPECT_EQ(hiddenColumns(), "b");
}
