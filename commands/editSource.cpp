// SPDX-License-Identifier: Apache-2.0
#include "commands/editSource.h"

MDagPathArray lockedJoints(const editSource &source)
{
    MDagPathArray joints;
    const QList<int> columns = source.locks.joints();
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i) >= 0 && columns.at(i) < source.weights.jointCount())
            joints.append(source.weights.jointPaths[static_cast<unsigned int>(columns.at(i))]);
    }
    return joints;
}
