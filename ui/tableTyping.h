// SPDX-License-Identifier: Apache-2.0
// Typing over selected cells: the key opens an editor, and what is confirmed there goes to all of
// them (weightTableModel::setData).
#pragma once

class QKeyEvent;
class QTableView;
class weightTableModel;

// Whether the key begins a weight or a change of one ("0.5", "+=0.1"), or is the Enter of the
// number pad.
bool beginsTyping(const QKeyEvent &key);

// Opens an editor on the first of the selected cells that can be edited, and types the key into it;
// Enter leaves the text that is there. Keeps the table as the previous weights before. False if
// nothing was opened. REQUIRES: beginsTyping(key).
bool typeIntoSelection(QKeyEvent &key, QTableView &view, weightTableModel &model);
