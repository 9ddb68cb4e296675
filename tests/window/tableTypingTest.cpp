// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QLineEdit>

#include "model/messages.h"
#include "support/windowScene.h"

class tableTyping : public WindowScene
{
protected:
    tableTyping() { loadBody(); }

    // What the editor that the key opens holds, "-" if it opens none. Closes it.
    std::string editorAfter(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        view_->setFocus();
        QTest::keyClick(view_, key, modifiers);
        QTest::qWait(1); // an editor that takes the key for its own may be gone again
        auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        if (!editor)
            return "-";
        const std::string text = editor->text().toStdString();
        QTest::keyClick(editor, Qt::Key_Escape);
        QTest::qWait(1);
        return text;
    }
    // The row and column that is being edited: "1 2".
    std::string editedCell() const
    {
        const QModelIndex index = view_->currentIndex();
        return view_->indexWidget(index)
                   ? std::to_string(index.row()) + ' ' + std::to_string(index.column())
                   : "none";
    }
};

TEST_F(tableTyping, opensAnEditorThatHoldsTheKey)
{
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char *text;
    } cases[] = {
        {Qt::Key_5, Qt::NoModifier, "5"},
        {Qt::Key_0, Qt::KeypadModifier, "0"},
        {Qt::Key_9, Qt::NoModifier, "9"},
        {Qt::Key_Asterisk, Qt::NoModifier, "*"},
        {Qt::Key_Plus, Qt::ShiftModifier, "+"},
        {Qt::Key_Minus, Qt::NoModifier, "-"},
        {Qt::Key_Period, Qt::NoModifier, "."},
        {Qt::Key_Slash, Qt::NoModifier, "/"},
        {Qt::Key_Equal, Qt::NoModifier, "="},
        {Qt::Key_Enter, Qt::KeypadModifier, "0.250"},
        {Qt::Key_Return, Qt::NoModifier, "-"},
        {Qt::Key_5, Qt::ControlModifier, "-"},
        {Qt::Key_Plus, Qt::AltModifier, "-"},
        {Qt::Key_X, Qt::NoModifier, "x"}, // Qt's own way into the current cell
    };
    clickCell(2, 1);
    for (const auto &each : cases)
        EXPECT_EQ(editorAfter(each.key, each.modifiers), each.text) << each.key;
    EXPECT_EQ(weights(1), "0.25 0.25 0.5");
}

TEST_F(tableTyping, appliesToAllSelectedCells)
{
    const struct {
        const char *keys;
        Qt::Key confirm;
        const char *column;
    } cases[] = {
        {"0.5", Qt::Key_Return, "0.500 0.500 0.500 1.000"},
        {"+=.1", Qt::Key_Enter, "0.600 0.350 0.434 1.000"},
        {"/=2", Qt::Key_Return, "0.250 0.125 0.167 1.000"},
        {"*=0", Qt::Key_Return, "0.000 0.000 0.000 1.000"},
        {"0.5", Qt::Key_Escape, "0.500 0.250 0.334 1.000"},
    };
    for (const auto &each : cases) {
        selectCells(1, 0, 3, 0);
        const std::string items = undoItems();
        typeKeys(each.keys, each.confirm);
        EXPECT_EQ(shownColumn(0), each.column);
        if (each.confirm != Qt::Key_Escape)
            mel("undo");
        EXPECT_EQ(undoItems(), items) << each.keys << ": one step";
        EXPECT_EQ(weights(0), "0.5 0.3 0.2");
    }
    EXPECT_EQ(takeErrors(), "");
}

TEST_F(tableTyping, goesToTheFirstCellThatCanBeEdited)
{
    makeSkin("hat", {"ankle", "tail"}, {{1, 0}, {1, 0}, {1, 0}, {1, 0}});
    load("body hat");
    const struct {
        const char *what;
        int top, left, bottom, right;
        const char *cell;
    } cases[] = {
        {"a weight", 3, 1, 4, 2, "3 1"},
        {"below the shape row", 0, 0, 2, 0, "1 0"},
        {"beside joints of another shape", 1, 3, 7, 3, "6 3"},
        {"behind a locked column", 1, 1, 2, 2, "1 1"},
    };
    for (const auto &each : cases) {
        selectCells(each.top, each.left, each.bottom, each.right);
        view_->setFocus();
        QTest::keyClick(view_, Qt::Key_7);
        EXPECT_EQ(editedCell(), each.cell) << each.what;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QTest::qWait(1);
    }
    lockColumn(1);
    selectCells(1, 1, 2, 2);
    EXPECT_EQ(editorAfter(Qt::Key_7), "7");
    EXPECT_EQ(view_->currentIndex(), model_->index(1, 2)) << "behind a locked column";
}

TEST_F(tableTyping, showsTheCellThatItOpens)
{
    makeSkin("band", {"hip"}, std::vector<std::vector<double>>(80, {1.0}));
    load("band");
    clickCell(2, 0);
    view_->scrollToBottom();
    QTest::keyClick(view_, Qt::Key_7);
    EXPECT_EQ(editedCell(), "2 0");
    EXPECT_TRUE(view_->viewport()->rect().contains(QApplication::focusWidget()->geometry()));
}

// Nor does the view look for a cell that begins with the key, and select that.
TEST_F(tableTyping, opensNothingWhereAllIsLocked)
{
    lockRow(1);
    EXPECT_EQ(editorAfter(Qt::Key_1), "-");
    EXPECT_EQ(selectedRows(), "1");
    view_->clearSelection();
    view_->setCurrentIndex(QModelIndex());
    EXPECT_EQ(editorAfter(Qt::Key_Enter), "-");
}

TEST_F(tableTyping, keepsTheTableForTheWayBack)
{
    clickCell(1, 0);
    typeKeys("1");
    EXPECT_EQ(shown(1), "1.000 0.000 0.000");
    call("restorePreviousWeights");
    EXPECT_EQ(shown(1), "0.500 0.300 0.200");
}

TEST_F(tableTyping, staysInTheTableForTheNextValue)
{
    clickCell(1, 0);
    typeKeys("0.6");
    EXPECT_EQ(QApplication::focusWidget(), view_);
    QTest::keyClick(view_, Qt::Key_Down);
    typeKeys("0.7");
    EXPECT_EQ(cellText(1, 0) + ' ' + cellText(2, 0), "0.600 0.700");
}
