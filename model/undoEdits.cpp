// SPDX-License-Identifier: Apache-2.0
// The table's edits and Maya's undo queue.
#include "model/weightTableModel.h"

#include "model/mayaText.h"
#include "model/messages.h"

#include <algorithm>

#include <maya/MGlobal.h>
#include <maya/MString.h>

namespace
{

// What Maya is asked, and told, to go one step.
struct queueSide {
    const char *nextName;
    const char *step;
    const char *refusal;
};

const queueSide kUndoSide = {"undoInfo -q -undoName", "undo", kNotLastChange};
const queueSide kRedoSide = {"undoInfo -q -redoName", "redo", kNotNextToRedo};

// An item is named for the command, with or without its flags.
bool isEditNext(const queueSide &side)
{
    const QString name =
        textOf(MGlobal::executeCommandStringResult(side.nextName, false, true)) + QLatin1Char(' ');
    return name.startsWith(QLatin1String("korvexCmd "));
}

// Maya switches undo off inside a call that is not to be recorded.
bool step(const queueSide &side)
{
    return MGlobal::executeCommand(side.step, false, true);
}

void replay(weightTableModel &table, int editCount, const queueSide &side)
{
    if (editCount == 0 || !isEditNext(side)) {
        MGlobal::displayWarning(side.refusal);
        return;
    }
    table.keepPreviousWeights();
    while (editCount-- > 0 && isEditNext(side)) {
        if (!step(side))
            return; // Maya has said why
    }
}

// Ascending.
QVector<int> vertexRowsAmong(const QVector<int> &candidates, const weightRows &rows)
{
    QVector<int> found;
    for (int i = 0; i < candidates.size(); ++i) {
        if (isVertexRow(rows.at(candidates.at(i))))
            found.append(candidates.at(i));
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

void weightTableModel::runEdit(const char *flag, const QVector<int> &rowsReadAfterwards)
{
    const editAction action(trail_);
    rowsReadAfterwards_ = vertexRowsAmong(rowsReadAfterwards, weights_.rows);
    MGlobal::executeCommand(MString("korvexCmd ") + flag, true, true);
    rowsReadAfterwards_.clear();
}

void weightTableModel::undoLastAction()
{
    replay(*this, trail_.undoableCount(), kUndoSide);
}

void weightTableModel::redoLastAction()
{
    replay(*this, trail_.redoableCount(), kRedoSide);
}
