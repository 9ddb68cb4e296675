// SPDX-License-Identifier: Apache-2.0
#include "commands/cellGroups.h"
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/messages.h"

#include <QHash>

#include <algorithm>

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

// Finds the cell in its skin cluster. `found` gets all but its value.
preparation findCell(const editSource &source, const cellIndex &cell, editedShapes &shapes,
                     influenceCell &found)
{
    const weightList &weights = source.weights;
    if (cell.row < 0)
        return fail(kNoRowNumber);
    if (cell.row >= weights.rows.size())
        return preparation::outdated;
    const weightRow &row = weights.rows.at(cell.row);
    if (!isVertexRow(row))
        return fail(kNoEditableCell);
    found.row = cell.row;
    found.column = cell.column;
    found.vertex = weights.rowNames.vertex(cell.row);
    if (found.vertex < 0)
        return fail(kNoVertexNumber);
    found.place = shapes.enter(shapeIndexOf(row));
    if (found.place < 0)
        return preparation::outdated;
    found.influence = shapes.influenceOf(found.place, cell.column);
    return found.influence < 0 ? fail(kNoJointIndex) : preparation::ready;
}

// What joints are held differs by row. Weights that Maya makes up may come from the vertices
// around, and then it counts who was written first.
cellGrouping groupingOf(const influenceCell &cell, const columnsByRow &locked,
                        const editedShapes &shapes)
{
    if (shapes.readsNeighbours(cell.place))
        return cellGrouping::inOrder;
    return locked.value(cell.row).isEmpty() ? cellGrouping::together : cellGrouping::alone;
}

bool isAbove(const influenceCell &first, const influenceCell &second)
{
    return first.vertex < second.vertex;
}

// Values stand in the order of the component, that of the vertices.
void appendWrite(cellGroup group, const columnsByRow &locked, const weightList &weights,
                 editedShapes &shapes)
{
    std::sort(group.begin(), group.end(), isAbove);
    const influenceCell &first = group.first();
    QVector<int> vertices;
    MDoubleArray values;
    bool areEqual = true;
    for (int i = 0; i < group.size(); ++i) {
        vertices.append(group.at(i).vertex);
        values.append(group.at(i).value);
        areEqual = areEqual && group.at(i).value == first.value;
    }
    weightWrite &write = shapes.appendWrite(first.place, vertices);
    write.influence = first.influence;
    write.value = first.value;
    if (!areEqual)
        write.values = values;
    const QVector<int> columns = locked.value(first.row);
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i) != first.column)
            write.heldJoints.append(weights.jointPaths[static_cast<unsigned int>(columns.at(i))]);
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
    cellGroups grouped;
    for (int i = 0; i < cells.size(); ++i) {
        influenceCell cell = {-1, -1, -1, values.at(i), -1, -1};
        const preparation found = findCell(source, cells.at(i), shapes, cell);
        if (found != preparation::ready)
            return found;
        grouped.append(cell, groupingOf(cell, locked, shapes));
    }
    const QVector<cellGroup> groups = grouped.inOrder();
    for (int i = 0; i < groups.size(); ++i)
        appendWrite(groups.at(i), locked, source.weights, shapes);
    return preparation::ready;
}
