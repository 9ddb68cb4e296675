// SPDX-License-Identifier: Apache-2.0
// The statements about one node: its name and UUID, dynamic attributes, values, locks.
#include <algorithm>

#include "ma/nodeWriter.h"
#include "ma/textMerge.h"
#include "ma/valueMerger.h"
#include "scene/error.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

using Kind = TemplateStatement::Kind;

std::size_t lastOf(TextMerge &merge, const TextMerge::Block &block,
                   std::initializer_list<Kind> kinds)
{
    std::size_t last = block.statements.front();
    for (const std::size_t i : block.statements) {
        const Kind kind = merge.before.statements[i].kind;
        if (std::find(kinds.begin(), kinds.end(), kind) != kinds.end())
            last = i;
    }
    return last;
}

void mergeHead(TextMerge &merge, const Node &before, const NodePtr &now,
               const TextMerge::Block &block)
{
    const auto uuidText = [&] {
        return statementsText(
            [&](StatementWriter &out) { NodeWriter(out, merge.style).writeUuid(*now); });
    };
    bool hasUuid = false;
    for (const std::size_t i : block.statements) {
        const TemplateStatement &statement = merge.before.statements[i];
        const std::string_view text = merge.before.textOf(statement);
        if (statement.kind == Kind::createNode) {
            const Node *parent = now->isDag() ? now->parents().front() : nullptr;
            const bool isTop = !parent || parent == merge.now.world().get();
            const std::vector<std::string_view> words =
                quotedWords(text.substr(beforeCommand(text).size()));
            const bool hasParent = merge.areNamesKept || isTop || words.size() < 2 ||
                                   std::any_of(words.begin(), words.end(), [&](std::string_view w) {
                                       return merge.means(w, parent);
                                   });
            if (!hasSameHead(merge.pairs, before, *now) || !hasParent)
                merge.replacements[i] = statementsText([&](StatementWriter &out) {
                    NodeWriter(out, merge.style).writeCreateNode(now);
                });
        } else if (statement.kind == Kind::selectNode && before.name() != now->name()) {
            merge.replacements[i] = "\nselect " +
                                    std::string(merge.style.flags("-ne ", "-noExpand ")) +
                                    nodeText(*now) + ';';
        } else if (statement.kind == Kind::uuid) {
            hasUuid = true;
            if (before.uuid() != now->uuid())
                merge.replacements[i] = now->uuid().empty() ? std::string() : uuidText();
        }
    }
    if (!hasUuid && before.uuid() != now->uuid() && !now->uuid().empty())
        merge.add(lastOf(merge, block, {Kind::createNode}), uuidText());
}

void mergeDefinitions(TextMerge &merge, const Node &before, const NodePtr &now,
                      const TextMerge::Block &block)
{
    const std::size_t end =
        lastOf(merge, block, {Kind::createNode, Kind::uuid, Kind::addAttribute});
    if (hasAliases(now) && !hasAliases(std::const_pointer_cast<Node>(before.shared_from_this())))
        merge.add(end, statementsText([&](StatementWriter &out) {
                      NodeWriter(out, merge.style).writeAddAliases();
                  }));
    for (const AttributePair &pair : differentDefinitions(before, *now)) {
        std::size_t place = end;
        for (const std::size_t i : block.statements) {
            const TemplateStatement &statement = merge.before.statements[i];
            if (!pair.before || statement.kind != Kind::addAttribute ||
                statement.attribute != pair.before.get())
                continue;
            merge.drop(i);
            place = i;
        }
        if (pair.now)
            merge.add(place, statementsText([&](StatementWriter &out) {
                          NodeWriter(out, merge.style).writeAddAttr(*pair.now);
                      }));
    }
}

void mergeAttribute(TextMerge &merge, const NodePtr &before, const NodePtr &now,
                    const AttributePair &attribute, const TextMerge::Block &block)
{
    std::vector<std::size_t> about;
    std::vector<std::string_view> texts;
    for (const std::size_t i : block.statements) {
        const TemplateStatement &statement = merge.before.statements[i];
        if (statement.kind != Kind::setAttribute || statement.attribute != attribute.before.get())
            continue;
        about.push_back(i);
        texts.push_back(merge.before.textOf(statement));
    }
    const std::size_t end = about.empty()
                                ? lastOf(merge, block,
                                         {Kind::createNode, Kind::selectNode, Kind::uuid,
                                          Kind::addAttribute, Kind::setAttribute, Kind::other})
                                : about.back();
    std::optional<MergedStatements> merged;
    const bool isAnew =
        about.empty() || merge.writtenAnew.count({now.get(), attribute.now.get()}) > 0;
    try {
        if (!isAnew && attribute.now && isWeightList(Plug(now, attribute.now)))
            merged = mergeWeights(merge.style, texts, before, now);
        else if (!isAnew)
            merged = mergeValues(merge.style, texts, before, now, attribute);
    } catch (const Error &) { // a form that was not foreseen
        merged.reset();
    }
    if (!merged && attribute.now) {
        merged.emplace();
        merged->statements.resize(texts.size());
        merged->added = statementsText([&](StatementWriter &out) {
            ValueWriter(out, merge.style, now).writeAttribute(attribute.now);
        });
    }
    for (std::size_t k = 0; merged && k < about.size(); ++k) {
        if (merged->statements[k] != texts[k])
            merge.replacements[about[k]] = merged->statements[k];
    }
    if (merged)
        merge.add(end, merged->added);
}

// Arrays whose elements come and go with connections.
void mergeSizes(TextMerge &merge, const NodePtr &before, const NodePtr &now,
                const TextMerge::Block &block)
{
    if (haveSamePlugs(*before, *now))
        return;
    for (const std::size_t i : block.statements) {
        const TemplateStatement &statement = merge.before.statements[i];
        const std::string_view text = merge.before.textOf(statement);
        const bool hasSize =
            statement.kind == Kind::setAttribute && text.find(" -s") != std::string_view::npos;
        if (!hasSize || merge.replacements.count(i) > 0)
            continue;
        std::string merged = mergeSize(text, before, now);
        if (merged != text)
            merge.replacements[i] = std::move(merged);
    }
}

void mergeLocks(TextMerge &merge, const Node &before, const NodePtr &now,
                const TextMerge::Block &block)
{
    if (before.isLocked() == now->isLocked() &&
        before.isLockUnpublished() == now->isLockUnpublished())
        return;
    std::size_t place = block.statements.back();
    for (const std::size_t i : block.statements) {
        if (merge.before.statements[i].kind != Kind::nodeLock)
            continue;
        merge.drop(i);
        place = i;
    }
    merge.add(place, statementsText([&](StatementWriter &out) {
                  NodeWriter(out, merge.style).writeLocks(*now);
              }));
}

void mergeBlock(TextMerge &merge, Node *before, const TextMerge::Block &block)
{
    Node *found = merge.pairs.nowOf(before);
    if (!found) {
        for (const std::size_t i : block.statements)
            merge.drop(i);
        return;
    }
    const NodePtr now = found->shared_from_this();
    mergeHead(merge, *before, now, block);
    mergeDefinitions(merge, *before, now, block);
    for (const AttributePair &pair : differentValues(before->shared_from_this(), now))
        mergeAttribute(merge, before->shared_from_this(), now, pair, block);
    mergeSizes(merge, before->shared_from_this(), now, block);
    mergeLocks(merge, *before, now, block);
}

} // namespace

void mergeBlocks(TextMerge &merge)
{
    for (Node *node : merge.order)
        mergeBlock(merge, node, merge.blocks.at(node));
}

} // namespace host::ma
