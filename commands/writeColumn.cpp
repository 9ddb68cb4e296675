// SPDX-License-Identifier: Apache-2.0
#include "commands/influenceHold.h"
#include "commands/shapeWriter.h"
#include "commands/writers.h"

MStatus writeColumn(preparedEdit &edit)
{
    return writeEach(edit, [](shapeWriter &writer, weightWrite &write, MDoubleArray &old) {
        const influenceHold hold(write.heldJoints);
        return writer.setInfluence(write.component, write.influence, write.values, &old);
    });
}
