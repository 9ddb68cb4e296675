// SPDX-License-Identifier: Apache-2.0
#include "commands/undoReplay.h"

#include "commands/maximumSwitch.h"
#include "commands/shapeWriter.h"

MStatus replayDisplaced(preparedEdit &edit)
{
    if (edit.oldWeights.isEmpty())
        return MStatus::kFailure;
    shapeWriters writers(edit, normalization::wherePossible);
    if (!writers.areReady())
        return MStatus::kFailure;
    switchMaximumsBack(edit);
    MStatus status = MStatus::kFailure;
    for (int i = 0; i < edit.oldWeights.size(); ++i) {
        MDoubleArray &old = edit.oldWeights[i];
        if (old.length() == 0)
            continue; // a write that failed displaced nothing
        const weightWrite &write = edit.writes.at(i);
        const MObject &component = write.displaced.isNull() ? write.component : write.displaced;
        status = writers.of(write).setAll(component, old, nullptr);
    }
    return status;
}
