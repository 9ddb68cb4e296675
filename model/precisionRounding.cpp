// SPDX-License-Identifier: Apache-2.0
#include "model/precisionRounding.h"

#include <QtGlobal>

#include <cmath>

namespace
{

const double kCut = 0.49;

// From here on a double has no digits beyond the last place: there is nothing to cut.
const double kMostUnits = 9007199254740992.0; // 2 to the power of 53

// A residual between this and zero is what adding a row of doubles leaves, not a weight.
const double kSumNoise = -1e-12;

// 1.1 units of the last place, itself cut as a weight of one more place is.
double residualMargin(int places)
{
    const double unit = 1.0 / std::pow(10.0, places);
    return weightRounder(places + 1).rounded(unit + unit / 10.0);
}

} // namespace

weightRounder::weightRounder(int places) : unitsPerWeight_(std::pow(10.0, places)) {}

double weightRounder::rounded(double weight) const
{
    if (!(weight > 0.0))
        return weight;
    const double units = std::ceil(weight * unitsPerWeight_ - kCut);
    if (units > kMostUnits)
        return weight;
    return units > 0.0 ? units / unitsPerWeight_ : 0.0;
}

roundedRow weightRounder::roundRow(weightRow &row) const
{
    roundedRow result = {-1, 0.0, 0.0};
    double *cells = row.data();
    const int entries = static_cast<int>(row.size());
    for (int entry = 1; entry < entries; ++entry) {
        if (!(cells[entry] > 0.0))
            continue;
        cells[entry] = rounded(cells[entry]);
        if (cells[entry] > 0.0) {
            result.lastEntry = entry;
            result.sumBeforeLast = result.sum;
            result.sum += cells[entry];
        }
    }
    return result;
}

double residualBeside(double sumOfOthers)
{
    const double residual = 1.0 - sumOfOthers;
    return residual < 0.0 && residual > kSumNoise ? 0.0 : residual;
}

void giveResidual(weightRow &row, int entry)
{
    double sumOfOthers = 0.0;
    for (int other = 1; other < row.size(); ++other) {
        if (other != entry && row.at(other) > 0.0)
            sumOfOthers += row.at(other);
    }
    row[entry] = residualBeside(sumOfOthers);
}

bool roundEditedRow(weightRow &row, const weightRounder &rounder,
                    const std::function<bool(int column)> &mayTake)
{
    rounder.roundRow(row);
    int weightCount = 0;
    int chosen = -1;
    for (int column = 0; hasCell(row, column); ++column) {
        if (!(cellOf(row, column) > 0.0))
            continue;
        ++weightCount;
        if (chosen < 0 && mayTake(column))
            chosen = column;
    }
    if (weightCount < 2)
        return true;
    if (chosen < 0)
        return false;
    const int firstEqual = static_cast<int>(row.indexOf(cellOf(row, chosen), entryOf(0)));
    giveResidual(row, firstEqual);
    // A row far from normalized could end with what means something else.
    if (isShapeRowCell(row.at(firstEqual)) || isInert(row.at(firstEqual)))
        row[firstEqual] = 0.0;
    return true;
}

wholeListRounding::wholeListRounding(int places)
    : rounder_(places), residualMargin_(residualMargin(places))
{
}

void wholeListRounding::apply(weightRow &row)
{
    if (!isVertexRow(row))
        return;
    if (row.size() < 2) {
        metRowWithoutColumns_ = true;
        return;
    }
    const roundedRow rounded = rounder_.roundRow(row);
    if (rounded.lastEntry < 0)
        metRowWithoutWeight_ = true;
    if (!metRowWithoutWeight_ && isNormalized(rounded.sum, residualMargin_))
        row[rounded.lastEntry] = residualBeside(rounded.sumBeforeLast);
}
