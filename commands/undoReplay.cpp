// SPDX-License-Identifier: Apache-2.0
#include "commands/undoReplay.h"

#include "commands/maximumSwitch.h"
#include "commands/shapeWriter.h"

MStatus replayDisplaced(const preparedEdit &edit)
{
    if (edit.oldWeights.isEmpty())
        return MStatus::kFailure;
    shapeWriters writers(edit, normalization::wherePossible);
    if (!writers.areReady())
        return MStatus::kFailure;
    switchMaximumsBack(edit);
    MStatus status = MStatus::kFailure;
    for (int i = 0; i < edit.oldWeights.size(); ++i) {
        const MDoubleArray &old = edit.oldWeights.at(i);
        if (old.length() == 0)
            continue; // a write that failed displaced nothing
        const weightWrite &write = edit.writes.at(i);
        MDoubleArray replaced;
        status = writers.of(write).setAll(write.component, old, replaced);
    }
    return status;
}
