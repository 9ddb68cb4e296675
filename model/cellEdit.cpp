// SPDX-License-Identifier: Apache-2.0
// Typing into a cell: from the text to the command that writes, and back to what was written.
#include "model/weightTableModel.h"

#include "model/messages.h"
#include "model/tableSelection.h"
#include "model/typedValue.h"

#include <maya/MGlobal.h>

bool weightTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole)
        return true;
    if (!index.isValid())
        return false;
    const typedValue typed = parseTypedValue(value.toString());
    if (!typed.isAcceptable) {
        MGlobal::displayError(kValueOutOfRange);
        return false;
    }
    const cellIndex edited = {index.row(), index.column()};
    const QVector<cellIndex> selected = selectedCells(edited);
    fillPending(typed, selected);
    // The command says what goes wrong. The table then shows what is in the scene.
    runEdit("-setData", rowsOf(selected));

    refreshEditedRows(selected);
    if (edited.row < rowCount() && hasCell(weights_.rows.at(edited.row), edited.column))
        currentCellValue_ = cellOf(weights_.rows.at(edited.row), edited.column);
    showFilteredColumns();
    return true;
}

// In the order in which the selection model returns them. Without a view there is no selection, and
// the cell stands for itself.
QVector<cellIndex> weightTableModel::selectedCells(const cellIndex &edited) const
{
    if (!view_)
        return QVector<cellIndex>(1, edited);
    const QModelIndexList indexes = viewSelection().indexes();
    QVector<cellIndex> cells;
    cells.reserve(static_cast<int>(indexes.size()));
    for (int i = 0; i < indexes.size(); ++i) {
        const cellIndex cell = {indexes.at(i).row(), indexes.at(i).column()};
        cells.append(cell);
    }
    return cells;
}

// Cells that show nothing are passed over. A change starts from the weight as it is displayed.
void weightTableModel::fillPending(const typedValue &typed, const QVector<cellIndex> &selected)
{
    handOver_.pendingCells.clear();
    handOver_.pendingValues.clear();
    for (int i = 0; i < selected.size(); ++i) {
        const cellIndex &cell = selected.at(i);
        const QString text = index(cell.row, cell.column).data().toString();
        if (text.isEmpty())
            continue;
        const double weight = typed.combine ? text.toDouble() : 0.0;
        handOver_.pendingCells.append(cell);
        handOver_.pendingValues.append(targetWeight(typed, weight));
    }
}
