// SPDX-License-Identifier: Apache-2.0
// Nodes that are new or stand elsewhere, and instances.
#include <algorithm>
#include <set>

#include "ma/nodeWriter.h"
#include "ma/sceneWriter.h"
#include "ma/textMerge.h"
#include "ma/valueMerger.h"

namespace host::ma
{

namespace
{

using Kind = TemplateStatement::Kind;

NodePtr shared(const Node *node)
{
    return std::const_pointer_cast<Node>(node->shared_from_this());
}

void takePlaces(const Node &parent, std::unordered_map<const Node *, std::size_t> &places)
{
    for (std::size_t i = 0; i < parent.children().size(); ++i) {
        if (parent.children()[i]->parents().front() == &parent)
            places.emplace(parent.children()[i].get(), i);
    }
}

// A node that came to its parent, or behind a younger one, later than the file's order says stands
// with all below it behind the other DAG nodes.
void deferMovedBlocks(TextMerge &merge)
{
    std::unordered_map<const Node *, std::size_t> places; // among the children in the template
    for (const NodePtr &node : merge.before.scene.nodes())
        takePlaces(*node, places);
    takePlaces(*merge.before.scene.world(), places);

    std::vector<const Node *> open = {merge.now.world().get()};
    while (!open.empty()) {
        const Node *parent = open.back();
        open.pop_back();
        const Node *parentBefore = merge.pairs.beforeOf(parent);
        bool isMoved = !parentBefore || merge.deferred.count(parentBefore) > 0;
        std::size_t place = 0;
        for (const NodePtr &child : parent->children()) {
            if (child->parents().front() != parent)
                continue;
            const Node *before = merge.pairs.beforeOf(child.get());
            isMoved = isMoved || !before || before->parents().front() != parentBefore ||
                      places[before] < place;
            if (before)
                place = places[before];
            if (before && isMoved)
                merge.deferred.insert(before);
            open.push_back(child.get());
        }
    }
}

// Nodes that every scene has and of which the template says nothing.
bool isUnchangedAndImplied(TextMerge &merge, const NodePtr &now)
{
    Node *before = merge.pairs.beforeOf(now.get());
    return before && merge.blocks.count(before) == 0 && hasSameHead(merge.pairs, *before, *now) &&
           differentDefinitions(*before, *now).empty() &&
           differentValues(before->shared_from_this(), now).empty() &&
           before->isLocked() == now->isLocked();
}

// New nodes and moved blocks, in the order of the scene.
std::string nodesBelow(TextMerge &merge, const Node &top)
{
    std::string text;
    std::vector<const Node *> open = {&top};
    while (!open.empty()) {
        const Node *node = open.back();
        open.pop_back();
        for (auto child = node->children().rbegin(); child != node->children().rend(); ++child) {
            if ((*child)->parents().front() == node)
                open.push_back(child->get());
        }
        if (node == &top)
            continue;
        const Node *before = merge.pairs.beforeOf(node);
        if (before && merge.deferred.count(before) > 0 && merge.blocks.count(before) > 0) {
            for (const std::size_t i : merge.blocks.at(before).statements)
                text += merge.textOf(i);
        } else if (!before || (merge.blocks.count(before) == 0 &&
                               !isUnchangedAndImplied(merge, shared(node)))) {
            text += statementsText([&](StatementWriter &out) {
                NodeWriter(out, merge.style).writeNode(shared(node));
            });
        }
    }
    return text;
}

void addNodes(TextMerge &merge)
{
    const std::string text = nodesBelow(merge, *merge.now.world());
    for (const Node *node : merge.deferred) {
        const auto block = merge.blocks.find(node);
        if (block == merge.blocks.end())
            continue;
        for (const std::size_t i : block->second.statements) {
            merge.drop(i);
            merge.additions.erase(i);
        }
    }
    merge.follow(merge.lastDagNode, text);
    for (const NodePtr &node : merge.now.nodes()) {
        if (node->isDag() || node->isDefault() || merge.pairs.beforeOf(node.get()))
            continue;
        merge.follow(merge.lastNode, statementsText([&](StatementWriter &out) {
                         NodeWriter(out, merge.style).writeNode(node);
                     }));
    }
}

void addDefaultNodes(TextMerge &merge)
{
    for (const NodePtr &node : merge.now.nodes()) {
        if (!node->isDefault())
            continue;
        const Node *before = merge.pairs.beforeOf(node.get());
        const bool isSaid = before && merge.blocks.count(before) > 0;
        if (!isSaid && !isUnchangedAndImplied(merge, node))
            merge.follow(merge.lastDefault, statementsText([&](StatementWriter &out) {
                             NodeWriter(out, merge.style).writeDefaultNode(node);
                         }));
    }
}

void mergeInstances(TextMerge &merge)
{
    std::set<std::pair<const Node *, const Node *>> said; // of now: node and parent
    for (std::size_t i = 0; i < merge.before.statements.size(); ++i) {
        const TemplateStatement &statement = merge.before.statements[i];
        if (statement.kind != Kind::instance)
            continue;
        const Node *node = merge.pairs.nowOf(statement.node);
        const Node *parent = merge.pairs.nowOf(statement.parent);
        const bool isThere = node && parent &&
                             std::find(node->parents().begin() + 1, node->parents().end(),
                                       parent) != node->parents().end();
        // Nodes that stand elsewhere now come behind this place.
        const bool isDeferred =
            merge.deferred.count(statement.node) > 0 || merge.deferred.count(statement.parent) > 0;
        if (!isThere || isDeferred) {
            merge.drop(i);
            continue;
        }
        said.emplace(node, parent);
        const std::vector<std::string_view> words = quotedWords(merge.before.textOf(statement));
        const bool holds =
            words.size() == 2 && merge.means(words[0], node) && merge.means(words[1], parent);
        if (!merge.areNamesKept && !holds)
            merge.replacements[i] = statementsText([&](StatementWriter &out) {
                SceneWriter(out, merge.now).writeInstanceOf(shared(node), *parent);
            });
    }
    for (const NodePtr &node : merge.now.nodes()) {
        for (std::size_t k = 1; k < node->parents().size(); ++k) {
            if (said.count({node.get(), node->parents()[k]}) == 0)
                merge.follow(
                    merge.lastDagNode, statementsText([&](StatementWriter &out) {
                        SceneWriter(out, merge.now).writeInstanceOf(node, *node->parents()[k]);
                    }));
        }
    }
}

} // namespace

void mergePlaces(TextMerge &merge)
{
    deferMovedBlocks(merge);
    addNodes(merge);
    mergeInstances(merge);
    addDefaultNodes(merge);
}

} // namespace host::ma
