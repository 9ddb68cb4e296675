// SPDX-License-Identifier: Apache-2.0
#include "commands/shapeWriter.h"
#include "commands/writers.h"

#include "model/limitRows.h"
#include "model/messages.h"

#include <maya/MGlobal.h>

namespace
{

// The leftmost column of the smallest weight; -1 if the row has none.
int smallestWeight(const weightRow &row)
{
    int smallest = -1;
    for (int column = 0; hasCell(row, column); ++column) {
        const double weight = cellOf(row, column);
        if (weight > 0.0 && (smallest < 0 || weight < cellOf(row, smallest)))
            smallest = column;
    }
    return smallest;
}

void layOut(const MDoubleArray &weights, const editedShape &shape, weightRow &row)
{
    for (int column = 0; hasCell(row, column); ++column) {
        const int influence = shape.influenceOfColumn.value(column, -1);
        if (influence >= 0 && influence < static_cast<int>(weights.length()))
            row[entryOf(column)] = weights[static_cast<unsigned int>(influence)];
    }
}

// `old` gets the weights from before the first drop. `isUnknown` tells of a weight whose joint is
// no influence.
MStatus dropSmallest(shapeWriter &writer, const editedShape &shape, const weightWrite &write,
                     cellQuestion mayChange, MDoubleArray &old, bool *isUnknown)
{
    weightRow row = write.row;
    int drops = influencesBeyond(write.maximum, row);
    MStatus status;
    for (int drop = 0; drop < drops; ++drop) {
        const int column = smallestWeight(row);
        if (column < 0)
            break;
        const cellIndex cell = {write.rowIndex, column};
        if (!mayChange(cell))
            continue;
        const int influence = shape.influenceOfColumn.value(column, -1);
        if (influence < 0) {
            *isUnknown = true;
            break;
        }
        MDoubleArray displaced;
        status = writer.setInfluence(write.component, influence, 0.0, displaced);
        if (old.length() == 0)
            old = displaced;
        layOut(writer.weightsOf(write.component), shape, row);
        if (drop == 0) // the row now has the weights that the table rounds away
            drops = 1 + influencesBeyond(write.maximum, row);
    }
    return status;
}

bool always(const cellIndex &)
{
    return true;
}

} // namespace

MStatus writeMaxInfluences(preparedEdit &edit)
{
    return writeMaxInfluencesAsking(edit, always);
}

MStatus writeMaxInfluencesAsking(preparedEdit &edit, cellQuestion mayChange)
{
    edit.oldWeights.clear();
    shapeWriters writers(edit);
    if (!writers.areReady())
        return MStatus::kFailure;
    MStatus status;
    for (int i = 0; i < edit.writes.size(); ++i) {
        const weightWrite &write = edit.writes.at(i);
        MDoubleArray old;
        bool isUnknown = false;
        status = dropSmallest(writers.of(write), edit.shapes.at(write.shape), write, mayChange, old,
                              &isUnknown);
        edit.oldWeights.append(old);
        if (isUnknown) {
            MGlobal::displayInfo(kNoInfluence);
            return MStatus::kFailure;
        }
    }
    return status;
}
