// SPDX-License-Identifier: Apache-2.0
#include "ui/controlParts.h"

#include <QFontInfo>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace
{

const int kSmallestFont = 7;
const char kCheckedButtonStyle[] =
    "QPushButton:checked { background-color: lightGray; color: black}";

} // namespace

QPushButton *createButton(const char *text, const char *objectName, const char *toolTip,
                          buttonKind kind)
{
    QPushButton *button = new QPushButton(QLatin1String(text));
    button->setObjectName(QLatin1String(objectName));
    button->setToolTip(QLatin1String(toolTip));
    button->setFixedWidth(kButtonWidth);
    if (kind == buttonKind::check) {
        button->setCheckable(true);
        button->setStyleSheet(QLatin1String(kCheckedButtonStyle));
    }
    return button;
}

QLineEdit *createEdit(const char *text, const char *objectName, const char *toolTip)
{
    QLineEdit *edit = new QLineEdit(QLatin1String(text));
    edit->setObjectName(QLatin1String(objectName));
    edit->setToolTip(QLatin1String(toolTip));
    return edit;
}

QLabel *createLabel(const char *text, QWidget *control)
{
    QLabel *label = new QLabel(QLatin1String(text));
    label->setBuddy(control);
    label->setToolTip(control->toolTip());
    return label;
}

QHBoxLayout *createEditRow(const char *label, QLineEdit *edit, int distance, QPushButton *button)
{
    QHBoxLayout *row = new QHBoxLayout;
    row->addWidget(createLabel(label, edit));
    row->addWidget(edit);
    row->addSpacing(distance);
    row->addWidget(button);
    row->addStretch();
    return row;
}

QFont fittedFont(QFont font, const std::function<bool(const QFont &)> &fits)
{
    int height = QFontInfo(font).pixelSize();
    while (height > kSmallestFont && !fits(font))
        font.setPixelSize(--height);
    return font;
}

void fitFont(QWidget *widget, int width)
{
    widget->setFont(fittedFont(widget->font(), [widget, width](const QFont &font) {
        widget->setFont(font);
        return widget->sizeHint().width() <= width;
    }));
}

QFrame *createSeparator()
{
    QFrame *line = new QFrame;
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}
