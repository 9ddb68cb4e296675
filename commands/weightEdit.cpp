// SPDX-License-Identifier: Apache-2.0
#include "commands/weightEdit.h"

#include <QScopedValueRollback>

#include "commands/undoReplay.h"
#include "model/messages.h"
#include "model/weightTableModel.h"
#include "plugin/processState.h"

#include <maya/MGlobal.h>

#include <new>

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
    MStatus status;
    try {
        status = write_(edit_);
    } catch (const std::bad_alloc &) {
        status = giveUp(table);
    }
    refresh(table);
    return status;
}

// Memory has run out half-way: the skin clusters get back what they have lost so far.
MStatus weightEdit::giveUp(weightTableModel *table)
{
    MGlobal::displayError(kOutOfMemory);
    try {
        replayDisplaced(edit_);
    } catch (const std::bad_alloc &) {
        if (table)
            table->clearWeightList(); // rather no numbers than wrong ones
    }
    edit_.oldWeights.clear();
    return MStatus::kFailure;
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
    if (!table || !hasDisplaced())
        return;
    try {
        table->refreshWritten(verticesOf(edit_));
    } catch (const std::bad_alloc &) {
        table->clearWeightList();
        MGlobal::displayError(kOutOfMemory);
    }
}
