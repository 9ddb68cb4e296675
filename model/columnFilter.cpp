// SPDX-License-Identifier: Apache-2.0
// The filter that hides the columns of joints without weight.
#include "model/weightTableModel.h"

#include <QHeaderView>
#include <QTableView>

#include "model/messages.h"

#include <maya/MGlobal.h>

void weightTableModel::toggleFilter(bool on)
{
    isFiltering_ = on;
    if (weights_.rows.isEmpty()) {
        MGlobal::displayError(kNothingLoaded);
        return;
    }
    applyColumnFilter();
}

void weightTableModel::setUpColumn()
{
    if (!weights_.rows.isEmpty())
        applyColumnFilter();
}

void weightTableModel::applyColumnFilter()
{
    // Finding the empty columns means reading the table, so only who wants to hide them pays.
    if (isFiltering_)
        emptyColumns_.find(weights_.rows, columnCount());
    showFilteredColumns();
}

void weightTableModel::showFilteredColumns()
{
    if (!view_)
        return;
    const QList<int> hidden = isFiltering_ ? emptyColumns_.columns() : QList<int>();
    QHeaderView *header = view_->horizontalHeader();
    QList<int>::const_iterator nextEmpty = hidden.constBegin();
    for (int column = 0; column < header->count(); ++column) {
        const bool isEmpty = nextEmpty != hidden.constEnd() && *nextEmpty == column;
        if (isEmpty) {
            header->setSectionHidden(column, true);
            ++nextEmpty;
        } else {
            header->setSectionHidden(column, false);
            header->resizeSection(column, header->defaultSectionSize());
        }
    }
}
