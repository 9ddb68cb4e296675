// SPDX-License-Identifier: Apache-2.0
// The weights that the table shows: plain data, copied out of the scene by a load.
//
// Three kinds of parallel arrays: one element per loaded shape, per joint column, per row. For each
// shape in loading order stands one shape row, then its vertex rows in ascending order of vertices.
// A joint column is one influence object, whichever skin clusters it belongs to; it is known by its
// full DAG path, so an instance of a joint is a column of its own. Copies are snapshots: the rows
// share their memory until they are written to.
#pragma once

#include <QColor>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include "model/refreshNotes.h"
#include "model/rowNameList.h"
#include "model/weightRow.h"

#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MObjectArray.h>
#include <maya/MObjectHandle.h>

struct weightList {
    // Per shape. A component is null where the whole shape was loaded, else its loaded vertices.
    MObjectArray skinClusters;
    QVector<MObjectHandle> skinClusterHandles; // the same nodes
    MDagPathArray shapePaths;
    MObjectArray shapeComponents;
    QVector<int> shapeRows; // table row of the shape row

    // Per joint column.
    MDagPathArray jointPaths;
    QStringList jointNames; // node names: the column headers
    QList<QColor> jointColors;
    QHash<QString, int> jointColumnByPath; // full DAG path name -> joint column

    // Per row.
    rowNameList rowNames;
    weightRows rows;
    refreshNotes notes;

    int shapeCount() const { return static_cast<int>(skinClusters.length()); }
    int jointCount() const { return static_cast<int>(jointPaths.length()); }

    // False once the shape or its skin cluster was deleted or replaced: they are not to be asked.
    bool isInScene(int shape) const;
    // Whether there are shapes, and Maya keeps no skin cluster of them, not even for undo.
    bool isSceneGone() const;

    // The rows [firstVertexRow, endOfVertexRows) are the shape's vertices.
    int firstVertexRow(int shape) const { return shapeRows.at(shape) + 1; }
    int endOfVertexRows(int shape) const;
    int vertexCount(int shape) const { return endOfVertexRows(shape) - firstVertexRow(shape); }

    // For each shape the first one with the same skin cluster: itself, but where a mesh is loaded
    // twice (as a whole and by vertices, or through two instances).
    QVector<int> firstWithSkinCluster() const;

    // Adds a joint column for the influence unless it has one. Names and colours follow with
    // readJointHeaders(), once all are known.
    void addJointColumn(const MDagPath &influence);

    // -1 where there is no such column.
    int jointColumnOf(const MDagPath &influence) const;
    int jointColumnOf(const QString &fullPathName) const;

    // The first loaded shape that is the node at the end of `shape`; -1 if it is not loaded.
    // Compares nodes, since names change and need not be unique.
    int findShapeIndex(const MDagPath &shape) const;

    // Reads the name and the colour of each joint column from the scene.
    void readJointHeaders();
};
