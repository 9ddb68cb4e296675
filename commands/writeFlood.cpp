// SPDX-License-Identifier: Apache-2.0
#include "commands/shapeWriter.h"
#include "commands/writers.h"

MStatus writeFlood(preparedEdit &edit)
{
    return writeEach(edit, [](shapeWriter &writer, weightWrite &write, MDoubleArray &old) {
        return writer.setInfluence(write.component, write.influence, write.value, &old);
    });
}
