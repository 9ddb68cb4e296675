// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <unordered_set>

#include "ma/plugText.h"
#include "ma/sceneWriter.h"
#include "ma/textMerge.h"
#include "ma/valueMerger.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

using Kind = TemplateStatement::Kind;

// Whether the statement names the ends as they are called now.
bool namesHold(const TextMerge &merge, const TemplateStatement &statement, const Connection &source,
               const Node &destination)
{
    if (merge.areNamesKept)
        return true;
    const std::vector<std::string_view> words = quotedWords(merge.before.textOf(statement));
    const auto nodeOf = [](std::string_view word) { return word.substr(0, word.find('.')); };
    return words.size() == 2 && merge.means(nodeOf(words[0]), source.node) &&
           merge.means(nodeOf(words[1]), &destination);
}

void addConnections(TextMerge &merge, const std::unordered_set<const Connection *> &stated,
                    std::unordered_set<const Connection *> claimed)
{
    // What the template's scene has without a statement comes by itself.
    for (const NodePtr &node : merge.before.scene.nodes()) {
        for (const auto &[key, connection] : node->sources()) {
            if (stated.count(&connection) > 0)
                continue;
            const Plug end = plugNow(merge.pairs, node->plugOf(key));
            const Connection *is = end.isNull() ? nullptr : end.node->source(end);
            if (is && isSameConnection(merge.pairs, connection, *is))
                claimed.insert(is);
        }
    }
    std::unordered_map<const Node *, std::size_t> places;
    for (std::size_t i = 0; i < merge.before.statements.size(); ++i) {
        if (merge.before.statements[i].kind == Kind::connection)
            places[merge.before.statements[i].node] = i;
    }
    for (const NodePtr &node : merge.now.nodes()) {
        std::vector<std::pair<PlugKey, const Connection *>> added;
        for (const auto &[key, connection] : node->sources()) {
            if (claimed.count(&connection) == 0)
                added.emplace_back(key, &connection);
        }
        if (added.empty())
            continue;
        std::sort(added.begin(), added.end(),
                  [](const auto &a, const auto &b) { return isWrittenBefore(a.first, b.first); });
        const auto place = places.find(merge.pairs.beforeOf(node.get()));
        merge.follow(place == places.end() ? merge.lastConnection : place->second,
                     statementsText([&](StatementWriter &out) {
                         for (const auto &[key, connection] : added)
                             writeConnection(out, merge.style.flags, node->plugOf(key),
                                             *connection);
                     }));
    }
}

// Connections that could not be made keep their order: the k-th of the template is the scene's
// k-th, those that an import has brought come behind.
void mergeKeptConnections(TextMerge &merge)
{
    const auto textOf = [](const KeptConnection &connection) {
        return hasItsNodes(connection) ? statementsText([&](StatementWriter &out) {
            writeKeptConnection(out, connection);
        })
                                       : std::string();
    };
    const std::vector<KeptConnection> &was = merge.before.scene.facts.keptConnections;
    const std::vector<KeptConnection> &is = merge.now.facts.keptConnections;
    std::size_t k = 0;
    for (std::size_t i = 0; i < merge.before.statements.size() && k < is.size(); ++i) {
        if (merge.before.statements[i].kind != Kind::keptConnection)
            continue;
        const std::string text = textOf(is[k]);
        if (text != textOf(was[k]))
            merge.replacements[i] = text;
        ++k;
    }
    for (; k < is.size(); ++k)
        merge.follow(merge.lastConnection, textOf(is[k]));
}

} // namespace

void mergeConnections(TextMerge &merge)
{
    std::unordered_set<const Connection *> stated;  // of the template's scene
    std::unordered_set<const Connection *> claimed; // of the scene
    for (std::size_t i = 0; i < merge.before.statements.size(); ++i) {
        const TemplateStatement &statement = merge.before.statements[i];
        if (statement.kind != Kind::connection)
            continue;
        Plug end;
        end.node = statement.node->shared_from_this();
        end.attribute = ownerOf(*statement.node, *statement.attribute);
        end.indices = statement.indices;
        if (!end.attribute) // the node has got another type since
            continue;
        const Connection *was = statement.node->source(end);
        const Plug endNow = plugNow(merge.pairs, end);
        const Connection *is = endNow.isNull() ? nullptr : endNow.node->source(endNow);
        const bool isFirst = was && stated.insert(was).second; // of those that say this end
        const bool isSame = was && is && isSameConnection(merge.pairs, *was, *is);
        if (!is || (!isSame && !isFirst)) {
            merge.drop(i);
            continue;
        }
        claimed.insert(is);
        if (!isSame || !namesHold(merge, statement, *is, *endNow.node))
            merge.replacements[i] = statementsText([&](StatementWriter &out) {
                writeConnection(out, merge.style.flags, endNow, *is);
            });
    }
    addConnections(merge, stated, std::move(claimed));
    mergeKeptConnections(merge);
}

} // namespace host::ma
