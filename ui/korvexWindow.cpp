// SPDX-License-Identifier: Apache-2.0
#include "ui/korvexWindow.h"

#include "model/messages.h"
#include "model/weightTableModel.h"
#include "ui/weightColumnHeaderView.h"
#include "ui/weightTableView.h"

#include <maya/MGlobal.h>

korvexWindow::korvexWindow(QWidget *parent) : QMainWindow(parent)
{
    buildTable();
    buildColumnHeader();
    connectTable();
    buildOptionsMenu();
    assembleCentralWidget(buildButtons());
    setObjectName(QLatin1String("korvexWindow"));
    setWindowTitle(QLatin1String("Korvex"));
    setGeometry(200, 200, 500, 700);
}

void korvexWindow::loadWeightData()
{
    model_->refreshSkinClusterData();
}

void korvexWindow::toggleFilter(bool on)
{
    model_->toggleFilter(on);
}

void korvexWindow::toggleHilight(bool on)
{
    model_->toggleHilight(on);
}

void korvexWindow::tableCellSelected(const QModelIndex &index)
{
    if (!tableView_->selectionModel()->hasSelection()) {
        MGlobal::displayError(kNoCellSelected);
        return;
    }
    model_->cellSelected(index);
}

void korvexWindow::tableSelectionChanged(const QItemSelection &, const QItemSelection &)
{
    model_->multiCellSelected();
}

void korvexWindow::columnHeaderClicked(int column)
{
    model_->columnHeaderSelected(column);
}

void korvexWindow::rowHeaderClicked(int row)
{
    model_->rowHeaderSelected(row);
}
