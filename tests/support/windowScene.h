// SPDX-License-Identifier: Apache-2.0
// The window of an EditScene on the screen, used as a person uses it.
#pragma once

#include <QTest>

#include "support/editScene.h"

class QLineEdit;
class QSlider;

class WindowScene : public EditScene
{
protected:
    // Shows the window, active and laid out.
    WindowScene();

    template <typename Widget>
    Widget &control(const char *objectName)
    {
        Widget *found = window_->findChild<Widget *>(QLatin1String(objectName));
        if (!found)
            throw std::runtime_error(std::string("no control ") + objectName);
        return *found;
    }

    // Replaces the edit's text and presses Return.
    void enter(const char *edit, const QString &text);
    std::string textOf(const char *edit);

    void click(const char *button);
    void clickCell(int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void clickHeader(Qt::Orientation orientation, int section);
    enum floodOperation { smoothWeights, smoothInfluence, replaceInfluence };
    void chooseOperation(int operation);

    bool isLocked(int row, int column) const;

    // Drags the handle to a step and lets go of it there.
    void dragTo(const char *slider, int step);
    int stepOf(const char *slider);

    // Keys for the table, with which the editor that they open is typed into as well; a Return
    // confirms. Gives the events time to go round.
    void typeKeys(const QString &keys, Qt::Key confirm = Qt::Key_Return);
};
