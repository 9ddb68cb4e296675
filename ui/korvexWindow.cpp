// SPDX-License-Identifier: Apache-2.0
#include "ui/korvexWindow.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMenu>

#include "commands/operationCommands.h"
#include "model/messages.h"
#include "model/weightTableModel.h"
#include "ui/controlParts.h"
#include "ui/tableTyping.h"
#include "ui/weightTableView.h"

#include <maya/MGlobal.h>

korvexWindow::korvexWindow(QWidget *parent) : QMainWindow(parent)
{
    buildTable();
    buildColumnHeader();
    connectTable();
    buildOptionsMenu();
    controlRows rows;
    rows.maxInfluences = buildMaxInfluencesRow();
    rows.buttons = buildTableButtons();
    rows.precision = buildPrecisionRow();
    rows.value = buildValueRow();
    connectModel();
    rows.flood = buildFloodPanel();
    assembleCentralWidget(rows);
    setObjectName(QLatin1String("korvexWindow"));
    setWindowTitle(QLatin1String("Korvex"));
    setGeometry(200, 200, 500, 700);
    watchKeys();
    buildUndoTable();
    commands_.reset(new operationCommands(this, model_));
}

korvexWindow::~korvexWindow() = default;

void korvexWindow::acted(QWidget *control)
{
    keyboardUndo_.acted(control);
}

bool korvexWindow::actedIfWritten(QWidget *control)
{
    const int newest = model_->trail().newestEffective();
    const bool hasWritten = newest != newestEdit_;
    newestEdit_ = newest;
    if (hasWritten)
        acted(control);
    return hasWritten;
}

bool korvexWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride)
        return QMainWindow::eventFilter(watched, event);
    QKeyEvent &key = *static_cast<QKeyEvent *>(event);
    const bool isTyped = isTypedOverCells(watched, key);
    if (!isPress && (isTyped || keyboardUndo_.isAboutToHandle(key))) {
        key.accept(); // else Maya's own shortcut takes it, and no press comes
        return true;
    }
    if (isPress && keyboardUndo_.handle(key))
        return true;
    if (isPress && isTyped) {
        // Also where no cell can be edited: the view would look for one that begins with the key.
        typeIntoSelection(key, *tableView_, *model_);
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

bool korvexWindow::isTypedOverCells(const QObject *watched, const QKeyEvent &key) const
{
    return watched == tableView_ && tableView_->hasFocus() && beginsTyping(key) &&
           tableView_->selectionModel()->hasSelection();
}

void korvexWindow::tableEdited()
{
    alignValueRow();
    actedIfWritten(tableView_);
}

void korvexWindow::tableCellSelected(const QModelIndex &index)
{
    if (!tableView_->selectionModel()->hasSelection()) {
        MGlobal::displayError(kNoCellSelected);
        return;
    }
    model_->cellSelected(index);
    alignValueRow();
}

void korvexWindow::tableSelectionChanged(const QItemSelection &, const QItemSelection &)
{
    model_->multiCellSelected();
    alignValueRow();
}

void korvexWindow::columnHeaderClicked(int column)
{
    model_->columnHeaderSelected(column);
    resetValueRow();
}

void korvexWindow::rowHeaderClicked(int row)
{
    model_->rowHeaderSelected(row);
    resetValueRow();
}

void korvexWindow::showContextMenu(const QPoint &point)
{
    if (!contextMenu_) {
        contextMenu_ = new QMenu(this);
        contextMenu_->setObjectName(QLatin1String("cellMenu"));
        const controlConnection connections[] = {
            {contextMenu_->addAction(QLatin1String("Lock")), SIGNAL(triggered()), SLOT(lockCell())},
            {contextMenu_->addAction(QLatin1String("Unlock")), SIGNAL(triggered()),
             SLOT(unlockCell())},
        };
        connectAll(connections, model_);
    }
    contextMenu_->popup(tableView_->viewport()->mapToGlobal(point));
}
