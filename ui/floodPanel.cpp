// SPDX-License-Identifier: Apache-2.0
// The panel that smooths weights and floods a joint with one weight.
#include "ui/korvexWindow.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "model/messages.h"
#include "model/weightTableModel.h"
#include "ui/controlParts.h"
#include "ui/weightScale.h"

#include <maya/MGlobal.h>

namespace
{

const int kOperationHeight = 24;
const int kDistance = 10;

const int kDifferenceScale = 10000; // steps from 0 to 1
const floodRowDescription kRows[] = {
    {"Required Weight Difference:", "requiredWeightDifference",
     "Smooth a vertex only if its weights differ by this much from those of its neighbours.",
     "0.000", kDifferenceScale, 10 * kDifferenceScale, 0},
    {"Smoothing Iterations:", "smoothingIterations", "How many times to smooth.", "5", 1, 100, 5},
    {"Opacity:", "opacity", "The part of the value that is applied, from 0 to 1.", "1.000",
     kDifferenceScale, kDifferenceScale, kDifferenceScale},
    {"Value:", "floodValue", "The weight to flood with, or the strength of the smoothing.", "1.000",
     kDifferenceScale, kDifferenceScale, kDifferenceScale},
};

} // namespace

QLayout *korvexWindow::buildFloodPanel()
{
    QVBoxLayout *rows = new QVBoxLayout;
    for (int i = 0; i < kFloodRowCount; ++i) {
        floodRows_[i] = createFloodRow(kRows[i]);
        rows->addLayout(layoutOf(floodRows_[i]));
    }
    operationBox_ = new QComboBox;
    operationBox_->setObjectName(QLatin1String("floodOperation"));
    operationBox_->setToolTip(QLatin1String("What the button beside does."));
    operationBox_->setFixedSize(kButtonWidth, kOperationHeight);
    operationBox_->addItem(QLatin1String("Smooth Skin Weight"));
    operationBox_->addItem(QLatin1String("Smooth(Per Influence)"));
    operationBox_->addItem(QLatin1String("Replace(Per Influence)"));
    fitFont(operationBox_, kButtonWidth);
    floodApplyButton_ =
        createButton("Apply", "Apply", "Smooth or flood with the settings at the left.");
    connectFloodPanel();
    enableFloodRows(operationBox_->currentIndex());

    QHBoxLayout *panel = new QHBoxLayout;
    panel->addLayout(rows);
    panel->addSpacing(kDistance);
    panel->addWidget(operationBox_);
    panel->addWidget(floodApplyButton_);
    panel->addStretch();
    return panel;
}

void korvexWindow::connectFloodPanel()
{
    const struct {
        const char *editSlot;
        const char *sliderSlot;
    } rowSlots[kFloodRowCount] = {
        {SLOT(requiredWeightDifferenceEditChanged()),
         SLOT(requiredWeightDifferenceSliderChanged())},
        {SLOT(smoothingIterationsEditChanged()), SLOT(smoothingIterationsSliderChanged())},
        {SLOT(opacityEditChanged()), SLOT(opacitySliderChanged())},
        {SLOT(floodEditChanged()), SLOT(floodSliderChanged())},
    };
    for (int i = 0; i < kFloodRowCount; ++i) {
        const floodRow &row = floodRows_[i];
        const controlConnection connections[] = {
            {row.edit, SIGNAL(returnPressed()), rowSlots[i].editSlot},
            {row.slider, SIGNAL(sliderReleased()), rowSlots[i].sliderSlot},
            {row.slider, SIGNAL(actionTriggered(int)), SLOT(floodSliderStepped())},
        };
        connectAll(connections, this);
    }
    const controlConnection connections[] = {
        {operationBox_, SIGNAL(currentIndexChanged(int)), SLOT(floodOperationBoxChanged(int))},
        {floodApplyButton_, SIGNAL(clicked()), SLOT(applyFlood())},
    };
    connectAll(connections, this);
}

// REQUIRES: an index of the box.
void korvexWindow::enableFloodRows(int operation)
{
    const bool isSmoothing = operation == kSmoothSkinWeight;
    enableRow(floodRows_[kWeightDifference], isSmoothing);
    enableRow(floodRows_[kIterations], isSmoothing);
    enableRow(floodRows_[kOpacity], !isSmoothing);
    enableRow(floodRows_[kFloodValue], !isSmoothing);
}

void korvexWindow::floodOperationBoxChanged(int operation)
{
    if (operation < 0 || operation >= kFloodOperationCount)
        MGlobal::displayError(kNoFloodOperation);
    else
        enableFloodRows(operation);
}

void korvexWindow::applyFlood()
{
    switch (operationBox_->currentIndex()) {
    case kSmoothSkinWeight:
        return applySmoothSkinWeights();
    case kSmoothPerInfluence:
        return applySkinPaintSmooth();
    case kReplacePerInfluence:
        return replaceValue();
    default:
        MGlobal::displayError(kNoFloodOperation);
    }
}

void korvexWindow::applySmoothSkinWeights()
{
    const typedNumber difference = numberFrom(floodRows_[kWeightDifference].edit->text());
    bool isCount = false;
    const int iterations = floodRows_[kIterations].edit->text().toInt(&isCount, 10);
    if (!difference.isValid || !isCount) {
        MGlobal::displayError(kInvalidSmoothing);
        return;
    }
    model_->applySmoothSkinWeights(difference.value, iterations);
    actedIfWritten(floodApplyButton_);
}

void korvexWindow::applySkinPaintSmooth()
{
    const typedNumber value = floodValue();
    if (!value.isValid)
        return;
    model_->applySkinPaintSmooth(value.value);
    actedIfWritten(floodApplyButton_);
}

void korvexWindow::replaceValue()
{
    const typedNumber value = floodValue();
    if (!value.isValid)
        return;
    model_->replaceValue(value.value);
    actedIfWritten(floodApplyButton_);
}

// What opacity leaves of the value. Says so if there is none.
typedNumber korvexWindow::floodValue() const
{
    typedNumber value = numberFrom(floodRows_[kFloodValue].edit->text());
    const typedNumber opacity = numberFrom(floodRows_[kOpacity].edit->text());
    value.isValid =
        value.isValid && opacity.isValid && opacity.value >= 0.0 && opacity.value <= 1.0;
    value.value *= opacity.value;
    if (!value.isValid)
        MGlobal::displayError(kInvalidOpacity);
    return value;
}

void korvexWindow::confirmFloodEdit(floodRow &row)
{
    moveSliderToEdit(row);
    acted(row.edit);
}

void korvexWindow::releaseFloodSlider(floodRow &row)
{
    writeSliderIntoEdit(row, precisionDigits_);
    acted(row.slider);
}

// A key, the wheel or a click beside the handle has moved a slider: there is no release to wait
// for.
void korvexWindow::floodSliderStepped()
{
    for (floodRow &row : floodRows_) {
        if (row.slider == sender() && !row.slider->isSliderDown())
            releaseFloodSlider(row);
    }
}

void korvexWindow::requiredWeightDifferenceEditChanged()
{
    confirmFloodEdit(floodRows_[kWeightDifference]);
}

void korvexWindow::requiredWeightDifferenceSliderChanged()
{
    releaseFloodSlider(floodRows_[kWeightDifference]);
}

void korvexWindow::smoothingIterationsEditChanged()
{
    confirmFloodEdit(floodRows_[kIterations]);
}

void korvexWindow::smoothingIterationsSliderChanged()
{
    releaseFloodSlider(floodRows_[kIterations]);
}

void korvexWindow::opacityEditChanged()
{
    confirmFloodEdit(floodRows_[kOpacity]);
}

void korvexWindow::opacitySliderChanged()
{
    releaseFloodSlider(floodRows_[kOpacity]);
}

void korvexWindow::floodEditChanged()
{
    confirmFloodEdit(floodRows_[kFloodValue]);
}

void korvexWindow::floodSliderChanged()
{
    releaseFloodSlider(floodRows_[kFloodValue]);
}
