// SPDX-License-Identifier: Apache-2.0
#include "model/cellAppearance.h"

#include <cmath>

namespace
{

// Half a unit of the last place shown: from here on a weight does not read as zero. Divided, not
// multiplied up like the tolerance, so that at three places it is the double that 0.0005 is.
double visibleWeight(int places)
{
    return 0.5 / std::pow(10.0, places);
}

bool isNormalizedRow(const rowSummary &summary, const displaySettings &settings)
{
    return isNormalized(summary.sum, normalizationTolerance(settings.precision));
}

} // namespace

QString cellText(double cell, const displaySettings &settings)
{
    if (isInert(cell) || isShapeRowCell(cell))
        return QString::fromLatin1("");
    return QString::number(cell, 'f', settings.precision);
}

QColor cellBackground(double cell, bool locked, const QColor &jointColor,
                      const displaySettings &settings)
{
    if (isShapeRowCell(cell))
        return jointColor;
    if (locked)
        return Qt::gray;
    return cell >= visibleWeight(settings.precision) ? QColor(Qt::darkCyan) : QColor();
}

QColor cellTextColor(const weightRow &row, int column, bool locked, const displaySettings &settings)
{
    if (isShapeRowCell(cellOf(row, column)))
        return QColor();
    if (!isNormalizedRow(summarize(row), settings))
        return Qt::red;
    return locked ? QColor(Qt::black) : QColor();
}

QColor rowHeaderBackground(const weightRow &row, bool locked, const displaySettings &settings)
{
    if (rowTag(row) == kUnnormalizedShapeTag)
        return Qt::red;
    if (isShapeRow(row))
        return QColor();
    const rowSummary summary = summarize(row);
    if (!isNormalizedRow(summary, settings))
        return Qt::red;
    if (summary.nonZeroCount > settings.maxInfluences)
        return Qt::yellow;
    return locked ? QColor(Qt::gray) : QColor();
}

QColor rowHeaderTextColor(const weightRow &row, bool locked, const displaySettings &settings)
{
    if (isShapeRow(row))
        return QColor();
    if (locked || summarize(row).nonZeroCount > settings.maxInfluences)
        return Qt::black;
    return QColor();
}

QColor columnHeaderBackground(bool locked)
{
    return locked ? QColor(Qt::gray) : QColor();
}

QColor columnHeaderTextColor(bool locked)
{
    return locked ? QColor(Qt::black) : QColor();
}
