// SPDX-License-Identifier: Apache-2.0
// What the window's rows of controls are made of. Sizes are pixels.
//
// Controls come without a parent: the window gives them one with the layout that they are put into.
#pragma once

#include <cstddef>
#include <functional>

#include <QFont>
#include <QObject>

class QFrame;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

const int kButtonWidth = 140;

// A signal of a control and the slot that it starts.
struct controlConnection {
    QObject *sender;
    const char *signal;
    const char *slot;
};

template <std::size_t count>
void connectAll(const controlConnection (&connections)[count], QObject *receiver)
{
    for (const controlConnection &each : connections)
        QObject::connect(each.sender, each.signal, receiver, each.slot);
}

enum class buttonKind { push, check };

QPushButton *createButton(const char *text, const char *objectName, const char *toolTip,
                          buttonKind kind = buttonKind::push);

QLineEdit *createEdit(const char *text, const char *objectName, const char *toolTip);

// Names `control`, to assistive software too, and has its tool tip.
QLabel *createLabel(const char *text, QWidget *control);

// An edit behind its label, and at a distance the button that acts on what it says.
QHBoxLayout *createEditRow(const char *label, QLineEdit *edit, int distance, QPushButton *button);

// The font, made smaller until it `fits`, though not illegibly small.
QFont fittedFont(QFont font, const std::function<bool(const QFont &)> &fits);

// Gives the widget the font with which what it shows fits into so many pixels.
void fitFont(QWidget *widget, int width);

QFrame *createSeparator();
