// SPDX-License-Identifier: Apache-2.0
// Selection lists between the API and the scene.
#pragma once

#include <maya/MDagPath.h>
#include <maya/MSelectionList.h>

#include "api/nodeBody.h"
#include "scene/selection.h"

namespace host
{

// Behind MSelectionList.
class SelectionBody
{
public:
    SelectionList list;
};

const std::vector<SelectionItem> &itemsOf(const MSelectionList &list);
void setItems(MSelectionList &list, std::vector<SelectionItem> items);

// Items for what MSelectionList::add takes. False if the argument means nothing in the scene: a
// null or deleted object, a component that is none of a mesh, a shape without such a component.
bool toItem(const MObject &node, SelectionItem &item);
bool toItem(const MDagPath &path, const MObject &component, SelectionItem &item);
bool toItem(const MPlug &plug, SelectionItem &item);

// Fills what getDagPath gives. A component parameter that is MObject::kNullObj itself was left out
// by the caller and is not written. False, with both left alone, for an item outside the DAG.
bool getItemPath(const SelectionItem &item, MDagPath &path, MObject &component);

} // namespace host
