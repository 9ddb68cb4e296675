// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/pendingAttributes.h"

#include <algorithm>

#include "scene/error.h"

namespace host::mel
{

namespace
{

NewAttributePtr findCompound(const NewAttributePtr &attribute, std::string_view name)
{
    if (attribute->isCompound() && attribute->hasName(name))
        return attribute;
    for (std::size_t i = 0; i < attribute->children.size(); ++i) {
        if (NewAttributePtr found = findCompound(attribute->newChild(i), name))
            return found;
    }
    return nullptr;
}

const Attribute *rootOf(const Attribute &attribute)
{
    const Attribute *root = &attribute;
    while (root->parent)
        root = root->parent;
    return root;
}

} // namespace

NewAttributePtr PendingAttributes::add(const NodePtr &node, const NewAttributePtr &parent,
                                       const NewAttributePtr &attribute, unsigned childCount)
{
    if (!parent) {
        if (childCount == 0)
            return attribute;
        trees_.push_back({node, attribute, {{attribute.get(), childCount}}});
        return nullptr;
    }
    Tree *tree = treeOf(node, *parent);
    if (parent->children.size() >= tree->childCounts[parent.get()])
        throw Error("addAttr: '" + parent->longName + "' has all its children already.");
    if (parent->depth() >= kMaxAttributeDepth)
        throw Error("addAttr: Attributes nest too deeply at '" + attribute->longName + "'.");
    parent->addChild(attribute);
    if (childCount > 0)
        tree->childCounts[attribute.get()] = childCount;
    for (const auto &[compound, count] : tree->childCounts) {
        if (compound->children.size() < count)
            return nullptr;
    }
    NewAttributePtr complete = tree->root;
    trees_.erase(trees_.begin() + (tree - trees_.data()));
    return complete;
}

NewAttributePtr PendingAttributes::find(const NodePtr &node, std::string_view name) const
{
    // The newest first: a name may have been declared again after a mistake.
    for (auto tree = trees_.rbegin(); tree != trees_.rend(); ++tree) {
        if (tree->node.lock() != node)
            continue;
        if (NewAttributePtr found = findCompound(tree->root, name))
            return found;
    }
    return nullptr;
}

void PendingAttributes::dropDeleted()
{
    const auto isGone = [](const Tree &tree) {
        const NodePtr node = tree.node.lock();
        return !node || !node->isInScene();
    };
    trees_.erase(std::remove_if(trees_.begin(), trees_.end(), isGone), trees_.end());
}

PendingAttributes::Tree *PendingAttributes::treeOf(const NodePtr &node, const Attribute &member)
{
    const Attribute *root = rootOf(member);
    for (Tree &tree : trees_) {
        if (tree.node.lock() == node && tree.root.get() == root)
            return &tree;
    }
    return nullptr;
}

} // namespace host::mel
