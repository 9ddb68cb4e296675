// SPDX-License-Identifier: Apache-2.0
#include "ui/tableTyping.h"

#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QTableView>

#include "model/weightTableModel.h"
#include "ui/selectedCells.h"

namespace
{

const char kTypingKeys[] = "*+-./0123456789=";

bool isKeypadEnter(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Enter;
}

// Qt has one editor open at a time, so it goes to a cell where the user sees it.
QModelIndex cellToEdit(const QTableView &view, const weightTableModel &model)
{
    return firstSelected(view.selectionModel()->selection(), [&](const QModelIndex &index) {
        return model.showsWeight(index) && (model.flags(index) & Qt::ItemIsEditable) &&
               !view.isColumnHidden(index.column());
    });
}

} // namespace

bool beginsTyping(const QKeyEvent &key)
{
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (isKeypadEnter(key))
        return true;
    const int code = key.key();
    return code > 0 && code < 128 &&
           QString::fromLatin1(kTypingKeys).contains(QLatin1Char(static_cast<char>(code)));
}

bool typeIntoSelection(QKeyEvent &key, QTableView &view, weightTableModel &model)
{
    const QModelIndex cell = cellToEdit(view, model);
    if (!cell.isValid())
        return false;
    model.keepPreviousWeights();
    // Tab goes on from the current cell. The selection stays.
    view.selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    view.scrollTo(cell);
    view.edit(cell);
    QWidget *editor = view.indexWidget(cell);
    if (editor && !isKeypadEnter(key))
        QCoreApplication::sendEvent(editor, &key);
    return editor != nullptr;
}
