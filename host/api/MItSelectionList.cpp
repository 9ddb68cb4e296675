// SPDX-License-Identifier: Apache-2.0
#include <maya/MItSelectionList.h>
#include <maya/MPlug.h>
#include <maya/MString.h>

#include "api/componentBody.h"
#include "api/selectionBody.h"
#include "api/status.h"
#include "api/text.h"

using host::answer;
using host::SelectionItem;

namespace host
{

// The items that pass the filter, and the place among them. The list itself is not needed any more.
class SelectionWalk
{
public:
    const MSelectionList *list = nullptr;
    MFn::Type filter = MFn::kInvalid;
    std::vector<SelectionItem> items;
    std::size_t place = 0;

    void restart();
    bool isDone() const { return place >= items.size(); }
    const SelectionItem &item() const { return items[place]; }
    // The item under the iterator, null when it is done.
    const SelectionItem *current() const { return isDone() ? nullptr : &items[place]; }

private:
    bool passes(const SelectionItem &item) const;
};

bool SelectionWalk::passes(const SelectionItem &item) const
{
    if (filter == MFn::kInvalid)
        return true;
    if (!item.node || !item.node->isInScene())
        return false;
    return toObject(item.node).hasFn(filter) ||
           (item.component && toObject(*item.component).hasFn(filter));
}

// An item that does not pass stands for those of its children that do: kMesh finds the shape of a
// selected transform.
void SelectionWalk::restart()
{
    items.clear();
    place = 0;
    for (const SelectionItem &item : itemsOf(*list)) {
        if (passes(item)) {
            items.push_back(item);
            continue;
        }
        if (item.path.isNull() || !item.path.isValid() || item.isPlug())
            continue;
        for (const NodePtr &node : item.path.node()->children()) {
            SelectionItem child;
            child.path = item.path.child(node);
            child.node = node;
            if (passes(child))
                items.push_back(child);
        }
    }
}

} // namespace host

MItSelectionList::MItSelectionList(const MSelectionList &list, MFn::Type filter,
                                   MStatus *ReturnStatus)
    : walk_(new host::SelectionWalk)
{
    walk_->list = &list;
    walk_->filter = filter;
    walk_->restart();
    host::report(ReturnStatus);
}

MItSelectionList::~MItSelectionList() = default;
const char *MItSelectionList::className()
{
    return "MItSelectionList";
}

bool MItSelectionList::isDone(MStatus *ReturnStatus)
{
    return answer(ReturnStatus, MStatus::kSuccess, walk_->isDone());
}

MStatus MItSelectionList::next()
{
    if (walk_->isDone())
        return MStatus::kFailure;
    ++walk_->place;
    return MStatus::kSuccess;
}

MStatus MItSelectionList::reset()
{
    walk_->restart();
    return MStatus::kSuccess;
}

MStatus MItSelectionList::setFilter(MFn::Type filter)
{
    walk_->filter = filter;
    return reset();
}

MStatus MItSelectionList::getDependNode(MObject &depNode)
{
    const SelectionItem *item = walk_->current();
    if (!item || item->component || !item->node || !item->node->isInScene())
        return MStatus::kFailure;
    depNode = host::toObject(item->node);
    return MStatus::kSuccess;
}

MStatus MItSelectionList::getDagPath(MDagPath &dagPath, MObject &component)
{
    const SelectionItem *item = walk_->current();
    return item && host::getItemPath(*item, dagPath, component) ? MStatus::kSuccess
                                                                : MStatus::kFailure;
}

MStatus MItSelectionList::getDagPath(MDagPath &dagPath)
{
    return getDagPath(dagPath, MObject::kNullObj);
}

MStatus MItSelectionList::getPlug(MPlug &plug)
{
    const SelectionItem *item = walk_->current();
    if (!item || !item->isPlug())
        return MStatus::kFailure;
    plug = host::toMPlug(item->plug);
    return MStatus::kSuccess;
}

MStatus MItSelectionList::getStrings(MStringArray &array)
{
    const SelectionItem *item = walk_->current();
    if (!item)
        return MStatus::kFailure;
    MStringArray names;
    for (const std::string &name : item->names())
        names.append(host::toMString(name));
    array = names;
    return MStatus::kSuccess;
}

MItSelectionList::selItemType MItSelectionList::itemType(MStatus *ReturnStatus)
{
    const SelectionItem *item = walk_->current();
    if (!item)
        return answer(ReturnStatus, MStatus::kFailure, kUnknownItem);
    host::report(ReturnStatus);
    if (item->isPlug())
        return kPlugSelectionItem;
    return item->path.isNull() ? kDNselectionItem : kDagSelectionItem;
}

bool MItSelectionList::hasComponents(MStatus *ReturnStatus) const
{
    const SelectionItem *item = walk_->current();
    host::report(ReturnStatus, item ? MStatus::kSuccess : MStatus::kFailure);
    return item && item->component;
}
