// SPDX-License-Identifier: Apache-2.0
// What exists once per loaded plug-in. Two pointers to the editor, and two flags that keep it from
// reacting to its own changes of Maya's selection. Everything runs on Maya's main thread.
#pragma once

class korvexWindow;
class weightTableModel;

// The one editor window, and its model. Null until korvexCmd first opens it.
extern korvexWindow *activeWindow;
extern weightTableModel *activeModel;

// While true, each change of Maya's selection reloads the table. Operations that change the
// selection themselves save it, clear it and put it back.
extern bool autoUpdate;

// True only while the editor itself replaces Maya's selection.
extern bool selectionSetByEditor;
