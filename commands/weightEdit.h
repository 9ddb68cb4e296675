// SPDX-License-Identifier: Apache-2.0
// One edit of weights as a command on Maya's undo queue carries it: prepared from the table once,
// then written and put back in turns.
//
// While it writes, the table does not follow Maya's selection; afterwards the table shows what the
// skin clusters hold. The table may be gone when the edit is written again or put back (null then).
#pragma once

#include "commands/preparedEdit.h"
#include "commands/preparers.h"
#include "commands/writers.h"

#include <maya/MStatus.h>

class weightTableModel;

struct editKind {
    editPreparer prepare;
    editWriter write;
};

class weightEdit
{
public:
    // Takes a copy of what the table's last operation has left. If it fails it has shown why.
    // Without a table it is outdated.
    preparation prepare(const editKind &kind, const weightTableModel *table);

    // Writes what is prepared: all of it, or where preparing failed, what there was until then.
    // Nothing is done, and that succeeds, if nothing was ever prepared. Where memory runs out on
    // the way, what was written is put back.
    MStatus write(weightTableModel *table);
    // Puts back what was displaced. Fails if that is nothing.
    MStatus putBack(weightTableModel *table);

    // Whether there is something to put back.
    bool hasDisplaced() const { return !edit_.oldWeights.isEmpty(); }

private:
    MStatus giveUp(weightTableModel *table);
    void refresh(weightTableModel *table) const;

    editWriter write_ = nullptr;
    preparedEdit edit_;
};
