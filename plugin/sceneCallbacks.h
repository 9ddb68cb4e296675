// SPDX-License-Identifier: Apache-2.0
// Maya's events on their way to the model, and the one way for the model to change Maya's selection
// without hearing of it.
#pragma once

#include <QScopedValueRollback>

#include <maya/MSelectionList.h>

// Callbacks for the events "SelectionChanged" and "SceneOpened". Both take the weightTableModel
// that registered them as client data. The first reloads the table while auto update is on, else
// selects the table's rows of the vertices picked; the second empties the table.
void onSelectionChanged(void *model);
void onSceneOpened(void *model);

// Lives while the editor changes Maya's selection. Events that come meanwhile leave the table
// alone; so does one that comes later and finds what it last knew to be selected: Maya's releases
// differ in when they deliver. To be ended with the selection that it began with, or by
// replaceSelectionQuietly().
class ownSelectionChange
{
public:
    ownSelectionChange();

private:
    ownSelectionChange(const ownSelectionChange &);            // not copied
    ownSelectionChange &operator=(const ownSelectionChange &); // not assigned

    QScopedValueRollback<bool> restoreOrigin_;
    QScopedValueRollback<bool> restoreAutoUpdate_;
};

// Makes `selection` Maya's selection; the event that this raises leaves the table alone. An empty
// selection changes nothing.
void replaceSelectionQuietly(const MSelectionList &selection);
