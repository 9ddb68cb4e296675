// SPDX-License-Identifier: Apache-2.0
// Lets MEL select while it lives. The editor does not react to that, and at the end the selection
// is what it was, with the objects that Maya offers components of. Not on the undo queue.
#pragma once

#include "plugin/sceneCallbacks.h"

#include <maya/MSelectionList.h>

class selectionHold
{
public:
    selectionHold();
    ~selectionHold();

private:
    selectionHold(const selectionHold &);            // not copied
    selectionHold &operator=(const selectionHold &); // not assigned

    const ownSelectionChange own_;
    MSelectionList selected_;
    MSelectionList hilited_;
};
