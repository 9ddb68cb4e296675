// SPDX-License-Identifier: Apache-2.0
// A loaded table whose locks can be read as text, in the table and in the scene.
#pragma once

#include "support/editorScene.h"

class LockScene : public EditorScene
{
protected:
    // A mesh "body" of four vertices with the joints hip, knee and ankle; each has some weight.
    void loadBody();

    // What is locked in the table, a word per row and a character per cell: "... .#. ###".
    std::string locked() const;

    // What is stored on a skin cluster: "joints |hip; vertices 1 3; cells 2[0]|knee 2[1]". A cell's
    // number is its vertex, its index that of the element; an emptied element has no name. Empty
    // for what holds no lock.
    static std::string stored(const std::string &skinCluster = "bodySkin");

    // Whether Maya has the joint locked.
    static bool isLockedInMaya(const std::string &joint);

    // Selects parts of the table in that order, and nothing else: "c0 r2 3:1" is a column, a row
    // and a cell. Then calls a slot.
    void on(const std::string &parts, const char *slot);
};
