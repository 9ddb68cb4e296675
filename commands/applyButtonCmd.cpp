// SPDX-License-Identifier: Apache-2.0
#include "commands/applyButtonCmd.h"

#include "model/messages.h"
#include "model/weightTableModel.h"

#include <maya/MGlobal.h>

namespace
{

bool isInTable(const cellIndex &cell)
{
    const weightTableModel *table = applyButtonCmd::model();
    if (table && table->index(cell.row, cell.column).isValid())
        return true;
    MGlobal::displayInfo(kNoModelIndex);
    return false;
}

MStatus writeCellsInTable(preparedEdit &edit)
{
    return writeMaxInfluencesAsking(edit, isInTable);
}

} // namespace

applyButtonCmd::applyButtonCmd(korvexWindow *window, weightTableModel *model)
    : operationCmd(window, model, {prepareMaxInfluences, writeCellsInTable})
{
}
