// SPDX-License-Identifier: Apache-2.0
#include <QLineEdit>
#include <QSlider>

#include "model/messages.h"
#include "support/windowScene.h"

class floodPanel : public WindowScene
{
protected:
    floodPanel() { loadBody(); }

    bool isEnabled(const std::string &name)
    {
        return control<QWidget>((name + "Edit").c_str()).isEnabled() &&
               control<QWidget>((name + "Slider").c_str()).isEnabled();
    }
};

TEST_F(floodPanel, offersTheSettingsOfTheOperation)
{
    for (const int chosen : {replaceInfluence, smoothWeights, smoothInfluence, smoothWeights}) {
        chooseOperation(chosen);
        EXPECT_EQ(isEnabled("requiredWeightDifference"), chosen == smoothWeights);
        EXPECT_EQ(isEnabled("smoothingIterations"), chosen == smoothWeights);
        EXPECT_EQ(isEnabled("opacity"), chosen != smoothWeights);
        EXPECT_EQ(isEnabled("floodValue"), chosen != smoothWeights);
    }
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(floodPanel, saysThatThereIsNoSuchOperation)
{
    chooseOperation(-1);
    EXPECT_EQ(takeErrors(), kNoFloodOperation);
    EXPECT_TRUE(isEnabled("smoothingIterations"));
    click("Apply");
    EXPECT_EQ(takeErrors(), kNoFloodOperation);
}

TEST_F(floodPanel, replacesByTheValueTimesTheOpacity)
{
    chooseOperation(replaceInfluence);
    enter("opacityEdit", "0.5");
    enter("floodValueEdit", "0.8");
    selectColumn(1);
    click("Apply");
    EXPECT_EQ(shownColumn(1), "0.400 0.400 0.400 0.400");
    EXPECT_EQ(weights(3), "0.6 0.4 0");
    mel("undo");
    EXPECT_EQ(weights(3), "1 0 0");
    enter("floodValueEdit", "7"); // whatever is beyond a weight is cut
    click("Apply");
    EXPECT_EQ(shownColumn(1), "1.000 1.000 1.000 1.000");
}

TEST_F(floodPanel, smoothsTheSelectedRowsAsOftenAsSaid)
{
    selectCells(1, 0, 4, 2);
    enter("smoothingIterationsEdit", "1");
    click("Apply");
    const std::string once = shownColumn(0);
    EXPECT_NE(once, "0.500 0.250 0.334 1.000");
    mel("undo");
    enter("smoothingIterationsEdit", "50");
    click("Apply");
    EXPECT_NE(shownColumn(0), once);
    mel("undo");
    enter("requiredWeightDifferenceEdit", "1");
    click("Apply");
    EXPECT_EQ(shownColumn(0), "0.500 0.250 0.334 1.000") << "no weight jumps by 1";
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(floodPanel, smoothsOneJointByWhatOpacityLeaves)
{
    chooseOperation(smoothInfluence);
    selectColumn(0);
    enter("opacityEdit", "0");
    click("Apply");
    EXPECT_EQ(shownColumn(0), "0.500 0.250 0.334 1.000");
    enter("opacityEdit", "1");
    click("Apply");
    const std::string whole = shownColumn(0);
    EXPECT_NE(whole, "0.500 0.250 0.334 1.000");
    mel("undo");
    enter("opacityEdit", "0.5");
    click("Apply");
    EXPECT_NE(shownColumn(0), whole);
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(floodPanel, refusesSettingsThatAreNoNumbersOrOutOfRange)
{
    const struct {
        int chosen;
        const char *edit;
        const char *text;
        const char *error;
    } cases[] = {
        {smoothWeights, "requiredWeightDifferenceEdit", "", kInvalidSmoothing},
        {smoothWeights, "requiredWeightDifferenceEdit", "nan", kInvalidSmoothing},
        {smoothWeights, "smoothingIterationsEdit", "2.5", kInvalidSmoothing},
        {smoothWeights, "smoothingIterationsEdit", "many", kInvalidSmoothing},
        {replaceInfluence, "opacityEdit", "1.5", kInvalidOpacity},
        {replaceInfluence, "opacityEdit", "-0.1", kInvalidOpacity},
        {replaceInfluence, "opacityEdit", "nan", kInvalidOpacity},
        {replaceInfluence, "floodValueEdit", "inf", kInvalidOpacity},
        {smoothInfluence, "opacityEdit", "1.0001", kInvalidOpacity},
        {smoothInfluence, "floodValueEdit", "x", kInvalidOpacity},
    };
    for (const auto &each : cases) {
        chooseOperation(each.chosen);
        selectColumn(0);
        const QString valid = control<QLineEdit>(each.edit).text();
        enter(each.edit, QLatin1String(each.text));
        const std::string items = undoItems();
        click("Apply");
        EXPECT_EQ(takeErrors(), each.error) << each.edit << ' ' << each.text;
        EXPECT_EQ(undoItems() + textOf(each.edit), items + each.text);
        enter(each.edit, valid);
    }
}

TEST_F(floodPanel, movesSlidersToWhatIsEntered)
{
    const struct {
        const char *row;
        const char *text;
        int step;
    } cases[] = {
        {"opacity", "0.25", 2500},
        {"opacity", "0.0003", 3},
        {"floodValue", "0.12349", 1234},
        {"floodValue", "5", 10000},
        {"floodValue", "half", 10000}, // stays
        {"requiredWeightDifference", "2.5", 25000},
        {"smoothingIterations", "12", 12},
    };
    for (const auto &each : cases) {
        const std::string row = each.row;
        chooseOperation(row == "opacity" || row == "floodValue" ? replaceInfluence : smoothWeights);
        enter((row + "Edit").c_str(), QLatin1String(each.text));
        EXPECT_EQ(stepOf((row + "Slider").c_str()), each.step) << row << ' ' << each.text;
        EXPECT_EQ(textOf((row + "Edit").c_str()), each.text);
    }
}

TEST_F(floodPanel, writesWhatSlidersAreDraggedTo)
{
    const struct {
        const char *row;
        int step;
        const char *text;
    } cases[] = {
        {"opacity", 2500, "0.2500"},
        {"floodValue", 1, "0.0001"},
        {"requiredWeightDifference", 25000, "2.5000"},
        {"smoothingIterations", 12, "12"},
    };
    enter("precisionEdit", "0.0001");
    for (const auto &each : cases) {
        const std::string row = each.row;
        dragTo((row + "Slider").c_str(), each.step);
        EXPECT_EQ(textOf((row + "Edit").c_str()), each.text) << row;
    }
}

// The edit is what counts, and must not keep another number than its slider shows.
TEST_F(floodPanel, writesWhatKeysMoveSlidersTo)
{
    chooseOperation(replaceInfluence);
    QSlider &slider = control<QSlider>("opacitySlider");
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_PageDown);
    EXPECT_EQ(textOf("opacityEdit"), "0.900");
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(textOf("opacityEdit"), "0.000");
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(textOf("opacityEdit"), "1.000");
    slider.setSliderDown(true);
    slider.setSliderPosition(5000);
    EXPECT_EQ(textOf("opacityEdit"), "1.000") << "not before it is let go of";
    slider.setSliderDown(false);
    EXPECT_EQ(textOf("opacityEdit"), "0.500");
}
