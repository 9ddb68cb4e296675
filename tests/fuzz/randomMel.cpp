// SPDX-License-Identifier: Apache-2.0
#include "fuzz/randomMel.h"

#include <algorithm>
#include <cctype>

namespace
{

// Commands that leave the case's folder or its process, that end the way back by undo, or that are
// about the file and no step of the undo queue.
bool isLeftOut(const std::string &command)
{
    constexpr const char *kLeftOut[] = {"file",         "quit",     "loadPlugin",   "unloadPlugin",
                                        "pluginInfo",   "fileInfo", "currentUnit",  "requires",
                                        "flushUndo",    "undoInfo", "relationship", "dataStructure",
                                        "applyMetadata"};
    return std::any_of(std::begin(kLeftOut), std::end(kLeftOut),
                       [&](const char *name) { return command == name; });
}

// What people do, so that most calls succeed: S a name, I a whole number, D any number.
const std::string kUsual[] = {
    "setAttr S D",
    "setAttr -l on S",
    "setAttr -s I S",
    "setAttr S -type \"string\" S",
    "setAttr S -type \"double3\" D D D",
    "addAttr -ln \"extra\" -at \"double3\" S",
    "addAttr -ln \"texts\" -m -dt \"string\" S",
    "setAttr \"*.texts[I]\" -type \"string\" S",
    "deleteAttr S",
    "removeMultiInstance -b on S",
    "connectAttr -f S S",
    "connectAttr -na S S",
    "disconnectAttr S S",
    "createNode joint -p S",
    "createNode strangeNode -n S",
    "delete S",
    "delete -ch S",
    "rename S \"renamed1\"",
    "parent S S",
    "parent -w S",
    "parent -add S S",
    "group S S",
    "duplicate S",
    "lockNode -l on S",
    "select -r S S; delete",
    "select -add S; group",
    "polyCube -n S",
    "joint -p D D D",
    "skinCluster S S",
    "skinCluster -e -ai S S",
    "skinCluster -e -ri S S",
    "skinCluster -e -mi I S",
    "skinCluster -e -ub S",
    "skinPercent -tv S D S S",
    "skinPercent -nrm off -prw D S S",
    "sets S S",
    "sets -rm S S",
    "xform -ws -t D D D S",
    "move -r D D D S",
    "undo",
    "redo",
};

} // namespace

RandomMel::RandomMel(const host::mel::CommandTable &table, std::vector<std::string> names)
    : table_(table), commands_(table.names()), names_(std::move(names))
{
    commands_.erase(std::remove_if(commands_.begin(), commands_.end(), isLeftOut), commands_.end());
    for (const char *name :
         {"*", "*.liw", "*.vtx[*]", "nobody", "a|b", "persp", "", "|", ":", ".t"})
        names_.emplace_back(name);
}

std::string RandomMel::value(char kind, Chance &chance) const
{
    static const std::string kIntegers[] = {"0", "1", "-1", "2", "3", "31", "100"};
    static const std::string kReals[] = {"0", "0.5", "1", "-1", "1e-9", "1e30", "0.333"};
    static const std::string kTexts[] = {"joint", "mesh",   "skinCluster", "string", "double3",
                                         "new1",  "matrix", "float",       "",       "a b"};
    if (kind == 'b')
        return chance.oneIn(2) ? "on" : "off";
    if (kind == 'i' || kind == 'u')
        return chance.pick(kIntegers);
    if (kind == 'd')
        return chance.pick(kReals);
    return '"' + (chance.oneIn(4) ? chance.pick(kTexts) : chance.pick(names_)) + '"';
}

std::string RandomMel::usualStatement(Chance &chance) const
{
    std::string text;
    for (const char c : chance.pick(kUsual))
        text += c == 'S' || c == 'I' || c == 'D' ? value(char(std::tolower(c)), chance)
                                                 : std::string(1, c);
    return text;
}

std::string RandomMel::statement(Chance &chance) const
{
    if (!chance.oneIn(3))
        return usualStatement(chance);
    const std::string &name = chance.pick(commands_);
    const host::mel::Command &command = *table_.find(name);
    std::string text = name;
    if (chance.oneIn(3))
        text += chance.oneIn(2) ? " -q" : " -e";
    for (std::size_t flags = chance.below(4); flags > 0 && !command.flags.empty(); --flags) {
        const host::mel::Flag &flag = chance.pick(command.flags);
        text += std::string(" -") + (chance.oneIn(2) ? flag.shortName : flag.longName);
        for (const char kind : flag.arguments) {
            if (!chance.oneIn(20))
                text += ' ' + value(kind, chance);
        }
    }
    for (std::size_t objects = chance.below(4); objects > 0; --objects)
        text += ' ' + value(chance.oneIn(4) ? 'd' : 's', chance);
    return text;
}
