// SPDX-License-Identifier: Apache-2.0
#include "model/freshRounding.h"

#include "model/precisionRounding.h"

freshRounding roundAnew(const weightRows &unrounded, int places, weightRows &rows)
{
    freshRounding result = {false, false};
    const weightRounder rounder(places);
    for (int r = 0; r < unrounded.size(); ++r) {
        weightRow row = unrounded.at(r);
        if (!isVertexRow(row))
            continue;
        const roundedRow rounded = rounder.roundRow(row);
        if (row.size() < 2)
            result.metRowWithoutColumns = true;
        else if (rounded.lastEntry < 0)
            result.metRowWithoutWeight = true;
        else if (!result.metRowWithoutWeight)
            row[rounded.lastEntry] = residualBeside(rounded.sumBeforeLast);
        rows[r] = row;
    }
    return result;
}
