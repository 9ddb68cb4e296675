// SPDX-License-Identifier: Apache-2.0
// What the views show of the weight list: the read side of QAbstractTableModel.
#include "model/weightTableModel.h"

namespace
{

QVariant colorOrNothing(const QColor &color)
{
    return color.isValid() ? QVariant(color) : QVariant();
}

} // namespace

int weightTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(weights_.rows.size());
}

int weightTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(weights_.jointNames.size());
}

QVariant weightTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return QVariant();
    const weightRow &row = weights_.rows.at(index.row());
    if (!hasCell(row, index.column()))
        return QVariant();
    const cellIndex cell = {index.row(), index.column()};
    return cellData(row, cell, role);
}

bool weightTableModel::showsWeight(const QModelIndex &index) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return false;
    const weightRow &row = weights_.rows.at(index.row());
    return hasCell(row, index.column()) && isWeightCell(cellOf(row, index.column()));
}

QVariant weightTableModel::cellData(const weightRow &row, const cellIndex &cell, int role) const
{
    const double value = cellOf(row, cell.column);
    const bool locked = locks_.isLocked(cell.row, cell.column);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cellText(value, settings_);
    case Qt::BackgroundRole:
        return colorOrNothing(
            cellBackground(value, locked, weights_.jointColors.value(cell.column), settings_));
    case Qt::ForegroundRole:
        return colorOrNothing(cellTextColor(row, cell.column, locked, settings_));
    default:
        return QVariant();
    }
}

QVariant weightTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool vertical = orientation == Qt::Vertical;
    if (weights_.rows.isEmpty() || section < 0 ||
        section >= (vertical ? rowCount() : columnCount()))
        return QVariant();
    return vertical ? rowHeaderData(section, role) : columnHeaderData(section, role);
}

QVariant weightTableModel::rowHeaderData(int row, int role) const
{
    const weightRow &weights = weights_.rows.at(row);
    const bool locked = locks_.isRowLocked(row);
    switch (role) {
    case Qt::DisplayRole:
        return weights_.rowNames.text(row);
    case Qt::BackgroundRole:
        return colorOrNothing(rowHeaderBackground(weights, locked, settings_));
    case Qt::ForegroundRole:
        return colorOrNothing(rowHeaderTextColor(weights, locked, settings_));
    default:
        return QVariant();
    }
}

QVariant weightTableModel::columnHeaderData(int column, int role) const
{
    const bool locked = locks_.isJointLocked(column);
    switch (role) {
    case Qt::DisplayRole:
        return weights_.jointNames.at(column);
    case Qt::BackgroundRole:
        return colorOrNothing(columnHeaderBackground(locked));
    case Qt::ForegroundRole:
        return colorOrNothing(columnHeaderTextColor(locked));
    default:
        return QVariant();
    }
}

Qt::ItemFlags weightTableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags shown = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return locks_.isLocked(index.row(), index.column()) ? shown : shown | Qt::ItemIsEditable;
}
