// SPDX-License-Identifier: Apache-2.0
#include "scene/selection.h"

#include <algorithm>

#include "scene/scene.h"

namespace host
{

namespace
{

// Components are named on the transform where the shape's own name adds nothing, as Maya does:
// "pCube1.vtx[3]".
std::string componentOwner(const DagPath &shape, bool fullPath)
{
    const DagPath transform = shape.parent();
    if (transform.isNull())
        return fullPath ? shape.fullName() : shape.partialName();
    std::size_t visibleShapes = 0;
    for (const NodePtr &child : transform.node()->children())
        visibleShapes += child->isA("shape") && !child->isIntermediate() ? 1 : 0;
    const DagPath &owner =
        visibleShapes == 1 && !shape.node()->isIntermediate() ? transform : shape;
    return fullPath ? owner.fullName() : owner.partialName();
}

} // namespace

bool SelectionItem::sameObject(const SelectionItem &other) const
{
    return node == other.node && path == other.path && isPlug() == other.isPlug();
}

bool SelectionItem::operator==(const SelectionItem &other) const
{
    return sameObject(other) && component == other.component && (!isPlug() || plug == other.plug);
}

std::vector<std::string> SelectionItem::names(bool fullPaths, bool isFlat) const
{
    if (isPlug())
        return {plug.name()};
    if (path.isNull())
        return {node->name()};
    if (!component)
        return {fullPaths ? path.fullName() : path.partialName()};
    const std::string owner = componentOwner(path, fullPaths);
    std::vector<std::string> names;
    for (const std::string &range : isFlat ? component->singles() : component->ranges())
        names.push_back(owner + '.' + range);
    return names;
}

void SelectionList::merge(const SelectionItem &item)
{
    for (SelectionItem &existing : items_) {
        if (existing == item)
            return;
        const bool joins = existing.sameObject(item) && existing.component && item.component &&
                           existing.component->kind == item.component->kind;
        if (joins) {
            existing.component->merge(*item.component);
            return;
        }
    }
    items_.push_back(item);
}

void SelectionList::remove(const SelectionItem &item)
{
    for (std::size_t i = 0; i < items_.size(); ++i) {
        SelectionItem &existing = items_[i];
        if (existing == item) {
            removeAt(i);
            return;
        }
        const bool overlaps = existing.sameObject(item) && existing.component && item.component &&
                              existing.component->kind == item.component->kind;
        if (overlaps) {
            existing.component->remove(*item.component);
            if (existing.component->elements.empty())
                removeAt(i);
            return;
        }
    }
}

void SelectionList::toggle(const SelectionItem &item)
{
    for (const SelectionItem &existing : items_) {
        const bool shares = existing.sameObject(item) && existing.component && item.component &&
                            existing.component->kind == item.component->kind;
        if (shares) {
            SelectionItem added = item;
            added.component->remove(*existing.component);
            SelectionItem dropped = item;
            dropped.component->remove(*added.component);
            remove(dropped);
            if (!added.component->elements.empty())
                merge(added);
            return;
        }
    }
    if (has(item))
        remove(item);
    else
        merge(item);
}

bool SelectionList::has(const SelectionItem &item) const
{
    return std::any_of(items_.begin(), items_.end(), [&item](const SelectionItem &existing) {
        if (existing == item)
            return true;
        if (!existing.sameObject(item) || !existing.component || !item.component)
            return false;
        const std::vector<int> &all = existing.component->elements;
        const std::vector<int> &some = item.component->elements;
        return existing.component->kind == item.component->kind &&
               std::includes(all.begin(), all.end(), some.begin(), some.end());
    });
}

bool SelectionList::dropDeleted()
{
    const auto gone = [](const SelectionItem &item) { return !item.node->isInScene(); };
    const auto end = std::remove_if(items_.begin(), items_.end(), gone);
    const bool dropped = end != items_.end();
    items_.erase(end, items_.end());
    return dropped;
}

} // namespace host
