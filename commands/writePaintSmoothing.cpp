// SPDX-License-Identifier: Apache-2.0
#include "commands/influenceHold.h"
#include "commands/selectionHold.h"
#include "commands/shapeWriter.h"
#include "commands/toolHold.h"
#include "commands/writers.h"

#include <maya/MGlobal.h>

// Each hold ends before those above it: the selection comes back last.
MStatus writePaintSmoothing(preparedEdit &edit)
{
    if (!keepDisplaced(edit))
        return MStatus::kFailure;
    const selectionHold selection;
    const toolHold tool;
    const influenceHold joints(edit.heldJoints);
    MStatus status;
    // A tool that could not be set up would flood another joint, or other vertices.
    for (unsigned int i = 0; status && i < edit.scripts.length(); ++i)
        status = MGlobal::executeCommand(edit.scripts[i]);
    if (!status)
        edit.oldWeights.clear(); // what writes is the last statement: nothing was displaced
    return status;
}
