// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MFnSet.h>
#include <maya/MSelectionList.h>

#include <algorithm>

#include "api/functionSet.h"
#include "api/nodeBody.h"
#include "api/selectionBody.h"
#include "scene/setMembers.h"

using host::answer;
using host::NodePtr;
using host::SelectionItem;

namespace
{

// Sets in sets, at most; deeper nesting is a loop.
constexpr unsigned kMaxSetDepth = 100;

// Members, with the members of sets among them in place of the sets.
void listFlat(const NodePtr &set, unsigned depth, std::vector<SelectionItem> &members)
{
    for (const SelectionItem &member : host::setMembers(*set)) {
        if (member.node && member.node->isA("objectSet") && depth < kMaxSetDepth)
            listFlat(member.node, depth + 1, members);
        else
            members.push_back(member);
    }
}

bool contains(const SelectionItem &member, const SelectionItem &item)
{
    if (!member.sameObject(item))
        return false;
    if (!member.component)
        return true;
    if (!item.component || item.component->kind != member.component->kind)
        return false;
    const std::vector<int> &all = member.component->elements;
    const std::vector<int> &wanted = item.component->elements;
    return std::includes(all.begin(), all.end(), wanted.begin(), wanted.end());
}

// An object belongs to a set as itself or, for a shape, as its transform.
bool isMemberOf(const NodePtr &set, const SelectionItem &item)
{
    SelectionItem above = item;
    if (!item.path.isNull() && item.node->isA("shape") && !item.component) {
        above.path = item.path.parent();
        above.node = above.path.isNull() ? item.node : above.path.node();
    }
    const std::vector<SelectionItem> members = host::setMembers(*set);
    return std::any_of(members.begin(), members.end(), [&](const SelectionItem &member) {
        return contains(member, item) || contains(member, above);
    });
}

} // namespace

DEFINE_FUNCTION_SET(MFnSet, MFn::kSet)

MStatus MFnSet::getMembers(MSelectionList &members, bool flatten) const
{
    const NodePtr set = host::nodeOf(*this);
    if (!set)
        return MStatus::kFailure;
    std::vector<SelectionItem> items;
    if (flatten)
        listFlat(set, 0, items);
    else
        items = host::setMembers(*set);
    host::setItems(members, std::move(items));
    return MStatus::kSuccess;
}

bool MFnSet::isMember(const MObject &object, MStatus *ReturnStatus) const
{
    const NodePtr set = host::nodeOf(*this);
    SelectionItem item;
    if (!set || !host::toItem(object, item))
        return answer(ReturnStatus, set ? MStatus::kInvalidParameter : MStatus::kFailure, false);
    return answer(ReturnStatus, MStatus::kSuccess, isMemberOf(set, item));
}

bool MFnSet::isMember(const MDagPath &object, const MObject &component, MStatus *ReturnStatus) const
{
    const NodePtr set = host::nodeOf(*this);
    SelectionItem item;
    if (!set || !host::toItem(object, component, item))
        return answer(ReturnStatus, set ? MStatus::kInvalidParameter : MStatus::kFailure, false);
    return answer(ReturnStatus, MStatus::kSuccess, isMemberOf(set, item));
}
