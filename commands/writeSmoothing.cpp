// SPDX-License-Identifier: Apache-2.0
#include "commands/maximumSwitch.h"
#include "commands/selectionHold.h"
#include "commands/shapeWriter.h"
#include "commands/writers.h"

#include "model/messages.h"

#include <maya/MGlobal.h>

MStatus writeSmoothing(preparedEdit &edit)
{
    if (edit.scripts.length() == 0) {
        MGlobal::displayError(kSmoothingNotSetUp);
        return MStatus::kFailure;
    }
    if (!keepDisplaced(edit))
        return MStatus::kFailure;
    noteMaximumSwitches(edit);
    const selectionHold hold;
    const MStatus status = MGlobal::executeCommand(edit.scripts[0], true, false);
    if (!status) {
        switchMaximumsBack(edit);
        edit.oldWeights.clear(); // what writes is the last statement: nothing was displaced
    }
    return status;
}
