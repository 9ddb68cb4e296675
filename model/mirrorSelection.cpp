// SPDX-License-Identifier: Apache-2.0
// Maya's selection carried over to the table.
#include "model/weightTableModel.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QTableView>

#include "model/tableSelection.h"
#include "model/vertexRowFinder.h"

#include <maya/MFn.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MGlobal.h>
#include <maya/MIntArray.h>
#include <maya/MItSelectionList.h>
#include <maya/MSelectionList.h>

namespace
{

void appendRowsOfVertices(const MObject &component, vertexRowFinder finder, QVector<int> &rows)
{
    MIntArray vertices;
    MFnSingleIndexedComponent(component).getElements(vertices);
    for (unsigned int i = 0; i < vertices.length(); ++i) {
        const int row = finder.rowOf(vertices[i]);
        if (row >= 0)
            rows.append(row);
    }
}

QVector<int> rowsOfSelectedVertices(const MSelectionList &selection, const weightList &weights)
{
    QVector<int> rows;
    for (MItSelectionList item(selection); !item.isDone(); item.next()) {
        MDagPath path;
        MObject component;
        item.getDagPath(path, component);
        if (component.isNull() || component.apiType() != MFn::kMeshVertComponent)
            continue;
        path.extendToShape();
        const int shape = weights.findShapeIndex(path);
        if (shape < 0)
            continue;
        const vertexRowFinder finder(weights.rowNames, weights.firstVertexRow(shape),
                                     weights.endOfVertexRows(shape));
        appendRowsOfVertices(component, finder, rows);
    }
    return rows;
}

} // namespace

void weightTableModel::mirrorMayaSelection()
{
    if (!view_ || !view_->selectionModel())
        return;
    MSelectionList selection;
    MGlobal::getActiveSelectionList(selection, true);
    const QVector<int> rows = rowsOfSelectedVertices(selection, weights_);

    const QScopedValueRollback<bool> restore(isMirroring_);
    isMirroring_ = true;
    view_->selectionModel()->clear();
    view_->selectionModel()->select(selectionOfRows(rows, *this),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
}
