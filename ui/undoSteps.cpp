// SPDX-License-Identifier: Apache-2.0
// What Ctrl+Z and Ctrl+Y do for each control of the window.
#include "ui/korvexWindow.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include "model/weightTableModel.h"
#include "ui/weightScale.h"
#include "ui/weightTableView.h"

// All that can have the keyboard, and the window itself, which gets the keys if nothing has.
void korvexWindow::watchKeys()
{
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    for (int i = 0; i < widgets.size(); ++i) {
        if (widgets.at(i)->focusPolicy() != Qt::NoFocus)
            widgets.at(i)->installEventFilter(this);
    }
    installEventFilter(this);
}

void korvexWindow::buildUndoTable()
{
    const keyboardUndo::step filter = [this] { filterButton_->setChecked(otherFilterState_); };
    const keyboardUndo::step highlight = [this] {
        highlightButton_->setChecked(otherHighlightState_);
    };
    const keyboardUndo::step mode = [this] { checkMode(wasAbsolute_); };
    const keyboardUndo::step load = [this] {
        model_->undoLoad();
        model_->keepPreviousWeights();
    };
    const keyboardUndo::step lock = [this] { model_->newLockSelected(); };
    const keyboardUndo::step unlock = [this] { model_->newUnlockSelected(); };
    const struct {
        QWidget *control;
        keyboardUndo::step undo;
        keyboardUndo::step redo;
    } rows[] = {
        {maxInfluenceEdit_, [this] { showMaximum(lastMaxInfluence_); },
         [this] { showMaximum(newMaxInfluence_); }},
        {loadButton_, load, load},
        {filterButton_, filter, filter},
        {highlightButton_, highlight, highlight},
        {modeGroup_, mode, mode},
        {lockButton_, unlock, lock},
        {unlockButton_, lock, unlock},
        {unlockAllButton_, [this] { model_->restoreLocks(); }, [this] { model_->newUnlockAll(); }},
    };
    for (const auto &row : rows)
        keyboardUndo_.add(row.control, keyboardUndo::oneStep, row.undo, row.redo);
    // One step as well, but locks may refuse it; then it can be tried again.
    keyboardUndo_.add(
        precisionEdit_, keyboardUndo::manySteps, [this] { showPrecision(lastPrecisionDigits_); },
        [this] { showPrecision(newPrecisionDigits_); });
    addFloodRowsToUndo();
    addWeightsToUndo();
}

void korvexWindow::addFloodRowsToUndo()
{
    for (floodRow &row : floodRows_) {
        const keyboardUndo::step undo = [this, &row] {
            showPreviousSetting(row, precisionDigits_);
        };
        const keyboardUndo::step redo = [&row] { showNewerSetting(row); };
        keyboardUndo_.add(row.edit, keyboardUndo::oneStep, undo, redo);
        keyboardUndo_.add(row.slider, keyboardUndo::oneStep, undo, redo);
    }
}

// What wrote weights goes through Maya's undo queue, so that table and skin clusters agree.
void korvexWindow::addWeightsToUndo()
{
    const keyboardUndo::step undo = [this] {
        model_->undoLastAction();
        alignValueRow();
    };
    const keyboardUndo::step redo = [this] {
        model_->redoLastAction();
        alignValueRow();
    };
    QWidget *const controls[] = {applyInfluenceButton_, floodApplyButton_, tableView_,
                                 roundButton_,          valueEdit_,        valueSlider_};
    for (QWidget *control : controls)
        keyboardUndo_.add(control, keyboardUndo::manySteps, undo, redo);
}

void korvexWindow::showMaximum(int maximum)
{
    model_->setMaxValue(maximum);
    maxInfluenceEdit_->setText(QString::number(maximum));
}

void korvexWindow::showPrecision(int digits)
{
    if (takePrecision(digits))
        precisionEdit_->setText(fixedText(valueAt(1, stepsPerUnit(digits)), digits));
}

void korvexWindow::checkMode(bool isAbsolute)
{
    const QLatin1String name(isAbsolute ? "absolute" : "relative");
    modeGroup_->findChild<QRadioButton *>(name)->setChecked(true);
}
