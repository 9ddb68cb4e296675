// SPDX-License-Identifier: Apache-2.0
// The MEL by which Maya's own tools smooth weights. Names must be such that Maya finds one node by
// them; numbers come as text, since Maya has its own way of writing them. Needs neither Maya nor a
// widget.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include "model/rowNameList.h"
#include "model/weightRow.h"

// "body.vtx[3] body.vtx[4] ": the vertices of rows, each after the node of its shape (`nodes`, one
// per shape). REQUIRES: vertex rows.
QString vertexWords(const QVector<int> &vertexRows, const weightRows &rows,
                    const rowNameList &rowNames, const QStringList &nodes);

// The skin cluster's own smoothing, of the vertices that are selected or, if none are, of all. It
// obeys the maximum number of influences, and has the skin cluster maintain it from then on.
QString smoothingScript(const QString &tolerance, int iterations, const QString &skinCluster);
// The same for these vertices. They end selected.
QString smoothingOfVertices(const QString &vertices, const QString &smoothing);

// Has the user hold the paint tool, set to smooth the joint on the vertices, which end selected.
QString paintSetUpScript(const QString &vertices, const QString &joint);
// What the tool is set to happens to all vertices selected.
QString paintFloodScript(const QString &opacity);
