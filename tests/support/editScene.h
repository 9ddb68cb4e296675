// SPDX-License-Identifier: Apache-2.0
// The loaded plug-in with its window, typed into.
#pragma once

#include "support/editorScene.h"

class EditScene : public EditorScene
{
protected:
    // Rows 1 to 4, under columns hip, knee and ankle.
    void loadBody();

    // Types into a cell that is selected alone, or with whatever is selected. What setData returns.
    bool type(int row, int column, const std::string &text);
    bool typeIntoSelection(int row, int column, const std::string &text);

    // Selects that cell, row or column alone and locks it.
    void lockCell(int row, int column);
    void lockRow(int row);
    void lockColumn(int column);

    // The cells of a row, or the vertices' of a column: "0.500 0.300 0.200".
    std::string shown(int row) const;
    std::string shownColumn(int column) const;
    // Cells of "body", loaded alone, that do not show what the skin cluster holds: "3 1", a line
    // each.
    std::string disagreement() const;

    static std::string undoItems();
};
