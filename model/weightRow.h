// SPDX-License-Identifier: Apache-2.0
// One row of the weight list, and the values in it that are not weights.
//
//     entry        0     1      2      ...   J
//     shape row   -1.0  -1.0   -1.0    ...  -1.0      (tag -5.0: a vertex of the shape is not
//     normalized) vertex row   s    0.25   -2.0    ...   0.75     (s: the shape's index)
//
// Entry 0 is the row tag and never shown; entry c + 1 is the cell of joint column c. Markers are
// exact doubles and stand nowhere else in the code. Needs neither Maya nor a widget.
#pragma once

#include <QVector>

// QVector, not QList: its doubles lie side by side in every Qt. Copies share their data until one
// of them is written to, which is what makes a snapshot of a whole table cheap.
typedef QVector<double> weightRow;
typedef QVector<weightRow> weightRows;

// Tag of an ordinary shape row, and the value of every cell of a shape row.
const double kShapeRowTag = -1.0;
// Tag of the row of a shape that was loaded with a vertex whose weights did not sum to 1.
const double kUnnormalizedShapeTag = -5.0;
// The cell of a joint that is no influence of the row's shape: empty, and never written.
const double kInertCell = -2.0;

inline double rowTag(const weightRow &row)
{
    return row.at(0);
}

inline bool isVertexRow(const weightRow &row)
{
    return !row.isEmpty() && rowTag(row) >= 0.0;
}

inline bool isShapeRow(const weightRow &row)
{
    return !row.isEmpty() && rowTag(row) < 0.0;
}

// The index of the shape that a vertex row belongs to; negative for a shape row.
inline int shapeIndexOf(const weightRow &row)
{
    return static_cast<int>(rowTag(row));
}

inline bool isInert(double cell)
{
    return cell == kInertCell;
}

inline bool isShapeRowCell(double cell)
{
    return cell == kShapeRowTag;
}

// Whether the cell holds a weight, and the table a number there.
inline bool isWeightCell(double cell)
{
    return !isInert(cell) && !isShapeRowCell(cell);
}

// The place in a row of a joint column's cell.
inline int entryOf(int column)
{
    return column + 1;
}

inline bool hasCell(const weightRow &row, int column)
{
    return column >= 0 && entryOf(column) < row.size();
}

// REQUIRES: hasCell(row, column).
inline double cellOf(const weightRow &row, int column)
{
    return row.at(entryOf(column));
}

// What the colours of a vertex row depend on.
struct rowSummary {
    double sum;       // of all its weights
    int nonZeroCount; // joints with weight
};

rowSummary summarize(const weightRow &row);

// 0.1 to the power of `places`, multiplied up by repeated squaring (1 / that for negative places):
// the distance from 1.0 at which the weights of a vertex no longer count as normalized.
double normalizationTolerance(int places);

// False also for a sum that is not a number.
bool isNormalized(double sum, double tolerance);
