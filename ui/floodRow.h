// SPDX-License-Identifier: Apache-2.0
// A setting of the flood panel: its label, an edit, which is what counts, and a slider, a handier
// way to fill the edit. The one follows the other when the user has finished with it.
#pragma once

#include <QString>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QSlider;

struct floodRow {
    QLabel *label = nullptr;
    QLineEdit *edit = nullptr;
    QSlider *slider = nullptr;
    int scale = 1; // slider steps per unit; 1: the setting is a count and has no decimal places
    // The step that the row stood at before the user's last action on it.
    int storedStep = 0;
    QString newerText; // of the edit, when that was put back
};

struct floodRowDescription {
    const char *label;
    const char *name; // of the controls: "opacity" for "opacityEdit" and "opacitySlider"
    const char *toolTip;
    const char *text;
    int scale;
    int maximum; // steps
    int start;   // step
};

floodRow createFloodRow(const floodRowDescription &description);
QHBoxLayout *layoutOf(const floodRow &row);
void enableRow(const floodRow &row, bool isEnabled);

// The user has confirmed the edit. A text that is not a number leaves the slider alone.
void moveSliderToEdit(floodRow &row);

// The user has moved the slider. The edit shows its value with so many decimal places.
void writeSliderIntoEdit(floodRow &row, int digits);

// What the row said before the user's last action on it, and what it said after that.
void showPreviousSetting(floodRow &row, int digits);
void showNewerSetting(floodRow &row);
