// SPDX-License-Identifier: Apache-2.0
//
// The rows for the number of influences and of decimal places.
#include <QHeaderView>
#include <QSlider>

#include "model/messages.h"
#include "support/windowScene.h"

class influencesAndPrecision : public WindowScene
{
protected:
    influencesAndPrecision() { loadBody(); }

    QVariant rowMark(int row) { return model_->headerData(row, Qt::Vertical, Qt::BackgroundRole); }
};

TEST_F(influencesAndPrecision, marksRowsBeyondTheMaximumAndLimitsThem)
{
    enter("maxInfluenceEdit", "2");
    for (const char *text : {"0", "-2", "x", "", "1.5", "99999999999"}) {
        enter("maxInfluenceEdit", text);
        EXPECT_EQ(takeErrors(), kInvalidMaximum) << text;
        EXPECT_EQ(rowMark(1).value<QColor>(), QColor(Qt::yellow)) << text;
        EXPECT_FALSE(rowMark(4).isValid());
    }
    EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    click("ApplyInfluence");
    EXPECT_EQ(weights(0) + ", " + weights(1), "0.625 0.375 0, 0 0.333333 0.666667");
    EXPECT_FALSE(rowMark(1).isValid());
}

TEST_F(influencesAndPrecision, showsAsManyDigitsAsItsPrecision)
{
    const struct {
        const char *entered;
        const char *shown;
        int steps;
        int columnWidth;
    } cases[] = {
        {"0.00001", "0.33400 0.33300 0.33300", 100000, 54},
        {"0.01", "0.33 0.33 0.34", 100, 40},
        {"0.0001", "0.3340 0.3330 0.3330", 10000, 47},
        {"0.1", "0.3 0.3 0.4", 10, 40},
        {"0.000000001", "0.334000000 0.333000000 0.333000000", 1000000000, 82},
    };
    const QSlider &slider = control<QSlider>("valueSlider");
    for (const auto &each : cases) {
        enter("precisionEdit", each.entered);
        EXPECT_EQ(shown(3), each.shown);
        EXPECT_EQ(slider.minimum(), -each.steps);
        EXPECT_EQ(slider.maximum(), each.steps);
        EXPECT_EQ(slider.tickInterval(), each.steps);
        EXPECT_EQ(view_->columnWidth(1), each.columnWidth) << each.entered;
    }
    EXPECT_EQ(weights(2), "0.334 0.333 0.333") << "only what is shown has changed";
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(influencesAndPrecision, bringsTheValueRowInLine)
{
    clickCell(1, 1);
    enter("precisionEdit", "0.01");
    EXPECT_EQ(stepOf("valueSlider"), 30);
    dragTo("valueSlider", 10);
    EXPECT_EQ(textOf("valueEdit"), "0.10");
    EXPECT_EQ(shown(1), "0.43 0.40 0.17");
}

TEST_F(influencesAndPrecision, stayAsTheyAreWhenAPrecisionIsRefused)
{
    enter("precisionEdit", "0.0001");
    const auto state = [this] {
        return shown(1) + std::to_string(control<QSlider>("valueSlider").maximum()) + ' ' +
               std::to_string(view_->horizontalHeader()->defaultSectionSize());
    };
    const std::string before = state();
    for (const char *text : {"", "1.0", "0.002", "0.0000000001", "three"}) {
        enter("precisionEdit", text);
        EXPECT_EQ(takeErrors(), kMalformedPrecision) << text;
        EXPECT_EQ(state(), before) << text;
    }
    lockCell(2, 2);
    view_->setColumnWidth(0, 99);
    enter("precisionEdit", "0.01");
    EXPECT_EQ(takeErrors(), kPrecisionWhileLocked);
    enter("precisionEdit", "0.0001");
    EXPECT_EQ(takeErrors(), kPrecisionWhileLocked);
    EXPECT_EQ(state(), before);
    EXPECT_EQ(view_->columnWidth(0), 99);
    call("newUnlockAll");
    mel("file -f -new");
    enter("precisionEdit", "0.01");
    EXPECT_EQ(takeErrors(), std::string(kNothingToCache) + '\n' + kNoWeightList);
    EXPECT_EQ(control<QSlider>("valueSlider").maximum(), 10000);
}

// A refusal between two changes does not cost the first one its way back.
TEST_F(influencesAndPrecision, keepTheCopyOfTheLastChangeThatWasMade)
{
    enter("precisionEdit", "0.01");
    EXPECT_EQ(shown(3), "0.33 0.33 0.34");
    lockCell(2, 2);
    takeErrors();
    enter("precisionEdit", "0.1");
    EXPECT_EQ(takeErrors(), kPrecisionWhileLocked);
    call("restoreUndoCopy");
    call("undoPrecision");
    EXPECT_EQ(shown(3), "0.334 0.333 0.333");
}
