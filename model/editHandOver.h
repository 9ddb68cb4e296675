// SPDX-License-Identifier: Apache-2.0
// What an operation of the table leaves for korvexCmd to carry out.
//
// The operation fills its part and runs the command; the command takes a copy of what it needs and
// does not look here again, since the next operation overwrites it. Rows and columns are those of
// the table at that moment.
#pragma once

#include "model/cellIndex.h"
#include "model/dragCells.h"
#include "model/weightRow.h"

#include <QString>
#include <QVector>

struct editHandOver {
    // Typed values and the slider over cells: a cell and its new weight have the same place.
    QVector<cellIndex> pendingCells;
    QVector<double> pendingValues;

    // Rounding: all rows of the table, rounded.
    weightRows roundedRows;

    // Limiting influences: the rows to look at.
    QVector<int> maxInfluenceRows;

    // Flooding and the slider over a column: which joint column.
    int operationColumn = -1;

    // Flooding: the shapes to fill, and with what.
    QVector<int> floodShapes;
    double floodValue = 0.0;

    // The slider over a column.
    sliderMove columnDrag;

    // Smoothing by the skin cluster's own edit: the MEL that does it, and where it may write: in
    // these rows, or on the whole mesh of that shape (-1: the rows count).
    QString smoothingScript;
    QVector<int> smoothedRows;
    int smoothedShape = -1;

    // Smoothing by the paint tool, of the joint at operationColumn: the rows to paint, and how much
    // of the effect they get, 0 to 1.
    QVector<int> paintedRows;
    double paintOpacity = 0.0;
};
