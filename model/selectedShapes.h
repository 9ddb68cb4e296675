// SPDX-License-Identifier: Apache-2.0
// What of Maya's selection can be loaded: shapes, and which of their vertices.
#pragma once

#include <QVector>

#include <maya/MDagPath.h>
#include <maya/MObject.h>
#include <maya/MSelectionList.h>

struct selectedShape {
    MDagPath path;     // of the shape, also where its transform was selected
    MObject component; // its selected vertices; null for the whole shape
};

// One element per item of the selection, in its order; a shape that stands in it twice comes twice.
// What is not in the DAG, has no shape, or has faces, edges or the like selected, is left out.
QVector<selectedShape> selectedShapes(const MSelectionList &selection);
