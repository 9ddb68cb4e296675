// SPDX-License-Identifier: Apache-2.0
//
// Ctrl+Z and Ctrl+Y in the window.

#include <functional>
#include <sstream>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QSlider>

#include "model/messages.h"
#include "support/windowScene.h"

class keyboardUndo : public WindowScene
{
protected:
    struct useOfControl {
        const char *what;
        std::function<void()> prepare;
        std::function<void()> act;
    };

    keyboardUndo()
    {
        makeSkin("body", {"hip", "knee", "ankle", "toe"},
                 {{.5, .3, .2, 0}, {.25, .25, .5, 0}, {.3334, .3333, .3333, 0}, {1, 0, 0, 0}});
        load("body");
    }

    void press(Qt::Key key) { pressOn(QApplication::focusWidget(), key); }
    static void pressOn(QWidget *widget, Qt::Key key)
    {
        QTest::keyClick(widget, key, Qt::ControlModifier);
    }

    void smoothBy(int operation, const char *opacity = "1.000")
    {
        chooseOperation(operation);
        if (operation > 0)
            enter("opacityEdit", opacity);
    }
    useOfControl floodSetting(int operation, const char *name, const char *text)
    {
        const std::string edit = std::string(name) + "Edit";
        return {name, [this, operation] { smoothBy(operation); },
                [this, edit, text] { enter(edit.c_str(), text); }};
    }

    std::vector<useOfControl> controlsThatWriteWeights();
    std::vector<useOfControl> otherControls();

    // All that the window shows, but for the row of the value slider, and what the scene holds. An
    // edit's rows are rounded one by one when it is made, all of them when it is redone, and may
    // then differ in the last place: weightsOnly leaves the texts of the cells out.
    enum detail { everything, weightsOnly };
    std::string state(detail shown = everything) const;
};

std::vector<keyboardUndo::useOfControl> keyboardUndo::controlsThatWriteWeights()
{
    const auto cell = [this] { clickCell(1, 0); };
    const auto column = [this] { selectColumn(1); };
    const auto flood = [this] { click("Apply"); };
    return {
        {"ApplyInfluence", [this] { enter("maxInfluenceEdit", "2"); },
         [this] { click("ApplyInfluence"); }},
        {"Apply: smooth", [this] { smoothBy(smoothWeights); }, flood},
        {"Apply: smooth an influence",
         [=] {
             smoothBy(smoothInfluence);
             column();
         },
         flood},
        {"Apply: replace",
         [=] {
             smoothBy(replaceInfluence, "0.5");
             column();
         },
         flood},
        {"typing", cell, [this] { typeKeys("0.7"); }},
        {"a double click", cell,
         [this] {
             QTest::mouseDClick(view_->viewport(), Qt::LeftButton, Qt::NoModifier,
                                view_->visualRect(model_->index(1, 0)).center());
             for (const Qt::Key key : {Qt::Key_0, Qt::Key_Period, Qt::Key_2, Qt::Key_Return})
                 QTest::keyClick(QApplication::focusWidget(), key);
             QTest::qWait(1);
         }},
        {"RoundPrecision", [] {}, [this] { click("RoundPrecision"); }},
        {"valueEdit", cell, [this] { enter("valueEdit", "0.25"); }},
        {"valueSlider", cell, [this] { dragTo("valueSlider", 900); }},
        {"valueSlider over a column", column, [this] { dragTo("valueSlider", 400); }},
    };
}

std::vector<keyboardUndo::useOfControl> keyboardUndo::otherControls()
{
    const auto nothing = [] {};
    const auto cells = [this] { selectCells(1, 0, 2, 1); };
    const auto lock = [this] {
        selectCells(1, 0, 2, 1);
        click("Lock");
    };
    return {
        {"maxInfluenceEdit", [this] { enter("maxInfluenceEdit", "4"); },
         [this] { enter("maxInfluenceEdit", "2"); }},
        {"precisionEdit", nothing, [this] { enter("precisionEdit", "0.01"); }},
        {"LoadComponent", [this] { mel("select -r body.vtx[1:2]"); },
         [this] { click("LoadComponent"); }},
        floodSetting(smoothWeights, "requiredWeightDifference", "0.5"),
        floodSetting(smoothWeights, "smoothingIterations", "9"),
        floodSetting(smoothInfluence, "opacity", "0.25"),
        floodSetting(smoothInfluence, "floodValue", "0.125"),
        {"requiredWeightDifferenceSlider", nothing,
         [this] { dragTo("requiredWeightDifferenceSlider", 4000); }},
        {"smoothingIterationsSlider", nothing, [this] { dragTo("smoothingIterationsSlider", 8); }},
        {"opacitySlider", nothing, [this] { dragTo("opacitySlider", 3000); }},
        {"floodValueSlider", nothing, [this] { dragTo("floodValueSlider", 2000); }},
        {"absolute", nothing, [this] { click("absolute"); }},
        {"Filter", nothing, [this] { click("Filter"); }},
        {"Highlight", nothing, [this] { click("Highlight"); }},
        {"Lock", cells, [this] { click("Lock"); }},
        {"UnLock", lock, [this] { click("UnLock"); }},
        {"UnLockAll", lock, [this] { click("UnLockAll"); }},
    };
}

std::string keyboardUndo::state(detail shown) const
{
    std::ostringstream text;
    text << (shown == everything ? picture() : disagreement()) << hiddenColumns() << '\n';
    for (int row = 0; row < model_->rowCount(); ++row) {
        const QVariant mark = model_->headerData(row, Qt::Vertical, Qt::BackgroundRole);
        text << mark.value<QBrush>().color().name().toStdString();
        for (int column = 0; column < model_->columnCount(); ++column)
            text << (isLocked(row, column) ? " #" : " .");
        text << '\n';
    }
    for (int vertex = 0; vertex < 4; ++vertex)
        text << weights(vertex) << '\n';
    for (const QLineEdit *edit : window_->findChildren<QLineEdit *>()) {
        if (edit->objectName() != "valueEdit")
            text << edit->objectName().toStdString() << ' ' << edit->text().toStdString() << '\n';
    }
    for (const QSlider *slider : window_->findChildren<QSlider *>()) {
        text << slider->minimum() << ' ' << slider->maximum();
        if (slider->objectName() != "valueSlider")
            text << ' ' << slider->value();
        text << '\n';
    }
    for (const QAbstractButton *button : window_->findChildren<QAbstractButton *>())
        text << (button->isChecked() ? button->text().toStdString() : std::string());
    return text.str();
}

TEST_F(keyboardUndo, takesBackAndRestoresWhatEachControlDid)
{
    for (const bool writesWeights : {true, false}) {
        for (const useOfControl &c : writesWeights ? controlsThatWriteWeights() : otherControls()) {
            SCOPED_TRACE(c.what);
            const detail shown = writesWeights ? weightsOnly : everything;
            c.prepare();
            click("Filter"); // no control counts for the next one
            click("Filter");
            mel("flushUndo");
            const std::string before = state(shown);
            c.act();
            const std::string after = state(shown);
            EXPECT_NE(before, after);

            for (const int time : {1, 2}) {
                press(Qt::Key_Z);
                EXPECT_EQ(state(shown), before) << "Ctrl+Z " << time;
                EXPECT_EQ(takeWarnings(), writesWeights && time == 2 ? kNotLastChange : "");
            }
            for (const int time : {1, 2}) {
                press(Qt::Key_Y);
                EXPECT_EQ(state(shown), after) << "Ctrl+Y " << time;
                EXPECT_EQ(takeWarnings(), writesWeights && time == 2 ? kNotNextToRedo : "");
            }
            EXPECT_EQ(disagreement(), "");
            press(Qt::Key_Z);
            EXPECT_EQ(state(shown), before);
            EXPECT_EQ(takeErrors(), "");

            call("newUnlockAll");
            takeErrors();
            takeInfos();
            load("body");
        }
    }
}

TEST_F(keyboardUndo, changesNothingOnceSomethingElseWasDone)
{
    for (const useOfControl &c : controlsThatWriteWeights()) {
        SCOPED_TRACE(c.what);
        c.prepare();
        c.act();
        mel("createNode transform -n since");
        const std::string after = state();
        press(Qt::Key_Z);
        EXPECT_EQ(takeWarnings(), kNotLastChange);
        EXPECT_EQ(state(), after);
        EXPECT_EQ(melString("objExists since"), "1");

        mel("delete since; undo; undo");
        press(Qt::Key_Z);
        EXPECT_EQ(takeWarnings(), "") << "it is the last one again";
        const std::string before = state();
        mel("createNode transform -n since; undo");
        press(Qt::Key_Y);
        EXPECT_EQ(takeWarnings(), kNotNextToRedo);
        EXPECT_EQ(state(), before);
        EXPECT_EQ(disagreement(), "");
    }
}

TEST_F(keyboardUndo, goesBackThroughEditsOfSeveralControls)
{
    const std::string start = state();
    clickCell(1, 0);
    typeKeys("0.7");
    clickCell(2, 1);
    typeKeys("0");
    const std::string typed = state();
    click("RoundPrecision");
    const std::string rounded = state();
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Z);
    EXPECT_EQ(state(), start);
    press(Qt::Key_Y);
    press(Qt::Key_Y);
    EXPECT_EQ(state(), typed);
    press(Qt::Key_Y);
    EXPECT_EQ(state(), rounded);
    EXPECT_EQ(takeWarnings(), "");
}

TEST_F(keyboardUndo, isAboutTheLastControlOnly)
{
    clickCell(1, 0);
    typeKeys("0.7");
    const std::string typed = state();
    click("Filter");
    press(Qt::Key_Z);
    press(Qt::Key_Z);
    EXPECT_EQ(state(), typed) << "the filter's, and no more than that";
    clickCell(2, 0);
    typeKeys("0");
    const std::string typedAgain = state();
    press(Qt::Key_Y);
    EXPECT_NE(hiddenColumns(), "") << "Ctrl+Y is about what was taken back last";
    press(Qt::Key_Z);
    EXPECT_EQ(state(), typedAgain);
}

// What refuses has not acted: the way back is still that of the control before.
TEST_F(keyboardUndo, isNotAboutAControlThatHasRefused)
{
    clickCell(1, 0);
    typeKeys("0.7");
    const std::string typed = weights(0);
    smoothBy(replaceInfluence);
    const struct {
        const char *what;
        std::function<void()> act;
    } refusals[] = {
        {"flooding without a column", [this] { click("Apply"); }},
        {"a typed value", [this] { typeKeys("7"); }},
        {"limiting what is below the maximum", [this] { click("ApplyInfluence"); }},
        {"a drag of locked cells",
         [this] {
             call("lockCell");
             dragTo("valueSlider", 100);
         }},
    };
    for (const auto &each : refusals) {
        click("Filter");
        each.act();
        takeErrors();
        takeInfos();
        press(Qt::Key_Z);
        EXPECT_EQ(weights(0) + hiddenColumns(), typed) << each.what;
    }
}

// A way back that was refused is still there.
TEST_F(keyboardUndo, triesAgainWhatWasRefused)
{
    enter("precisionEdit", "0.01");
    const std::string coarse = shown(3);
    lockCell(1, 0);
    press(Qt::Key_Z);
    EXPECT_EQ(takeErrors() + shown(3), kPrecisionWhileLocked + coarse);
    call("unlockCell");
    press(Qt::Key_Z);
    EXPECT_NE(shown(3), coarse);
}

TEST_F(keyboardUndo, showsWhatIsInTheSceneWhenALoadIsTakenBack)
{
    mel("select -r body.vtx[1]");
    click("LoadComponent");
    mel("skinPercent -tv hip 0.75 bodySkin body.vtx[0]");
    press(Qt::Key_Z);
    EXPECT_EQ(shown(1), "0.750 0.150 0.100 0.000");
    mel("skinPercent -tv hip 0.75 bodySkin body.vtx[1]; delete body");
    press(Qt::Key_Y);
    EXPECT_EQ(rowNames(), "bodyShape vtx[1]");
    EXPECT_EQ(takeErrors(), kShapeNotInTable) << "its locks went with it";
}

TEST_F(keyboardUndo, takesBackTheSmoothingOfTwoMeshesAtOnce)
{
    makeSkin("hand", {"hip", "toe"}, {{1, 0}, {0, 1}, {1, 0}, {0, 1}});
    load("body hand");
    const auto both = [] { return weights(0) + " and " + weights(0, "hand"); };
    const std::string before = both();
    click("Apply");
    const std::string after = both();
    EXPECT_NE(weights(0, "hand"), "1 0");
    press(Qt::Key_Z);
    EXPECT_EQ(both(), before);
    press(Qt::Key_Y);
    EXPECT_EQ(both(), after);
    EXPECT_EQ(takeWarnings(), "");
}

TEST_F(keyboardUndo, answersOnEveryControl)
{
    clickCell(1, 0);
    typeKeys("0.7");
    const std::string typed = state();
    press(Qt::Key_Z);
    const std::string before = state();
    int count = 0;
    for (QWidget *widget : window_->findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() || !widget->isEnabled())
            continue;
        pressOn(widget, Qt::Key_Y);
        EXPECT_EQ(state(), typed) << widget->objectName().toStdString();
        pressOn(widget, Qt::Key_Z);
        EXPECT_EQ(state(), before) << widget->objectName().toStdString();
        ++count;
    }
    EXPECT_GE(count, 20);
    EXPECT_EQ(takeWarnings(), "");
}

// Maya has shortcuts of its own on these keys.
TEST_F(keyboardUndo, takesTheKeysFromMayaOnlyWhereItHasSomethingToDo)
{
    int taken = 0;
    QAction undo, redo, smoothness;
    undo.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    redo.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Y));
    smoothness.setShortcut(QKeySequence(Qt::Key_0));
    for (QAction *action : {&undo, &redo, &smoothness}) {
        QObject::connect(action, &QAction::triggered, [&taken] { ++taken; });
        window_->addAction(action);
    }
    view_->setFocus();
    press(Qt::Key_Z);
    press(Qt::Key_Y);
    QTest::keyClick(view_, Qt::Key_0);
    EXPECT_EQ(taken, 3);
    clickCell(1, 0);
    typeKeys("0.7");
    press(Qt::Key_Y);
    EXPECT_EQ(taken, 4) << "nothing was taken back yet";
    EXPECT_EQ(weights(0), "0.7 0.18 0.12 0");
    QTest::keyClick(view_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(weights(0), "0.7 0.18 0.12 0");
    press(Qt::Key_Z);
    press(Qt::Key_Y);
    press(Qt::Key_Z);
    EXPECT_EQ(taken, 4);
    EXPECT_EQ(weights(0), "0.5 0.3 0.2 0");
}
