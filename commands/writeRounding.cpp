// SPDX-License-Identifier: Apache-2.0
#include "commands/shapeWriter.h"
#include "commands/writers.h"

MStatus writeRounding(preparedEdit &edit)
{
    return writeEach(edit, [](shapeWriter &writer, weightWrite &write, MDoubleArray &old) {
        return writer.setAll(write.component, write.values, &old);
    });
}
