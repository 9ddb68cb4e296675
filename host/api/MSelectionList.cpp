// SPDX-License-Identifier: Apache-2.0
#include <maya/MPlug.h>
#include <maya/MSelectionList.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include <algorithm>

#include "api/process.h"
#include "api/selectionBody.h"
#include "api/status.h"
#include "api/text.h"

using host::answer;
using host::SelectionBody;
using host::SelectionItem;

namespace
{

// Adds an item that is known, or fails.
MStatus addItem(host::SelectionList &list, bool isKnown, SelectionItem item, bool mergeWithExisting)
{
    if (!isKnown)
        return MStatus::kInvalidParameter;
    if (mergeWithExisting)
        list.merge(item);
    else
        list.append(std::move(item));
    return MStatus::kSuccess;
}

void mergeItem(host::SelectionList &list, const SelectionItem &item,
               MSelectionList::MergeStrategy strategy)
{
    if (strategy == MSelectionList::kRemoveFromList)
        list.remove(item);
    else if (strategy == MSelectionList::kXORWithList)
        list.toggle(item);
    else
        list.merge(item);
}

MStringArray namesOf(const SelectionItem &item)
{
    MStringArray names;
    for (const std::string &name : item.names())
        names.append(host::toMString(name));
    return names;
}

} // namespace

MSelectionList::MSelectionList() : body_(new SelectionBody) {}
MSelectionList::MSelectionList(const MSelectionList &other) : body_(new SelectionBody(*other.body_))
{
}
MSelectionList::~MSelectionList() = default;
const char *MSelectionList::className()
{
    return "MSelectionList";
}

MSelectionList &MSelectionList::operator=(const MSelectionList &other)
{
    *body_ = *other.body_;
    return *this;
}

MStatus MSelectionList::clear()
{
    body_->list.clear();
    return MStatus::kSuccess;
}

bool MSelectionList::isEmpty(MStatus *ReturnStatus) const
{
    return answer(ReturnStatus, MStatus::kSuccess, body_->list.isEmpty());
}

unsigned int MSelectionList::length(MStatus *ReturnStatus) const
{
    return answer(ReturnStatus, MStatus::kSuccess, static_cast<unsigned int>(body_->list.size()));
}

MStatus MSelectionList::getDependNode(unsigned int index, MObject &depNode) const
{
    if (index >= body_->list.size())
        return MStatus::kInvalidParameter;
    const SelectionItem &item = body_->list.items()[index];
    if (item.component || !item.node || !item.node->isInScene())
        return MStatus::kFailure;
    depNode = host::toObject(item.node);
    return MStatus::kSuccess;
}

MStatus MSelectionList::getDagPath(unsigned int index, MDagPath &dagPath, MObject &component) const
{
    if (index >= body_->list.size())
        return MStatus::kInvalidParameter;
    const bool isDag = host::getItemPath(body_->list.items()[index], dagPath, component);
    return isDag ? MStatus::kSuccess : MStatus::kFailure;
}

MStatus MSelectionList::getPlug(unsigned int index, MPlug &plug) const
{
    if (index >= body_->list.size())
        return MStatus::kInvalidParameter;
    const SelectionItem &item = body_->list.items()[index];
    if (!item.isPlug())
        return MStatus::kFailure;
    plug = host::toMPlug(item.plug);
    return MStatus::kSuccess;
}

MStatus MSelectionList::add(const MObject &object, const bool mergeWithExisting)
{
    SelectionItem item;
    const bool isKnown = host::toItem(object, item);
    return addItem(body_->list, isKnown, std::move(item), mergeWithExisting);
}

MStatus MSelectionList::add(const MDagPath &object, const MObject &component,
                            const bool mergeWithExisting)
{
    SelectionItem item;
    const bool isKnown = host::toItem(object, component, item);
    return addItem(body_->list, isKnown, std::move(item), mergeWithExisting);
}

MStatus MSelectionList::add(const MPlug &plug, const bool mergeWithExisting)
{
    SelectionItem item;
    const bool isKnown = host::toItem(plug, item);
    return addItem(body_->list, isKnown, std::move(item), mergeWithExisting);
}

MStatus MSelectionList::add(const MString &matchString, const bool)
{
    host::Process *process = host::Process::current();
    if (!process)
        return MStatus::kFailure;
    return host::quietly(MStatus::kInvalidParameter, [&] {
        for (SelectionItem &item :
             host::requireName(process->session().scene(), host::view(matchString)))
            body_->list.append(std::move(item));
    });
}

MStatus MSelectionList::remove(unsigned int index)
{
    if (index >= body_->list.size())
        return MStatus::kInvalidParameter;
    body_->list.removeAt(index);
    return MStatus::kSuccess;
}

MStatus MSelectionList::replace(unsigned int index, const MObject &object)
{
    SelectionItem item;
    if (index >= body_->list.size() || !host::toItem(object, item))
        return MStatus::kInvalidParameter;
    body_->list.replaceAt(index, std::move(item));
    return MStatus::kSuccess;
}

MStatus MSelectionList::replace(unsigned int index, const MDagPath &path, const MObject &component)
{
    SelectionItem item;
    if (index >= body_->list.size() || !host::toItem(path, component, item))
        return MStatus::kInvalidParameter;
    body_->list.replaceAt(index, std::move(item));
    return MStatus::kSuccess;
}

bool MSelectionList::hasItem(const MObject &object, MStatus *ReturnStatus) const
{
    SelectionItem item;
    const bool isKnown = host::toItem(object, item);
    host::report(ReturnStatus, isKnown ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return isKnown && body_->list.has(item);
}

bool MSelectionList::hasItem(const MDagPath &path, const MObject &component,
                             MStatus *ReturnStatus) const
{
    SelectionItem item;
    const bool isKnown = host::toItem(path, component, item);
    host::report(ReturnStatus, isKnown ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return isKnown && body_->list.has(item);
}

// True if any of the component's elements is in the list.
bool MSelectionList::hasItemPartly(const MDagPath &path, const MObject &component,
                                   MStatus *ReturnStatus) const
{
    SelectionItem item;
    const bool isKnown = host::toItem(path, component, item);
    host::report(ReturnStatus, isKnown ? MStatus::kSuccess : MStatus::kInvalidParameter);
    if (!isKnown)
        return false;
    const auto &items = body_->list.items();
    return std::any_of(items.begin(), items.end(), [&item](const SelectionItem &other) {
        if (!item.component || !other.component)
            return other == item;
        if (!other.sameObject(item) || other.component->kind != item.component->kind)
            return false;
        const std::vector<int> &wanted = item.component->elements;
        return std::any_of(wanted.begin(), wanted.end(), [&other](int element) {
            const std::vector<int> &elements = other.component->elements;
            return std::binary_search(elements.begin(), elements.end(), element);
        });
    });
}

MStatus MSelectionList::toggle(const MDagPath &path, const MObject &component)
{
    return merge(path, component, kXORWithList);
}

MStatus MSelectionList::merge(const MSelectionList &other, const MergeStrategy strategy)
{
    const std::vector<SelectionItem> items = host::itemsOf(other); // `other` may be this list
    for (const SelectionItem &item : items)
        mergeItem(body_->list, item, strategy);
    return MStatus::kSuccess;
}

MStatus MSelectionList::merge(const MDagPath &path, const MObject &component,
                              const MergeStrategy strategy)
{
    SelectionItem item;
    if (!host::toItem(path, component, item))
        return MStatus::kInvalidParameter;
    mergeItem(body_->list, item, strategy);
    return MStatus::kSuccess;
}

MStatus MSelectionList::getSelectionStrings(MStringArray &array) const
{
    MStringArray all;
    for (const SelectionItem &item : body_->list.items()) {
        const MStringArray names = namesOf(item);
        for (unsigned int i = 0; i < names.length(); ++i)
            all.append(names[i]);
    }
    array = all;
    return MStatus::kSuccess;
}

MStatus MSelectionList::getSelectionStrings(unsigned int index, MStringArray &array) const
{
    if (index >= body_->list.size())
        return MStatus::kInvalidParameter;
    array = namesOf(body_->list.items()[index]);
    return MStatus::kSuccess;
}
