// SPDX-License-Identifier: Apache-2.0
#include "ui/keyboardUndo.h"

#include <QKeyEvent>

namespace
{

bool isControlAnd(const QKeyEvent &key, int code)
{
    return key.key() == code && key.modifiers() == Qt::ControlModifier;
}

} // namespace

void keyboardUndo::add(QWidget *control, depth howFar, const step &undo, const step &redo)
{
    const entry added = {control, howFar, undo, redo, false};
    entries_.push_back(added);
}

void keyboardUndo::acted(QWidget *control)
{
    lastControl_ = control;
    if (entry *about = entryOf(control))
        about->isUndone = false;
}

bool keyboardUndo::handle(const QKeyEvent &key)
{
    entry *about = entryFor(key);
    if (!about)
        return false;
    const bool isUndo = isControlAnd(key, Qt::Key_Z);
    if (about->howFar == manySteps || about->isUndone != isUndo)
        (isUndo ? about->undo : about->redo)();
    // Not before: a step may go by the control, which then acts.
    about->isUndone = isUndo;
    lastControl_ = about->control;
    if (isUndo)
        redoControl_ = about->control;
    return true;
}

keyboardUndo::entry *keyboardUndo::entryFor(const QKeyEvent &key)
{
    if (isControlAnd(key, Qt::Key_Z))
        return entryOf(lastControl_);
    return isControlAnd(key, Qt::Key_Y) ? entryOf(redoControl_) : nullptr;
}

keyboardUndo::entry *keyboardUndo::entryOf(const QWidget *control)
{
    for (entry &each : entries_) {
        if (each.control == control)
            return &each;
    }
    return nullptr;
}
