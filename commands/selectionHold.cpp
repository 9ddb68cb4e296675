// SPDX-License-Identifier: Apache-2.0
#include "commands/selectionHold.h"

#include <maya/MGlobal.h>

selectionHold::selectionHold()
{
    MGlobal::getActiveSelectionList(selected_, true);
    MGlobal::getHiliteList(hilited_);
}

selectionHold::~selectionHold()
{
    MGlobal::setActiveSelectionList(selected_, MGlobal::kReplaceList);
    // After the selection: vertices that are selected put their mesh on this list.
    MGlobal::setHiliteList(hilited_);
}
