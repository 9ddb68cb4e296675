// SPDX-License-Identifier: Apache-2.0
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>

#include "model/messages.h"
#include "support/windowScene.h"

class windowLayout : public WindowScene
{
protected:
    // What a widget reads: text, title or range of values.
    static std::string picture(QWidget &widget)
    {
        QString text;
        if (const auto *label = qobject_cast<QLabel *>(&widget))
            text = label->text();
        else if (const auto *edit = qobject_cast<QLineEdit *>(&widget))
            text = QLatin1Char('[') + edit->text() + QLatin1Char(']');
        else if (const auto *button = qobject_cast<QAbstractButton *>(&widget))
            text = QLatin1Char('(') + button->text() + QLatin1Char(')') +
                   QLatin1String(button->isChecked() ? "*" : "");
        else if (const auto *box = qobject_cast<QComboBox *>(&widget))
            for (int i = 0; i < box->count(); ++i)
                text += QLatin1Char('/') + box->itemText(i);
        else if (const auto *slider = qobject_cast<QSlider *>(&widget))
            text = QString::fromLatin1("%1..%2..%3")
                       .arg(slider->minimum())
                       .arg(slider->value())
                       .arg(slider->maximum());
        else if (widget.inherits("weightTableView"))
            text = QLatin1String("table");
        return text.toStdString() + (widget.isEnabled() ? "" : "-");
    }

    // Where a control stands in the window; what stands level is taken for one line.
    static QPoint place(const QWidget &widget)
    {
        return widget.mapTo(widget.window(), widget.rect().center());
    }
};

TEST_F(windowLayout, hasItsControlsInLines)
{
    std::vector<std::pair<QPoint, std::string>> placed;
    for (QWidget *widget : window_->findChildren<QWidget *>()) {
        const bool isPart = widget->isVisible() && !qobject_cast<QMenuBar *>(widget) &&
                            (widget == view_ || !view_->isAncestorOf(widget));
        if (isPart && !picture(*widget).empty())
            placed.push_back({place(*widget), picture(*widget)});
    }
    std::sort(placed.begin(), placed.end(), [](const auto &a, const auto &b) {
        return std::abs(a.first.y() - b.first.y()) > 5 ? a.first.y() < b.first.y()
                                                       : a.first.x() < b.first.x();
    });
    std::string text;
    int y = placed.front().first.y();
    for (const auto &each : placed) {
        text += std::abs(each.first.y() - y) > 5 ? "\n" : text.empty() ? "" : " ";
        text += each.second;
        y = each.first.y();
    }
    EXPECT_EQ(text, "Max influences: [] (Apply)\n"
                    "Enter number of decimal places: [0.001] (Round)\n"
                    "Required Weight Difference: [0.000] 0..0..100000\n"
                    "Smoothing Iterations: [5] 0..5..100\n"
                    "/Smooth Skin Weight/Smooth(Per Influence)/Replace(Per Influence) (Apply)\n"
                    "Opacity:- [1.000]- 0..10000..10000-\n"
                    "Value:- [1.000]- 0..10000..10000-\n"
                    "(Load Component) (Filter) (Highlight)\n"
                    "(Lock) (UnLock) (UnLock All)\n"
                    "(absolute)\n"
                    "[] -1000..0..1000\n"
                    "(relative)*\n"
                    "table");
}

TEST_F(windowLayout, hasWidthsThatLinesShare)
{
    const struct {
        int width;
        std::vector<const char *> names;
    } widths[] = {
        {140,
         {"ApplyInfluence", "RoundPrecision", "Apply", "LoadComponent", "Filter", "Highlight",
          "Lock", "UnLock", "UnLockAll", "floodOperation"}},
        {70, {"opacityEdit", "floodValueEdit", "smoothingIterationsEdit", "valueEdit"}},
        {110, {"opacitySlider", "requiredWeightDifferenceSlider"}},
        {50, {"precisionEdit"}},
        {30, {"maxInfluenceEdit"}},
        {400, {"valueSlider"}},
    };
    for (const auto &each : widths) {
        for (const char *name : each.names)
            EXPECT_EQ(control<QWidget>(name).width(), each.width) << name;
    }
    EXPECT_EQ(window_->windowTitle(), "Korvex");
    EXPECT_EQ(window_->geometry().topLeft(), QPoint(200, 200));
    EXPECT_EQ(window_->height(), 700);
    EXPECT_EQ(window_->width(), window_->minimumSizeHint().width()) << "no wider than it must be";
}

// No label loses its end, whatever the font.
TEST_F(windowLayout, showsItsLabelsWhole)
{
    for (const QLabel *label : window_->findChildren<QLabel *>())
        EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
    const QComboBox &operation = control<QComboBox>("floodOperation");
    EXPECT_LE(operation.sizeHint().width(), operation.width());
}

// With Tab from the first control to the table, line by line; each says what it is for.
TEST_F(windowLayout, leadsThroughItsControlsInReadingOrder)
{
    control<QWidget>("maxInfluenceEdit").setFocus();
    QPoint last;
    int count = 0;
    for (; QApplication::focusWidget() != view_ && count < 30; ++count) {
        QWidget &focused = *QApplication::focusWidget();
        EXPECT_FALSE(focused.toolTip().isEmpty()) << picture(focused);
        const QPoint here = place(focused);
        EXPECT_TRUE(here.y() > last.y() - 30 && (here.y() > last.y() + 5 || here.x() > last.x()))
            << picture(focused);
        last = here;
        QTest::keyClick(&focused, Qt::Key_Tab);
    }
    EXPECT_EQ(count, 19) << "the two lines that are not in use are left out";
}

TEST_F(windowLayout, hasAMenuOfOptions)
{
    const QMenuBar *bar = window_->findChild<QMenuBar *>();
    ASSERT_EQ(bar->actions().size(), 1);
    EXPECT_EQ(bar->actions().at(0)->text(), "Options");
    const QList<QAction *> options = bar->actions().at(0)->menu()->actions();
    std::string texts;
    for (QAction *option : options)
        texts += (option->text() + (option->isCheckable() ? "* " : " ")).toStdString();
    EXPECT_EQ(texts, "Auto Update* Save Preset Load Preset ");

    loadBody();
    makeSkin("hat", {"hip"}, {{1}, {1}, {1}, {1}});
    const std::string before = undoItems();
    options.at(1)->trigger();
    options.at(2)->trigger();
    EXPECT_EQ(takeErrors() + takeWarnings() + undoItems(), before);
    mel("select -r hat");
    EXPECT_EQ(columnNames(), "hip knee ankle") << "the table does not follow the selection";
    options.at(0)->trigger();
    mel("select -r hat.vtx[0]");
    EXPECT_EQ(columnNames(), "hip") << "the table follows now";
    options.at(0)->trigger();
    mel("select -r body");
    EXPECT_EQ(columnNames(), "hip");
}

TEST_F(windowLayout, locksAndUnlocksByItsButtons)
{
    loadBody();
    selectColumn(1);
    click("Lock");
    EXPECT_TRUE(isLocked(3, 1));
    selectRow(2);
    click("Lock");
    EXPECT_TRUE(isLocked(2, 0));
    click("UnLock");
    EXPECT_FALSE(isLocked(2, 0));
    click("UnLockAll");
    EXPECT_FALSE(isLocked(3, 1));
    EXPECT_EQ(takeErrors(), "");
    click("UnLockAll");
    EXPECT_EQ(takeErrors(), kNothingToUnlock);
}
