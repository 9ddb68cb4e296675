// SPDX-License-Identifier: Apache-2.0
// Maya's events on their way to the model, and the one way for the model to change Maya's selection
// without hearing of it.
#pragma once

#include <maya/MSelectionList.h>

// Callbacks for the events "SelectionChanged" and "SceneOpened". Both take the weightTableModel
// that registered them as client data. The first reloads the table while auto update is on, else
// selects the table's rows of the vertices picked; the second empties the table.
void onSelectionChanged(void *model);
void onSceneOpened(void *model);

// Makes `selection` Maya's selection; the event that this raises leaves the table alone. An empty
// selection changes nothing.
void replaceSelectionQuietly(const MSelectionList &selection);
