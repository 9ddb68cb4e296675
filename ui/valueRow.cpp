// SPDX-License-Identifier: Apache-2.0
// The row that sets the selected weights, or moves them all by the same amount.
//
// A drag begins with a selection. In relative mode slider and edit then show by how much the cells
// are to differ from where they were, and stay where the user leaves them: the next release says
// the whole difference again, not one on top. In absolute mode they show the weight itself.
#include "ui/korvexWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

#include "model/messages.h"
#include "model/weightTableModel.h"
#include "ui/controlParts.h"
#include "ui/selectedCells.h"
#include "ui/weightScale.h"
#include "ui/weightTableView.h"

#include <maya/MGlobal.h>

namespace
{

const int kModeMargin = 5;
const int kEditWidth = 70;
const int kSliderWidth = 400;
const int kPagesPerUnit = 10;

const char kBlank[] = " ";
const char kUnmoved[] = "0.0";

QRadioButton *createMode(const char *text, const char *toolTip)
{
    QRadioButton *mode = new QRadioButton(QLatin1String(text));
    mode->setObjectName(QLatin1String(text));
    mode->setToolTip(QLatin1String(toolTip));
    return mode;
}

QSlider *createSlider()
{
    QSlider *slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QLatin1String("valueSlider"));
    slider->setToolTip(
        QLatin1String("Sets or moves the selected weights when its handle is let go of. "
                      "Keys and the wheel only fill the edit."));
    slider->setFixedWidth(kSliderWidth);
    slider->setTickPosition(QSlider::TicksBothSides);
    return slider;
}

} // namespace

QLayout *korvexWindow::buildValueRow()
{
    modeGroup_ = new QGroupBox;
    modeGroup_->setObjectName(QLatin1String("valueMode"));
    QVBoxLayout *modes = new QVBoxLayout(modeGroup_);
    modes->setContentsMargins(kModeMargin, kModeMargin, kModeMargin, kModeMargin);
    QRadioButton *absolute =
        createMode("absolute", "The value is the weight that the cells are to have.");
    QRadioButton *relative = createMode("relative", "The value is added to the cells' weights.");
    modes->addWidget(absolute);
    modes->addWidget(relative);
    relative->setChecked(true);

    valueEdit_ =
        createEdit("", "valueEdit", "The value for the selected weights. Press Enter to apply it.");
    valueEdit_->setFixedWidth(kEditWidth);
    valueSlider_ = createSlider();
    fitValueSliderRange();

    const controlConnection connections[] = {
        {absolute, SIGNAL(toggled(bool)), SLOT(setAbsoluteMode(bool))},
        {valueSlider_, SIGNAL(valueChanged(int)), SLOT(sliderChanged(int))},
        {valueSlider_, SIGNAL(sliderReleased()), SLOT(sliderReleased())},
        {valueEdit_, SIGNAL(returnPressed()), SLOT(valueEditChanged())},
    };
    connectAll(connections, this);

    QHBoxLayout *row = new QHBoxLayout;
    row->addWidget(modeGroup_);
    row->addWidget(valueEdit_);
    row->addWidget(valueSlider_);
    row->addStretch();
    return row;
}

void korvexWindow::setAbsoluteMode(bool isAbsolute)
{
    wasAbsolute_ = isAbsolute_;
    isAbsolute_ = isAbsolute;
    fitValueSlider();
    acted(modeGroup_);
}

void korvexWindow::fitValueSlider()
{
    fitValueSliderRange();
    alignValueRow();
}

void korvexWindow::fitValueSliderRange()
{
    const sliderRange range = valueSliderRange(precisionDigits_, isAbsolute_);
    valueSlider_->setRange(range.minimum, range.maximum);
    valueSlider_->setTickInterval(range.maximum);
    valueSlider_->setPageStep(range.maximum / kPagesPerUnit);
}

// The slider first: it writes its step into the edit.
void korvexWindow::showInValueRow(int step, const QString &text)
{
    valueSlider_->setValue(step);
    valueEdit_->setText(text);
}

void korvexWindow::resetValueRow()
{
    showInValueRow(0, QLatin1String(isAbsolute_ ? kBlank : kUnmoved));
}

// Begins a drag of what is selected now.
//
// Deliberate: also in relative mode the slider starts at the weight of a single cell, while the
// edit says that it has not been moved (startsAtTheCellsWeight).
void korvexWindow::alignValueRow()
{
    model_->renewCurrentCellValue();
    const QItemSelection selection = tableView_->selectionModel()->selection();
    const QModelIndex only = onlySelected(selection);
    if (!only.isValid() && !selection.isEmpty()) {
        resetValueRow();
        return;
    }
    const QString text = only.data().toString();
    if (text.isEmpty())
        showInValueRow(0, QLatin1String(kBlank));
    else
        showInValueRow(nearestStep(text.toDouble(), stepsPerUnit(precisionDigits_)),
                       isAbsolute_ ? text : QLatin1String(kUnmoved));
}

bool korvexWindow::isWeightSelected() const
{
    const weightTableModel &model = *model_;
    return firstSelected(tableView_->selectionModel()->selection(),
                         [&model](const QModelIndex &index) { return model.showsWeight(index); })
        .isValid();
}

void korvexWindow::sliderChanged(int step)
{
    if (isWeightSelected())
        valueEdit_->setText(
            fixedText(valueAt(step, stepsPerUnit(precisionDigits_)), precisionDigits_));
}

void korvexWindow::sliderReleased()
{
    if (canDrag())
        drag(valueAt(valueSlider_->value(), stepsPerUnit(precisionDigits_)), valueSlider_);
}

void korvexWindow::valueEditChanged()
{
    if (!canDrag())
        return;
    const QString text = valueEdit_->text();
    const typedNumber value = numberFrom(text);
    if (!value.isValid) {
        MGlobal::displayWarning(kNoNumberForCells);
        return;
    }
    showInValueRow(nearestStep(value.value, stepsPerUnit(precisionDigits_)), text);
    drag(value.value, valueEdit_);
}

// Whether a weight is selected. If not, says so and empties the row.
bool korvexWindow::canDrag()
{
    if (isWeightSelected())
        return true;
    const bool isAnySelected = tableView_->selectionModel()->hasSelection();
    MGlobal::displayWarning(isAnySelected ? kNoValidCellForValue : kNoCellForValue);
    showInValueRow(0, QLatin1String(kBlank));
    return false;
}

// Nothing that was not written is left standing in the row as if it were so.
void korvexWindow::drag(double value, QWidget *control)
{
    model_->dragSlider(value, isAbsolute_);
    if (!actedIfWritten(control))
        alignValueRow();
}

void korvexWindow::updateSliderValue(double newValue, double, double)
{
    if (isAbsolute_)
        showInValueRow(nearestStep(newValue, stepsPerUnit(precisionDigits_)),
                       fixedText(newValue, precisionDigits_));
}
