// SPDX-License-Identifier: Apache-2.0
//
// Limiting the influences per vertex.

#include <QSignalSpy>

#include "model/messages.h"
#include "support/editScene.h"

class maxInfluences : public EditScene
{
protected:
    maxInfluences()
    {
        makeSkin(
            "body", {"a", "b", "c", "d"},
            {{0.4, 0.3, 0.2, 0.1}, {0.25, 0.25, 0.25, 0.25}, {1, 0, 0, 0}, {0, 0.5, 0.3, 0.2}});
        load("body");
    }

    void limit(int maximum)
    {
        call("setMaxValue", maximum);
        call("applyMaxInfluence");
    }
    static std::string lines(const char *message, int count)
    {
        std::string text = message;
        for (int i = 1; i < count; ++i)
            text += std::string("\n") + message;
        return text;
    }

    const std::string before_ = "0.4 0.3 0.2 0.1; 0.25 0.25 0.25 0.25; 1 0 0 0; 0 0.5 0.3 0.2";
};

TEST_F(maxInfluences, takesTheSmallestWeightsOfEachVertexInOneStep)
{
    const struct {
        int maximum;
        const char *weights;
    } cases[] = {
        {3, "0.444444 0.333333 0.222222 0; 0 0.333333 0.333333 0.333333; 1 0 0 0; 0 0.5 0.3 0.2"},
        {2, "0.571429 0.428571 0 0; 0 0 0.5 0.5; 1 0 0 0; 0 0.625 0.375 0"},
        {1, "1 0 0 0; 0 0 0 1; 1 0 0 0; 0 1 0 0"},
        {-1, "1 0 0 0; 0 0 0 1; 1 0 0 0; 0 1 0 0"}, // a vertex keeps one
    };
    for (const auto &c : cases) {
        limit(c.maximum);
        EXPECT_EQ(allWeights(), c.weights) << c.maximum;
        EXPECT_EQ(shown(3), "1.000 0.000 0.000 0.000");
        mel("undo");
        EXPECT_EQ(allWeights(), before_) << c.maximum;
        EXPECT_EQ(shown(1), "0.400 0.300 0.200 0.100");
        mel("redo");
        EXPECT_EQ(allWeights(), c.weights) << c.maximum;
        mel("undo");
    }
    const std::string items = undoItems();
    limit(4);
    EXPECT_EQ(undoItems(), items) << "an edit that does nothing could not be undone";
    EXPECT_EQ(takeErrors() + takeInfos(), "");
}

TEST_F(maxInfluences, keepsToTheSelectedRows)
{
    selectRow(4);
    limit(2);
    EXPECT_EQ(allWeights(), "0.4 0.3 0.2 0.1; 0.25 0.25 0.25 0.25; 1 0 0 0; 0 0.625 0.375 0");
    EXPECT_EQ(shown(4), "0.000 0.625 0.375 0.000");
    selectCells(1, 0, 1, 2); // no whole row: all
    limit(3);
    EXPECT_EQ(weights(0) + ", " + weights(3), "0.444444 0.333333 0.222222 0, 0 0.625 0.375 0");
    selectRow(0); // a shape row
    limit(1);
    EXPECT_EQ(weights(3) + takeErrors() + takeInfos(), "0 0.625 0.375 0");
}

TEST_F(maxInfluences, refusesLockedRowsButNotThoseBehindThem)
{
    lockRow(1);
    lockCell(4, 1);
    lockCell(2, 0);
    limit(2);
    EXPECT_EQ(takeInfos(), lines(kRowIsLocked, 2)) << "rows 1 and 4; row 2 stands behind a refused";
    EXPECT_EQ(allWeights(), "0.4 0.3 0.2 0.1; 0 0 0.5 0.5; 1 0 0 0; 0 0.5 0.3 0.2");
    lockColumn(2);
    selectRow(1);
    limit(1);
    EXPECT_EQ(takeInfos(), kRowIsLocked);
    EXPECT_EQ(weights(0), "0.4 0.3 0.2 0.1");
}

TEST_F(maxInfluences, goesBackToTheMaximumBefore)
{
    QSignalSpy headers(model_, SIGNAL(headerDataChanged(Qt::Orientation, int, int)));
    const auto told = [&headers] {
        const QList<QVariant> last = headers.takeLast();
        headers.clear();
        return std::to_string(last.at(1).toInt()) + " to " + std::to_string(last.at(2).toInt());
    };
    const auto isMarked = [this](int row) {
        return model_->headerData(row, Qt::Vertical, Qt::BackgroundRole).isValid();
    };
    call("setMaxValue", 3);
    EXPECT_EQ(told(), "0 to 4");
    EXPECT_TRUE(isMarked(1));
    call("undoMaxInfluence");
    EXPECT_EQ(told(), "0 to 4");
    EXPECT_FALSE(isMarked(1));
    mel("select -cl");
    load();
    call("undoMaxInfluence");
    EXPECT_EQ(told(), "0 to -1");
    EXPECT_EQ(takeErrors(), kNothingToUndo);
}
