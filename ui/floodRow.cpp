// SPDX-License-Identifier: Apache-2.0
#include "ui/floodRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "ui/controlParts.h"
#include "ui/weightScale.h"

namespace
{

const int kLabelWidth = 160; // pixels, as the others
const int kEditWidth = 70;
const int kSliderWidth = 110;
const int kPagesPerUnit = 10;

QSlider *createSlider(const floodRowDescription &description)
{
    QSlider *slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QLatin1String(description.name) + QLatin1String("Slider"));
    slider->setToolTip(QLatin1String(description.toolTip));
    slider->setFixedWidth(kSliderWidth);
    slider->setRange(0, description.maximum);
    slider->setPageStep(qMax(1, description.scale / kPagesPerUnit));
    slider->setSingleStep(qMax(1, slider->pageStep() / kPagesPerUnit));
    slider->setValue(description.start);
    return slider;
}

QString settingText(const floodRow &row, int step, int digits)
{
    return fixedText(valueAt(step, row.scale), row.scale == 1 ? 0 : digits);
}

} // namespace

floodRow createFloodRow(const floodRowDescription &description)
{
    const QByteArray editName = QByteArray(description.name) + "Edit";
    floodRow row;
    row.edit = createEdit(description.text, editName.constData(), description.toolTip);
    row.edit->setFixedWidth(kEditWidth);
    row.label = createLabel(description.label, row.edit);
    fitFont(row.label, kLabelWidth);
    row.label->setFixedWidth(kLabelWidth);
    row.slider = createSlider(description);
    row.scale = description.scale;
    row.storedStep = description.start;
    return row;
}

QHBoxLayout *layoutOf(const floodRow &row)
{
    QHBoxLayout *layout = new QHBoxLayout;
    layout->addWidget(row.label);
    layout->addWidget(row.edit);
    layout->addWidget(row.slider);
    return layout;
}

void enableRow(const floodRow &row, bool isEnabled)
{
    row.label->setEnabled(isEnabled);
    row.edit->setEnabled(isEnabled);
    row.slider->setEnabled(isEnabled);
}

void moveSliderToEdit(floodRow &row)
{
    const typedNumber typed = numberFrom(row.edit->text());
    if (!typed.isValid)
        return;
    row.storedStep = row.slider->value();
    row.slider->setValue(lastStepBefore(typed.value, row.scale));
}

void writeSliderIntoEdit(floodRow &row, int digits)
{
    const typedNumber shown = numberFrom(row.edit->text());
    if (shown.isValid)
        row.storedStep = lastStepBefore(shown.value, row.scale);
    // The position is ahead of the value while Qt tells of a step by key, wheel or click.
    const QString text = settingText(row, row.slider->sliderPosition(), digits);
    if (row.edit->text() == text)
        return;
    row.edit->selectAll();
    row.edit->insert(text);
}

void showPreviousSetting(floodRow &row, int digits)
{
    row.newerText = row.edit->text();
    row.edit->setText(settingText(row, row.storedStep, digits));
    row.slider->setValue(row.storedStep);
}

// The slider's step is stored again.
void showNewerSetting(floodRow &row)
{
    row.edit->setText(row.newerText);
    moveSliderToEdit(row);
}
