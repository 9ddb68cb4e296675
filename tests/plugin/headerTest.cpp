// SPDX-License-Identifier: Apache-2.0
#include <QHeaderView>
#include <QImage>
#include <QPainter>

#include "support/editorScene.h"

class columnHeader : public EditorScene
{
};

TEST_F(columnHeader, growsUpwardsWithItsTitlesAndNotSideways)
{
    makeSkin("body", {"hip", "leftUpperArmTwist03"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    load("body");
    QHeaderView &header = *view_->horizontalHeader();
    EXPECT_TRUE(header.inherits("weightColumnHeaderView"));
    const QFontMetrics metrics(header.font());
    const int titleLength = metrics.size(0, "leftUpperArmTwist03").width();
    EXPECT_GE(header.sizeHint().height(), titleLength);
    // Nothing but the two lines of text beside each other and a style's margins.
    EXPECT_LT(header.sectionSizeHint(1), 3 * metrics.height());
    EXPECT_EQ(header.sectionSizeHint(0), header.sectionSizeHint(1));
    EXPECT_EQ(view_->columnWidth(0), view_->columnWidth(1));
}

// The ink of a long title is a column, not a line.
TEST_F(columnHeader, writesItsTitlesUpwards)
{
    makeSkin("body", {"leftUpperArmTwist03", "hip"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    load("body");
    const QImage picture = view_->horizontalHeader()->viewport()->grab().toImage().convertToFormat(
        QImage::Format_Grayscale8);
    const int width = view_->columnWidth(0);
    QRect ink;
    for (int y = 2; y < picture.height() - 2; ++y) {
        for (int x = 2; x < width - 2; ++x) {
            if (qGray(picture.pixel(x, y)) < 100)
                ink |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_GT(ink.height(), 3 * ink.width());
}

TEST_F(columnHeader, letsSeveralColumnsBePicked)
{
    const QHeaderView &header = *view_->horizontalHeader();
    EXPECT_TRUE(header.sectionsClickable());
    EXPECT_EQ(header.selectionMode(), QAbstractItemView::ExtendedSelection);
    EXPECT_TRUE(header.highlightSections());
    EXPECT_EQ(header.defaultSectionSize(), 40);
}
