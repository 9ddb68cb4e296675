// SPDX-License-Identifier: Apache-2.0
// What a file says about itself: requires, currentUnit, fileInfo, file, relationship.
#include "ma/sceneWriter.h"
#include "ma/textMerge.h"
#include "ma/valueMerger.h"

namespace host::ma
{

namespace
{

using Kind = TemplateStatement::Kind;

void mergeList(TextMerge &merge, Kind kind, const std::vector<std::string> &now)
{
    std::unordered_map<std::string, int> left;
    for (const std::string &statement : now)
        ++left[statement];
    std::size_t last = kind == Kind::trailing ? merge.lastTrailing : merge.lastFact;
    for (std::size_t i = 0; i < merge.before.statements.size(); ++i) {
        const TemplateStatement &statement = merge.before.statements[i];
        if (kind == Kind::plugin && statement.kind == Kind::version)
            last = i;
        if (statement.kind != kind)
            continue;
        if (--left[statement.fact] < 0)
            merge.drop(i);
        last = i;
    }
    for (const std::string &statement : now) {
        if (left[statement]-- > 0)
            merge.follow(last, '\n' + statement);
    }
}

void mergeInfo(TextMerge &merge)
{
    const FileInfo &was = merge.before.scene.facts.fileInfo;
    const FileInfo &is = merge.now.facts.fileInfo;
    const auto textOf = [](const std::string &key, const std::string &value) {
        return statementsText(
            [&](StatementWriter &out) { out.begin("fileInfo").quoted(key).quoted(value).end(); });
    };
    for (std::size_t i = 0; i <= merge.lastFact && i < merge.before.statements.size(); ++i) {
        const TemplateStatement &statement = merge.before.statements[i];
        if (statement.kind != Kind::info)
            continue;
        const std::string *value = is.find(statement.fact);
        const std::string *old = was.find(statement.fact);
        if (!value)
            merge.drop(i);
        else if (!old || *old != *value)
            merge.replacements[i] = textOf(statement.fact, *value);
    }
    for (const auto &[key, value] : is) {
        if (!was.find(key))
            merge.follow(merge.lastFact, textOf(key, value));
    }
}

} // namespace

void mergeFacts(TextMerge &merge)
{
    const FileFacts &was = merge.before.scene.facts;
    const FileFacts &is = merge.now.facts;
    const bool hasSameUnits = was.linearUnit == is.linearUnit &&
                              was.angularUnit == is.angularUnit && was.timeUnit == is.timeUnit;
    for (std::size_t i = 0; i < merge.before.statements.size() && i <= merge.lastFact; ++i) {
        const Kind kind = merge.before.statements[i].kind;
        if (kind == Kind::version && was.mayaVersion != is.mayaVersion)
            merge.replacements[i] = statementsText([&is](StatementWriter &out) {
                out.begin("requires").word("maya").quoted(is.mayaVersion).end();
            });
        if (kind == Kind::unit && !hasSameUnits)
            merge.replacements[i] = statementsText(
                [&merge](StatementWriter &out) { SceneWriter(out, merge.now).writeUnits(); });
    }
    mergeList(merge, Kind::reference, is.references);
    mergeList(merge, Kind::plugin, is.requiredPlugins);
    mergeList(merge, Kind::trailing, is.trailing);
    mergeInfo(merge);
}

} // namespace host::ma
