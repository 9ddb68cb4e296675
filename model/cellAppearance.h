// SPDX-License-Identifier: Apache-2.0
// The table's visual language: text and colours of cells and headers, decided from plain values.
//
//     cell background    joint's colour: shape row - grey: locked - dark cyan: weight that shows
//     cell text          red: row not normalized - black: locked
//     row header         red: shape or vertex not normalized - yellow: too many joints - grey:
//     locked column header      grey: locked header text        black: locked, or too many joints
//
// Earlier entries of a line win. An invalid colour means: the view's own.
#pragma once

#include "model/weightRow.h"

#include <QColor>
#include <QString>

// What the presentation depends on beside the values themselves.
struct displaySettings {
    int precision;     // decimal places shown; 10^-precision is the tolerance of normalization
    int maxInfluences; // joints that a vertex may have before its row is marked
};

// The weight with the displayed number of decimal places; empty for markers.
QString cellText(double cell, const displaySettings &settings);

// `jointColor` is the colour of the cell's column.
QColor cellBackground(double cell, bool locked, const QColor &jointColor,
                      const displaySettings &settings);

// REQUIRES: hasCell(row, column).
QColor cellTextColor(const weightRow &row, int column, bool locked,
                     const displaySettings &settings);

QColor rowHeaderBackground(const weightRow &row, bool locked, const displaySettings &settings);
QColor rowHeaderTextColor(const weightRow &row, bool locked, const displaySettings &settings);

QColor columnHeaderBackground(bool locked);
QColor columnHeaderTextColor(bool locked);
