// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "mel/argumentSorter.h"

namespace host::mel
{

bool CommandTable::add(Command command)
{
    std::string name = command.name;
    return commands_
        .try_emplace(std::move(name), std::make_shared<const Command>(std::move(command)))
        .second;
}

bool CommandTable::remove(std::string_view name)
{
    return commands_.erase(std::string(name)) > 0;
}

const Command *CommandTable::find(std::string_view name) const
{
    const auto found = commands_.find(std::string(name));
    return found == commands_.end() ? nullptr : found->second.get();
}

std::shared_ptr<const Command> CommandTable::hold(std::string_view name) const
{
    const auto found = commands_.find(std::string(name));
    return found == commands_.end() ? nullptr : found->second;
}

std::vector<std::string> CommandTable::names() const
{
    std::vector<std::string> names;
    names.reserve(commands_.size());
    for (const auto &entry : commands_)
        names.push_back(entry.first);
    std::sort(names.begin(), names.end());
    return names;
}

Arguments CommandTable::sort(const Command &command, const std::vector<Operand> &operands,
                             bool isFunctionForm)
{
    if (command.takesRawArguments) {
        Arguments arguments;
        arguments.objects = operands;
        arguments.isFunctionForm = isFunctionForm;
        return arguments;
    }
    return ArgumentSorter(command, operands, isFunctionForm).sorted();
}

} // namespace host::mel
