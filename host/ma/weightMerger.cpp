// SPDX-License-Identifier: Apache-2.0
// The weight list of a skin cluster: a vertex whose weights changed gets its own words anew,
// weights that stayed keep their text, and statements begin and end with the vertices they had.
#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "ma/setAttrWords.h"
#include "ma/statementEdit.h"
#include "ma/valueMerger.h"
#include "ma/weightWriter.h"
#include "scene/error.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

using skin::Entry;
using skin::RowView;
using skin::WeightStore;

bool areSame(const Entry &first, const Entry &second)
{
    return first.influence == second.influence &&
           std::memcmp(&first.weight, &second.weight, sizeof first.weight) == 0;
}

std::vector<std::size_t> changedRows(const WeightStore &before, const WeightStore &now)
{
    std::vector<std::size_t> changed;
    const std::size_t count = std::max(before.vertexCount(), now.vertexCount());
    for (std::size_t v = 0; v < count; ++v) {
        v = std::min(v < before.vertexCount() ? before.nextRow(v) : count,
                     v < now.vertexCount() ? now.nextRow(v) : count);
        if (v == count)
            break;
        const RowView was = before.row(v);
        const RowView is = now.row(v);
        if (before.hasRow(v) != now.hasRow(v) ||
            !std::equal(was.begin(), was.end(), is.begin(), is.end(), areSame))
            changed.push_back(v);
    }
    return changed;
}

// What one vertex has now, while it is spread over the file's statements.
struct ChangedRow {
    RowView entries;
    unsigned statements = 0;  // that say weights of it and are still to come
    std::vector<bool> isSaid; // by position in `entries`
};

std::string weightText(const mel::Argument *asRead, double weight)
{
    double number = 0.0;
    if (asRead) {
        const std::string_view text = asRead->text;
        const bool isNumber = parseNumber(text.data(), text.data() + text.size(), number);
        if (isNumber && std::memcmp(&number, &weight, sizeof number) == 0)
            return std::string(text);
    }
    return realText(weight);
}

std::size_t toCount(std::string_view text)
{
    double number = 0.0;
    parseNumber(text.data(), text.data() + text.size(), number);
    return std::size_t(std::max(number, 0.0));
}

class WeightMerger
{
public:
    WeightMerger(const FileStyle &style, const NodePtr &before, const NodePtr &now)
        : style_(style), before_(before), now_(now),
          changed_(changedRows(*before->weights(), *now->weights()))
    {
        for (const std::size_t v : changed_)
            rows_[v] = {now->weights()->row(v), 0,
                        std::vector<bool>(now->weights()->row(v).size())};
    }

    bool merge(const std::vector<std::string_view> &statements, MergedStatements &result);

private:
    struct Statement {
        PlugRange range;
        bool hasValues = false;
        bool isAffected = false;
    };
    Statement describe(std::string_view text) const;
    bool isAffected(const PlugRange &range) const;
    template <typename Visit>
    void visitChanged(const PlugRange &range, const Visit &visit);
    bool mergeOne(std::string_view text, const Statement &statement, std::string &merged);
    bool mergePacked(const PlugRange &range, const SetAttrWords &words, StatementEdit &edit);
    static void mergeRow(ChangedRow &row, std::size_t pairs, std::size_t at,
                         const SetAttrWords &words, StatementEdit &edit);
    void mergeRun(const PlugRange &range, const SetAttrWords &words, StatementEdit &edit,
                  std::string &merged);
    std::string runText(const PlugRange &range, std::size_t first,
                        const std::vector<std::string> &weights) const;
    std::string added() const;

    FileStyle style_; // weights as the file has them
    NodePtr before_;
    NodePtr now_;
    std::vector<std::size_t> changed_; // ascending
    std::unordered_map<std::size_t, ChangedRow> rows_;
};

// Only what stands in front of the values is looked at: there can be many.
WeightMerger::Statement WeightMerger::describe(std::string_view text) const
{
    Statement statement;
    const std::size_t open = text.find('"');
    const std::size_t close = text.find('"', open + 1);
    if (close == std::string_view::npos)
        throw Error("no plug");
    statement.range =
        resolvePlugPath(before_, text.substr(open + 2, close - open - 2), UnknownAttribute::refuse);
    const std::size_t value = text.find_first_not_of(" \t\r\n", close + 1);
    statement.hasValues = text[value] != ';';
    statement.isAffected = statement.range.plug.attribute->parent
                               ? isAffected(statement.range)
                               : before_->weights()->rowCount() != now_->weights()->rowCount();
    return statement;
}

std::size_t firstVertex(const PlugRange &range)
{
    return std::size_t(range.plug.indices[0]);
}

std::size_t lastVertex(const PlugRange &range)
{
    return range.rangeDepth == 0 ? std::size_t(range.last) : firstVertex(range);
}

bool WeightMerger::isAffected(const PlugRange &range) const
{
    const auto next = std::lower_bound(changed_.begin(), changed_.end(), firstVertex(range));
    return next != changed_.end() && *next <= lastVertex(range);
}

template <typename Visit>
void WeightMerger::visitChanged(const PlugRange &range, const Visit &visit)
{
    auto next = std::lower_bound(changed_.begin(), changed_.end(), firstVertex(range));
    for (; next != changed_.end() && *next <= lastVertex(range); ++next)
        visit(rows_[*next]);
}

bool WeightMerger::merge(const std::vector<std::string_view> &texts, MergedStatements &result)
{
    std::vector<Statement> statements;
    for (const std::string_view text : texts) {
        statements.push_back(describe(text));
        const Statement &statement = statements.back();
        if (statement.hasValues)
            style_.weights =
                statement.range.plug.isElement() ? WeightForm::runs : WeightForm::packed;
        if (statement.isAffected && statement.hasValues)
            visitChanged(statement.range, [](ChangedRow &row) { ++row.statements; });
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (statements[i].isAffected && !mergeOne(texts[i], statements[i], result.statements[i]))
            return false;
    }
    result.added = added();
    return true;
}

bool WeightMerger::mergeOne(std::string_view text, const Statement &statement, std::string &merged)
{
    mel::Script script;
    if (mel::parseScript(text, script) || script.statements.size() != 1)
        return false;
    const SetAttrWords words = sortSetAttr(script.statements.front());
    const PlugRange &range = statement.range;
    StatementEdit edit(text);
    if (words.size) {
        const WeightStore &weights = *now_->weights();
        const bool isList = !range.plug.attribute->parent;
        edit.replace(
            words.size->text,
            std::to_string(isList ? weights.rowCount() : weights.row(firstVertex(range)).size()));
    }
    if (statement.hasValues && !range.plug.attribute->parent)
        return false;
    if (!statement.hasValues) {
        merged = edit.result();
        return true;
    }
    if (!words.hasNumbersOnly() || !words.states.empty())
        return false;
    if (range.plug.isWholeArray()) {
        if (!mergePacked(range, words, edit))
            return false;
        merged = edit.result();
        return true;
    }
    if (range.rangeDepth == 0 || words.values.size() != range.count())
        return false;
    mergeRun(range, words, edit, merged);
    return true;
}

// Count and pairs for each vertex of the range.
bool WeightMerger::mergePacked(const PlugRange &range, const SetAttrWords &words,
                               StatementEdit &edit)
{
    std::size_t at = 0;
    for (std::size_t v = firstVertex(range); v <= lastVertex(range); ++v) {
        if (at >= words.values.size())
            return false;
        const std::size_t pairs = toCount(words.values[at]->text);
        if (words.values.size() - at - 1 < 2 * pairs)
            return false;
        const auto row = rows_.find(v);
        if (row != rows_.end()) {
            if (!now_->weights()->hasRow(v))
                return false;
            mergeRow(row->second, pairs, at, words, edit);
        }
        at += 1 + 2 * pairs;
    }
    return at == words.values.size();
}

// The part of a vertex that a statement has: up to its last influence, and in the vertex's last
// statement whatever is left.
void WeightMerger::mergeRow(ChangedRow &row, std::size_t pairs, std::size_t at,
                            const SetAttrWords &words, StatementEdit &edit)
{
    const bool isLast = --row.statements == 0;
    const auto influenceOf = [&](std::size_t pair) {
        return toCount(words.values[at + 1 + 2 * pair]->text);
    };
    const mel::Argument *behind = words.values[at]; // what new weights stand behind
    std::size_t said = 0;
    std::size_t next = 0; // entry of the row
    while (next < row.entries.size() && row.isSaid[next])
        ++next;
    const auto insert = [&](const Entry &entry) {
        edit.insertBehind(behind->text,
                          ' ' + std::to_string(entry.influence) + ' ' + realText(entry.weight));
        row.isSaid[next++] = true;
        ++said;
    };
    for (std::size_t pair = 0; pair < pairs; ++pair) {
        while (next < row.entries.size() && row.entries[next].influence < influenceOf(pair))
            insert(row.entries[next]);
        const mel::Argument *influence = words.values[at + 1 + 2 * pair];
        const mel::Argument *weight = words.values[at + 2 + 2 * pair];
        if (next == row.entries.size() || row.entries[next].influence != influenceOf(pair)) {
            edit.remove(influence->text);
            edit.remove(weight->text);
            continue;
        }
        edit.replace(weight->text, weightText(weight, row.entries[next].weight));
        row.isSaid[next++] = true;
        ++said;
        behind = weight;
    }
    while (isLast && next < row.entries.size())
        insert(row.entries[next]);
    edit.replace(words.values[at]->text, std::to_string(said));
}

std::string WeightMerger::runText(const PlugRange &range, std::size_t first,
                                  const std::vector<std::string> &weights) const
{
    const std::size_t influence = std::size_t(range.plug.indices[1]) + first;
    std::string text = std::string("\n\tsetAttr \"") + style_.flags(".wl[", ".weightList[");
    text += std::to_string(firstVertex(range)) + style_.flags("].w[", "].weights[");
    text += std::to_string(influence);
    if (weights.size() > 1)
        text += ':' + std::to_string(influence + weights.size() - 1);
    text += "]\"";
    for (const std::string &weight : weights)
        text += ' ' + weight;
    return text + ';';
}

// Neighbouring influences of one vertex; what is left of them may be several runs, or none.
void WeightMerger::mergeRun(const PlugRange &range, const SetAttrWords &words, StatementEdit &edit,
                            std::string &merged)
{
    ChangedRow &row = rows_[firstVertex(range)];
    std::vector<std::string> run;
    std::string runs;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < words.values.size(); ++i) {
        const auto influence = std::uint32_t(range.plug.indices[1]) + std::uint32_t(i);
        const Entry *entry = std::lower_bound(
            row.entries.begin(), row.entries.end(), influence,
            [](const Entry &e, std::uint32_t index) { return e.influence < index; });
        const bool isLeft = entry != row.entries.end() && entry->influence == influence;
        if (isLeft) {
            row.isSaid[std::size_t(entry - row.entries.begin())] = true;
            run.push_back(weightText(words.values[i], entry->weight));
            edit.replace(words.values[i]->text, run.back());
            ++kept;
        }
        if (!run.empty() && (!isLeft || i + 1 == words.values.size())) {
            runs += runText(range, i + (isLeft ? 1 : 0) - run.size(), run);
            run.clear();
        }
    }
    merged = kept == words.values.size() ? edit.result() : runs;
}

// What no statement of the file says: new vertices, new influences of vertices in runs.
std::string WeightMerger::added() const
{
    WeightStore rest;
    for (const std::size_t v : changed_) {
        const ChangedRow &row = rows_.at(v);
        std::vector<Entry> entries;
        for (std::size_t i = 0; i < row.entries.size(); ++i) {
            if (!row.isSaid[i])
                entries.push_back(row.entries[i]);
        }
        const bool isNewRow = now_->weights()->hasRow(v) && !before_->weights()->hasRow(v);
        if (!entries.empty() || isNewRow)
            rest.setRow(v, entries);
    }
    if (rest.rowCount() == 0)
        return {};
    FileStyle style = style_;
    style.announcesSizes = false; // they would be those of the rest
    return statementsText([&](StatementWriter &out) { writeWeights(out, style, rest); });
}

} // namespace

std::optional<MergedStatements> mergeWeights(const FileStyle &style,
                                             const std::vector<std::string_view> &statements,
                                             const NodePtr &before, const NodePtr &now)
{
    MergedStatements result;
    result.statements.assign(statements.begin(), statements.end());
    if (!WeightMerger(style, before, now).merge(statements, result))
        return std::nullopt;
    return result;
}

} // namespace host::ma
