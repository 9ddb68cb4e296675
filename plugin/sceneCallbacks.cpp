// SPDX-License-Identifier: Apache-2.0
#include "plugin/sceneCallbacks.h"

#include <QByteArray>

#include "model/selectionSignature.h"
#include "model/weightTableModel.h"
#include "plugin/processState.h"

#include <maya/MFileIO.h>
#include <maya/MGlobal.h>

namespace
{

// The selection of the last event, or what the editor has selected since; empty: not known.
QByteArray knownSelection;
// The editor has changed the selection, and no event has told of it yet.
bool ownEventDue = false;

QByteArray currentSelection()
{
    MSelectionList selection;
    MGlobal::getActiveSelectionList(selection, true);
    return signatureOf(selection);
}

bool isNothingSelected()
{
    MSelectionList selection;
    MGlobal::getActiveSelectionList(selection);
    return selection.isEmpty();
}

void forgetSelection()
{
    knownSelection.clear();
    ownEventDue = false;
}

// Whether an event that comes late tells of nothing but the editor's own change. Maya may make one
// event of several changes: where it finds another selection, the user has selected, too.
bool isLateEventOfEditor()
{
    const QByteArray expected = ownEventDue ? knownSelection : QByteArray();
    ownEventDue = false;
    knownSelection = currentSelection();
    return knownSelection == expected;
}

} // namespace

ownSelectionChange::ownSelectionChange()
    : restoreOrigin_(selectionSetByEditor), restoreAutoUpdate_(autoUpdate)
{
    selectionSetByEditor = true;
    autoUpdate = false;
    ownEventDue = true;
    if (knownSelection.isEmpty())
        knownSelection = currentSelection();
}

void replaceSelectionQuietly(const MSelectionList &selection)
{
    if (selection.isEmpty())
        return;
    const ownSelectionChange own;
    MGlobal::setActiveSelectionList(selection, MGlobal::kReplaceList);
    knownSelection = currentSelection();
}

void onSelectionChanged(void *model)
{
    weightTableModel &table = *static_cast<weightTableModel *>(model);
    const bool ignored = table.takeIgnoredSelectionChange();
    if (selectionSetByEditor) {
        ownEventDue = false; // this Maya delivers inside the call
        return;
    }
    // The scene of the table is going, the next one is not there yet: neither may be asked.
    if (MFileIO::isReadingFile() || MFileIO::isNewingFile()) {
        forgetSelection();
        return;
    }
    if (isLateEventOfEditor() || ignored || table.getSkinPaintSmoothMode())
        return;
    // That of a scene that was left, whenever it comes.
    if (table.weights().isSceneGone() && isNothingSelected())
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
    forgetSelection();
    // Opening a scene changes the selection as well, and that is still to be reported.
    table.ignoreNextSelectionChange();
}
