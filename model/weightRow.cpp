// SPDX-License-Identifier: Apache-2.0
#include "model/weightRow.h"

#include <QtGlobal>

rowSummary summarize(const weightRow &row)
{
    rowSummary summary = {0.0, 0};
    for (int entry = 1; entry < row.size(); ++entry) {
        const double cell = row.at(entry);
        if (isInert(cell))
            continue;
        summary.sum += cell;
        if (cell > 0.0)
            ++summary.nonZeroCount;
    }
    return summary;
}

double normalizationTolerance(int places)
{
    double power = 1.0;
    double square = 0.1;
    for (int bits = qAbs(places); bits > 0; bits >>= 1) {
        if (bits & 1)
            power *= square;
        square *= square;
    }
    return places < 0 ? 1.0 / power : power;
}

bool isNormalized(double sum, double tolerance)
{
    return qAbs(sum - 1.0) < tolerance;
}
