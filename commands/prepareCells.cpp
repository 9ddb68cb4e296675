// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/messages.h"

#include <QHash>

#include <maya/MGlobal.h>

namespace
{

typedef QHash<int, QVector<int>> columnsByRow;

// The columns of the locked cells in the rows that are edited, in locking order.
columnsByRow lockedColumns(const editSource &source)
{
    columnsByRow columns;
    const QList<cellIndex> locked = source.locks.cells();
    if (locked.isEmpty())
        return columns;
    const QVector<cellIndex> &edited = source.handOver.pendingCells;
    for (int i = 0; i < edited.size(); ++i)
        columns.insert(edited.at(i).row, QVector<int>());
    for (int i = 0; i < locked.size(); ++i) {
        const columnsByRow::iterator found = columns.find(locked.at(i).row);
        if (found != columns.end())
            found->append(locked.at(i).column);
    }
    return columns;
}

preparation fail(const char *message)
{
    MGlobal::displayInfo(message);
    return preparation::failed;
}

// Appends the cell's write, without its value.
preparation prepareCell(const editSource &source, const cellIndex &cell, editedShapes &shapes)
{
    const weightList &weights = source.weights;
    if (cell.row < 0)
        return fail(kNoRowNumber);
    if (cell.row >= weights.rows.size())
        return preparation::outdated;
    const weightRow &row = weights.rows.at(cell.row);
    if (!isVertexRow(row))
        return fail(kNoEditableCell);
    const int vertex = weights.rowNames.vertex(cell.row);
    if (vertex < 0)
        return fail(kNoVertexNumber);
    const int place = shapes.enter(shapeIndexOf(row));
    if (place < 0)
        return preparation::outdated;
    const int influence = shapes.influenceOf(place, cell.column);
    if (influence < 0)
        return fail(kNoJointIndex);
    shapes.appendWrite(place, vertex).influence = influence;
    return preparation::ready;
}

void holdOthers(const QVector<int> &locked, int editedColumn, const weightList &weights,
                weightWrite &write)
{
    for (int i = 0; i < locked.size(); ++i) {
        if (locked.at(i) != editedColumn)
            write.heldJoints.append(weights.jointPaths[static_cast<unsigned int>(locked.at(i))]);
    }
}

} // namespace

preparation prepareCells(const editSource &source, preparedEdit &edit)
{
    const QVector<cellIndex> &cells = source.handOver.pendingCells;
    const QVector<double> &values = source.handOver.pendingValues;
    if (values.size() != cells.size())
        return preparation::outdated;
    const columnsByRow locked = lockedColumns(source);
    editedShapes shapes(source, edit);
    edit.writes.reserve(cells.size());
    for (int i = 0; i < cells.size(); ++i) {
        const preparation cell = prepareCell(source, cells.at(i), shapes);
        if (cell != preparation::ready)
            return cell;
        edit.writes.last().value = values.at(i);
        holdOthers(locked.value(cells.at(i).row), cells.at(i).column, source.weights,
                   edit.writes.last());
    }
    return preparation::ready;
}
