// SPDX-License-Identifier: Apache-2.0
// The buttons above the table: what is loaded and shown, and what is locked.
#include "ui/korvexWindow.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/weightTableModel.h"
#include "ui/controlParts.h"

namespace
{

QLayout *rowOf(QPushButton *left, QPushButton *middle, QPushButton *right)
{
    QHBoxLayout *row = new QHBoxLayout;
    row->addWidget(left);
    row->addWidget(middle);
    row->addWidget(right);
    row->addStretch();
    return row;
}

} // namespace

QLayout *korvexWindow::buildTableButtons()
{
    loadButton_ = createButton("Load Component", "LoadComponent",
                               "Show the weights of the meshes and vertices selected in Maya.");
    filterButton_ = createButton("Filter", "Filter", "Hide the columns of joints without weight.",
                                 buttonKind::check);
    highlightButton_ =
        createButton("Highlight", "Highlight", "Select in Maya what is selected in the table.",
                     buttonKind::check);
    lockButton_ =
        createButton("Lock", "Lock", "Protect the selected columns, rows and cells from edits.");
    unlockButton_ =
        createButton("UnLock", "UnLock", "Unlock the selected columns, rows and cells.");
    unlockAllButton_ = createButton("UnLock All", "UnLockAll", "Unlock everything in the table.");
    const controlConnection connections[] = {
        {loadButton_, SIGNAL(clicked()), SLOT(loadWeightData())},
        {filterButton_, SIGNAL(toggled(bool)), SLOT(toggleFilter(bool))},
        {highlightButton_, SIGNAL(toggled(bool)), SLOT(toggleHilight(bool))},
        {lockButton_, SIGNAL(clicked()), SLOT(lockSelected())},
        {unlockButton_, SIGNAL(clicked()), SLOT(unlockSelected())},
        {unlockAllButton_, SIGNAL(clicked()), SLOT(unlockAll())},
    };
    connectAll(connections, this);
    QVBoxLayout *rows = new QVBoxLayout;
    rows->addLayout(rowOf(loadButton_, filterButton_, highlightButton_));
    rows->addLayout(rowOf(lockButton_, unlockButton_, unlockAllButton_));
    return rows;
}

void korvexWindow::loadWeightData()
{
    model_->refreshSkinClusterData();
    acted(loadButton_);
}

void korvexWindow::toggleFilter(bool on)
{
    otherFilterState_ = !on;
    model_->toggleFilter(on);
    acted(filterButton_);
}

void korvexWindow::toggleHilight(bool on)
{
    otherHighlightState_ = !on;
    model_->toggleHilight(on);
    acted(highlightButton_);
}

void korvexWindow::lockSelected()
{
    model_->newLockSelected();
    acted(lockButton_);
}

void korvexWindow::unlockSelected()
{
    model_->newUnlockSelected();
    acted(unlockButton_);
}

void korvexWindow::unlockAll()
{
    model_->newUnlockAll();
    acted(unlockAllButton_);
}
