// SPDX-License-Identifier: Apache-2.0
#include "ma/textMerge.h"

#include <algorithm>

#include "ma/sceneWriter.h"
#include "scene/error.h"

namespace host::ma
{

using Kind = TemplateStatement::Kind;

namespace
{

// The line that begins with `words`, without its end; empty if there is none.
std::string_view lineOf(std::string_view comments, std::string_view words)
{
    const std::size_t begin = comments.find(words);
    if (begin == std::string_view::npos || (begin > 0 && comments[begin - 1] != '\n'))
        return {};
    const std::string_view line = comments.substr(begin);
    return line.substr(0, line.find_first_of("\r\n"));
}

void replaceLine(std::string &comments, std::string_view words, const std::string &name)
{
    const std::string_view line = lineOf(comments, words);
    if (!line.empty())
        comments.replace(std::size_t(line.data() - comments.data()), line.size(),
                         std::string(words) + name);
}

} // namespace

std::string_view beforeCommand(std::string_view statement)
{
    std::size_t at = 0;
    for (;;) {
        at = std::min(statement.find_first_not_of(" \t\r\n", at), statement.size());
        if (statement.substr(at, 2) != "//")
            return statement.substr(0, at);
        at = std::min(statement.find('\n', at), statement.size());
    }
}

std::vector<std::string_view> quotedWords(std::string_view statement)
{
    std::vector<std::string_view> words;
    for (std::size_t at = statement.find('"'); at != std::string_view::npos;) {
        const std::size_t end = std::min(statement.find('"', at + 1), statement.size());
        words.push_back(statement.substr(at + 1, end - at - 1));
        at = statement.find('"', end + 1);
    }
    return words;
}

TextMerge::TextMerge(const Template &beforeIt, Scene &nowIt)
    : before(beforeIt), now(nowIt), style(styleOf(now.facts)), pairs(before.scene, now)
{
    sortStatements();
    areNamesKept = isNamedAsBefore();
    const std::size_t lineEnd = before.text.find('\n');
    hasCrLf_ = lineEnd != std::string::npos && lineEnd > 0 && before.text[lineEnd - 1] == '\r';
}

void TextMerge::sortStatements()
{
    const Node *open = nullptr; // whose block goes on
    for (std::size_t i = 0; i < before.statements.size(); ++i) {
        const TemplateStatement &statement = before.statements[i];
        const Kind kind = statement.kind;
        if (kind == Kind::instance)
            lastDagNode = lastNode = i;
        if (kind == Kind::connection || kind == Kind::keptConnection)
            lastConnection = i;
        if (kind < Kind::trailing && kind != Kind::other)
            lastFact = i;
        const bool isInBlock = (kind >= Kind::createNode && kind <= Kind::nodeLock) ||
                               (kind == Kind::other && statement.node == open);
        open = isInBlock ? statement.node : nullptr;
        if (!open)
            continue;
        Block &block = blocks[open];
        if (block.statements.empty())
            order.push_back(statement.node);
        block.hasCreate = block.hasCreate || kind == Kind::createNode;
        block.statements.push_back(i);
        (block.hasCreate ? lastNode : lastDefault) = i;
        if (block.hasCreate && open->isDag())
            lastDagNode = i;
    }
    lastDagNode = std::max(lastDagNode, lastFact);
    lastNode = std::max(lastNode, lastDagNode);
    lastDefault = std::max(lastDefault, lastNode);
    lastConnection = std::max(lastConnection, lastDefault);
    lastTrailing = before.statements.empty() ? 0 : before.statements.size() - 1;
}

bool TextMerge::isNamedAsBefore() const
{
    const std::vector<NodePtr> nodes = before.scene.nodes();
    return nodes.size() == now.nodeCount() &&
           std::all_of(nodes.begin(), nodes.end(), [this](const NodePtr &node) {
               const Node *other = pairs.nowOf(node.get());
               return other && hasSameHead(pairs, *node, *other);
           });
}

bool TextMerge::means(std::string_view name, const Node *node) const
{
    if (areNamesKept)
        return true;
    try {
        return now.findNode(name).get() == node;
    } catch (const Error &) { // it means several by now
        return false;
    }
}

// New text has line feeds; words that were copied have the file's line ends already.
std::string TextMerge::withLineEnds(std::string text) const
{
    for (std::size_t at = text.find('\n'); hasCrLf_ && at != std::string::npos;
         at = text.find('\n', at + 1)) {
        if (at == 0 || text[at - 1] != '\r')
            text.insert(at++, 1, '\r');
    }
    return text;
}

std::string TextMerge::textOf(std::size_t i) const
{
    const auto replacement = replacements.find(i);
    const auto addition = additions.find(i);
    const std::string_view text = before.textOf(before.statements[i]);
    std::string result;
    if (replacement == replacements.end()) {
        result = text;
    } else {
        const std::string_view lead = beforeCommand(text); // comments stay; the header's come apart
        if (i > 0 && lead.find("//") != std::string_view::npos)
            result = lead.substr(0, lead.find_last_of('\n'));
        result += withLineEnds(replacement->second);
    }
    return addition == additions.end() ? result : result + withLineEnds(addition->second);
}

std::string TextMerge::header(const std::string &name) const
{
    std::string comments(beforeCommand(before.textOf(before.statements.front())));
    const auto hasText = [](const auto &entry) { return !entry.second.empty(); };
    const bool isChanged = !replacements.empty() ||
                           std::any_of(additions.begin(), additions.end(), hasText) ||
                           std::any_of(followers.begin(), followers.end(), hasText);
    const std::size_t date = comments.find("//Last modified:");
    if (isChanged && date != std::string::npos)
        comments.erase(date, comments.find('\n', date) + 1 - date);
    if (!name.empty())
        replaceLine(comments, "//Name: ", name);
    return comments;
}

std::string TextMerge::ending(const std::string &name) const
{
    std::string comments(before.rest());
    if (!name.empty())
        replaceLine(comments, "// End of ", name);
    return comments;
}

std::string TextMerge::text(const std::string &name) const
{
    std::string all = header(name);
    all.reserve(before.text.size() + (before.text.size() >> 4));
    for (std::size_t i = 0; i < before.statements.size(); ++i) {
        std::string statement = textOf(i);
        if (i == 0 && replacements.count(0) == 0)
            statement.erase(0, beforeCommand(statement).size()); // the header
        else if (i == 0 && !statement.empty())
            statement.erase(0, statement.find('\n') + 1); // the header ended its line
        all += statement;
        const auto follower = followers.find(i);
        if (follower != followers.end())
            all += withLineEnds(follower->second);
    }
    return all + ending(name);
}

} // namespace host::ma
