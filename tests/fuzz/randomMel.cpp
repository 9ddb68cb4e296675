// SPDX-License-Identifier: Apache-2.0
#include "fuzz/randomMel.h"

#include <algorithm>
#include <cstring>

namespace
{

// Commands that leave the case's folder or its process, or that end the way back by undo.
bool isLeftOut(const std::string &command)
{
    constexpr const char *kLeftOut[] = {"file",       "quit",      "loadPlugin", "unloadPlugin",
                                        "pluginInfo", "flushUndo", "undoInfo"};
    return std::any_of(std::begin(kLeftOut), std::end(kLeftOut),
                       [&](const char *name) { return command == name; });
}

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
    if (kind == 'i')
        return chance.pick(kIntegers);
    if (kind == 'd')
        return chance.pick(kReals);
    return '"' + (chance.oneIn(2) ? chance.pick(names_) : chance.pick(kTexts)) + '"';
}

std::string RandomMel::statement(Chance &chance) const
{
    const std::string &name = chance.pick(commands_);
    const host::mel::Command &command = *table_.find(name);
    std::string text = name;
    if (chance.oneIn(3))
        text += chance.oneIn(2) ? " -q" : " -e";
    for (std::size_t flags = chance.below(4); flags > 0 && !command.flags.empty(); --flags) {
        const host::mel::Flag &flag = chance.pick(command.flags);
        text += std::string(" -") + (chance.oneIn(2) ? flag.shortName : flag.longName);
        for (const char *kind = flag.arguments; *kind; ++kind) {
            if (!chance.oneIn(20))
                text += ' ' + value(*kind, chance);
        }
    }
    for (std::size_t objects = chance.below(4); objects > 0; --objects)
        text += ' ' + value(chance.oneIn(4) ? 'd' : 's', chance);
    return text;
}
