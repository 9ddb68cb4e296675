// SPDX-License-Identifier: Apache-2.0
// Statements in which a file speaks about itself: requires, currentUnit, fileInfo, relationship,
// dataStructure, applyMetadata. What has no effect on skin weights is kept for the next save.
#include <algorithm>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/statementText.h"

namespace host::mel
{

namespace
{

const std::vector<Flag> kRequiresFlags = {{"nodeType", "nodeType", "s", Flag::multiUse},
                                          {"dataType", "dataType", "s", Flag::multiUse}};

MelValue requiresCommand(Context &context, const Arguments &arguments)
{
    FileFacts &facts = context.scene().facts;
    if (arguments.objects[0].text == "maya")
        facts.mayaVersion = arguments.objects[1].string();
    else
        facts.requiredPlugins.push_back(statementText("requires", kRequiresFlags, arguments));
    context.scene().setModified(true);
    return MelValue();
}

struct UnitName {
    std::string_view shortName;
    std::string_view longName;
};
constexpr UnitName kUnitNames[] = {
    {"mm", "millimeter"}, {"cm", "centimeter"}, {"m", "meter"},    {"km", "kilometer"},
    {"in", "inch"},       {"ft", "foot"},       {"yd", "yard"},    {"mi", "mile"},
    {"deg", "degree"},    {"rad", "radian"},    {"min", "minute"}, {"sec", "second"},
};

const UnitName *findUnit(std::string_view name)
{
    const auto unit =
        std::find_if(std::begin(kUnitNames), std::end(kUnitNames), [name](const UnitName &known) {
            return known.shortName == name || known.longName == name;
        });
    return unit == std::end(kUnitNames) ? nullptr : unit;
}

std::string longUnitName(const std::string &name)
{
    const UnitName *unit = findUnit(name);
    return unit ? std::string(unit->longName) : name;
}

struct UnitFlag {
    const char *flag;
    std::string FileFacts::*member;
    bool scalesValues; // values in the scene would mean something else in another unit
};
constexpr UnitFlag kUnitFlags[] = {
    {"linear", &FileFacts::linearUnit, true},
    {"angle", &FileFacts::angularUnit, true},
    {"time", &FileFacts::timeUnit, false},
};

MelValue queryUnit(const FileFacts &facts, const Arguments &arguments)
{
    for (const UnitFlag &row : kUnitFlags) {
        if (!arguments.has(row.flag))
            continue;
        const std::string &name = facts.*row.member;
        const UnitName *unit = findUnit(name);
        if (!unit)
            return name;
        return std::string(arguments.has("fullName") ? unit->longName : unit->shortName);
    }
    throwNoQuestion();
}

MelValue currentUnit(Context &context, const Arguments &arguments)
{
    FileFacts &facts = context.scene().facts;
    if (arguments.isQuery())
        return queryUnit(facts, arguments);
    const FileFacts before = facts;
    for (const UnitFlag &row : kUnitFlags) {
        if (!arguments.has(row.flag))
            continue;
        const std::string name = longUnitName(arguments.string(row.flag));
        if (row.scalesValues && !context.isReadingFile && name != facts.*row.member)
            throw Error(std::string("currentUnit: The ") + row.flag +
                        " unit of a scene cannot be changed here.");
        facts.*row.member = name;
        context.scene().setModified(true);
    }
    if (!context.isReadingFile)
        context.session.raiseUnitChanges(before);
    return MelValue();
}

MelValue queryInfo(const FileInfo &info, const Arguments &arguments)
{
    std::vector<std::string> texts;
    if (arguments.objects.empty()) {
        for (const auto &[key, value] : info) {
            texts.push_back(key);
            texts.push_back(value);
        }
    } else if (const std::string *value = info.find(arguments.objects.front().string())) {
        texts.push_back(*value);
    }
    return texts;
}

MelValue fileInfo(Context &context, const Arguments &arguments)
{
    FileInfo &info = context.scene().facts.fileInfo;
    if (arguments.isQuery())
        return queryInfo(info, arguments);
    if (arguments.has("remove")) {
        info.remove(arguments.string("remove"));
        context.scene().setModified(true);
        return MelValue();
    }
    requireObjectCount("fileInfo", arguments.objects.size(), {2, 2});
    context.scene().setModified(true);
    info.set(arguments.objects[0].string(), arguments.objects[1].string());
    return MelValue();
}

// A statement that only a file may hold and that stands at its end.
Command keptStatement(std::string name, std::vector<Flag> flags)
{
    return fileStatement({name, flags, [name, flags](Context &context, const Arguments &arguments) {
                              if (!context.isReadingFile)
                                  throw Error(name + ": Only a scene file may say this.");
                              context.scene().facts.trailing.push_back(
                                  statementText(name, flags, arguments));
                              return MelValue();
                          }});
}

} // namespace

void addFileStatementCommands(CommandTable &table)
{
    table.add(fileStatement({"requires", kRequiresFlags, requiresCommand, {2, 2}}));
    table.add(fileStatement(
        {"currentUnit",
         {{"l", "linear", "s"}, {"a", "angle", "s"}, {"t", "time", "s"}, {"f", "fullName"}},
         currentUnit,
         {0, 0},
         Modes::create | Modes::query}));
    table.add(fileStatement({"fileInfo",
                             {{"rm", "remove", "s"}},
                             fileInfo,
                             {0, 2},
                             Modes::create | Modes::query,
                             Objects{0, 1}}));
    table.add(keptStatement("relationship", {{"b", "break"}}));
    table.add(keptStatement("dataStructure", {{"fmt", "format", "s"}, {"as", "asString", "s"}}));
    table.add(keptStatement("applyMetadata",
                            {{"fmt", "format", "s"}, {"v", "value", "s"}, {"scn", "scene"}}));
}

} // namespace host::mel
