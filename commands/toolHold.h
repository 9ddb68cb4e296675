// SPDX-License-Identifier: Apache-2.0
// Lets MEL change the tool in the user's hand, and whether components and vertices can be picked in
// object mode, and puts them back when it goes. Of the kinds of components only all together and
// vertices are remembered. A user who holds the paint tool for skin weights keeps it, with its new
// settings. Not on the undo queue.
#pragma once

#include <maya/MString.h>

class toolHold
{
public:
    toolHold();
    ~toolHold();

private:
    toolHold(const toolHold &);            // not copied
    toolHold &operator=(const toolHold &); // not assigned

    MString context_;
    int areComponentsPickable_ = 0;
    int areVerticesPickable_ = 0;
};
