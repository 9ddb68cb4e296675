// SPDX-License-Identifier: Apache-2.0
#include "commands/weightEdit.h"

#include <QScopedValueRollback>

#include "commands/undoReplay.h"
#include "model/messages.h"
#include "model/weightTableModel.h"
#include "plugin/processState.h"

#include <maya/MGlobal.h>

namespace
{

preparation fill(preparedEdit &edit, editPreparer prepare, const weightTableModel &table)
{
    const editSource source = {table.weights(), table.locks(), table.handOver(),
                               table.maxInfluences()};
    return prepare(source, edit);
}

} // namespace

preparation weightEdit::prepare(const editKind &kind, const weightTableModel *table)
{
    write_ = kind.write;
    edit_ = preparedEdit();
    const preparation prepared = table ? fill(edit_, kind.prepare, *table) : preparation::outdated;
    if (prepared == preparation::outdated)
        MGlobal::displayInfo(kDataNotSetUp);
    return prepared;
}

MStatus weightEdit::write(weightTableModel *table)
{
    if (!write_)
        return MStatus::kSuccess;
    // Writing may change Maya's selection, and the table must not follow that.
    const QScopedValueRollback<bool> restoreAutoUpdate(autoUpdate);
    autoUpdate = false;
    const MStatus status = write_(edit_);
    refresh(table);
    return status;
}

MStatus weightEdit::putBack(weightTableModel *table)
{
    const QScopedValueRollback<bool> restoreAutoUpdate(autoUpdate);
    autoUpdate = false;
    const MStatus status = replayDisplaced(edit_);
    refresh(table);
    return status;
}

void weightEdit::refresh(weightTableModel *table) const
{
    if (table && hasDisplaced())
        table->refreshWritten(verticesOf(edit_));
}
