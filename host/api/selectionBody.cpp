// SPDX-License-Identifier: Apache-2.0
#include "api/selectionBody.h"

#include "api/componentBody.h"

namespace host
{

const std::vector<SelectionItem> &itemsOf(const MSelectionList &list)
{
    return ApiAccess::body(list)->list.items();
}

void setItems(MSelectionList &list, std::vector<SelectionItem> items)
{
    SelectionList &target = ApiAccess::body(list)->list;
    target.clear();
    for (SelectionItem &item : items)
        target.append(std::move(item));
}

bool toItem(const MObject &object, SelectionItem &item)
{
    const NodePtr node = nodeOf(object);
    if (!node)
        return false;
    item.node = node;
    if (node->isDag())
        item.path = DagPath::first(node);
    return true;
}

bool toItem(const MDagPath &dagPath, const MObject &component, SelectionItem &item)
{
    const DagPath *path = pathOf(dagPath);
    Component elements;
    if (!path || (!component.isNull() && !toComponent(component, elements)))
        return false;
    item.path = *path;
    item.node = path->node();
    if (!component.isNull())
        item.component = std::move(elements);
    return true;
}

bool toItem(const MPlug &plug, SelectionItem &item)
{
    const Plug *hostPlug = plugOf(plug);
    if (!hostPlug)
        return false;
    item.plug = *hostPlug;
    item.node = hostPlug->node;
    if (item.node->isDag())
        item.path = DagPath::first(item.node);
    return true;
}

bool getItemPath(const SelectionItem &item, MDagPath &path, MObject &component)
{
    if (item.path.isNull() || !item.path.isValid() || item.isPlug())
        return false;
    path = toMDagPath(item.path);
    if (&component != &MObject::kNullObj)
        component = item.component ? toObject(*item.component) : MObject();
    return true;
}

} // namespace host
