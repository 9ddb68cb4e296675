// SPDX-License-Identifier: Apache-2.0
#include "plugin/sceneCallbacks.h"

#include <QScopedValueRollback>

#include "model/weightTableModel.h"
#include "plugin/processState.h"

#include <maya/MFileIO.h>
#include <maya/MGlobal.h>

void onSelectionChanged(void *model)
{
    weightTableModel &table = *static_cast<weightTableModel *>(model);
    if (table.takeIgnoredSelectionChange())
        return;
    if (table.getSkinPaintSmoothMode() || selectionSetByEditor)
        return;
    // The scene of the table is going, the next one is not there yet: neither may be asked.
    if (MFileIO::isReadingFile() || MFileIO::isNewingFile())
        return;
    if (autoUpdate)
        table.loadSelection();
    else
        table.mirrorMayaSelection();
    MGlobal::executeCommand("refresh");
}

void onSceneOpened(void *model)
{
    weightTableModel &table = *static_cast<weightTableModel *>(model);
    table.clearWeightList();
    // Opening a scene changes the selection as well, and that is still to be reported.
    table.ignoreNextSelectionChange();
}

void replaceSelectionQuietly(const MSelectionList &selection)
{
    if (selection.isEmpty())
        return;
    const QScopedValueRollback<bool> restoreOrigin(selectionSetByEditor);
    const QScopedValueRollback<bool> restoreAutoUpdate(autoUpdate);
    // Maya reports the change from within the call.
    selectionSetByEditor = true;
    autoUpdate = false;
    MGlobal::setActiveSelectionList(selection, MGlobal::kReplaceList);
}
