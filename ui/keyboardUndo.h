// SPDX-License-Identifier: Apache-2.0
// Ctrl+Z and Ctrl+Y: what the control that acted last has done is taken back, and done again.
//
// A table of controls, each with its way back and its way forth. Most keep one previous state, so
// that a second Ctrl+Z in a row, or a Ctrl+Y without one before it, has nothing left to do; those
// that go through Maya's undo queue go as far as that does.
#pragma once

#include <functional>
#include <vector>

class QKeyEvent;
class QWidget;

class keyboardUndo
{
public:
    enum depth { oneStep, manySteps };
    typedef std::function<void()> step;

    // REQUIRES: the control outlives it, and is added once.
    void add(QWidget *control, depth howFar, const step &undo, const step &redo);

    // A control has acted: it is the one that the next Ctrl+Z is about.
    void acted(QWidget *control);

    // Whether the key is one of the two and there is a control that it is about.
    bool isAboutToHandle(const QKeyEvent &key) { return entryFor(key) != nullptr; }
    // Takes the step that the key asks for. False if isAboutToHandle() is.
    bool handle(const QKeyEvent &key);

private:
    struct entry {
        QWidget *control;
        depth howFar;
        step undo;
        step redo;
        bool isUndone;
    };

    entry *entryFor(const QKeyEvent &key);
    entry *entryOf(const QWidget *control);

    std::vector<entry> entries_;
    QWidget *lastControl_ = nullptr; // acted last
    QWidget *redoControl_ = nullptr; // was taken back last
};
