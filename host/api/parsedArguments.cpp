// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "api/arguments.h"
#include "scene/error.h"

namespace host
{

namespace
{

// Throws when the operand is nothing that the letter of an argument stands for.
void refuseUnfit(const mel::Operand &operand, char letter)
{
    switch (letter) {
    case 'b':
        operand.boolean();
        break;
    case 'i':
        operand.integer();
        break;
    case 'u':
        if (operand.integer() < 0)
            throw Error("Invalid arguments '" + operand.string() +
                        "'.  Expected ( unsigned int ), got [ int ]");
        break;
    case 'd':
        operand.number();
        break;
    default:
        break;
    }
}

std::size_t sum(std::size_t count, std::size_t more)
{
    return more == mel::Objects::kAny ? more : count + more;
}

} // namespace

const mel::Flag *SyntaxTable::find(std::string_view name) const
{
    if (!name.empty() && name.front() == '-')
        name.remove_prefix(1);
    return name.empty() ? nullptr : mel::findFlag(command.flags, name);
}

mel::Command SyntaxTable::row() const
{
    mel::Command row = command;
    const mel::Objects own = objectFormat == MSyntax::kNone ? mel::Objects{0, 0} : objects;
    const std::size_t least = usesSelection ? 0 : own.least;
    row.objects = {arguments.size() + least, sum(arguments.size(), own.most)};
    row.targets = {arguments.empty() ? least : 0, row.objects.most}; // a query needs no arguments
    return row;
}

ParsedArguments::ParsedArguments(const SyntaxTable &table, const ArgumentValues &values,
                                 std::vector<std::string> selection)
    : table_(table), row_(table.row()), values_(values), selection_(std::move(selection)),
      sorted_(mel::CommandTable::sort(row_, values_.operands(), values_.isFunctionForm))
{
    takeObjects();
}

// What belongs to no flag: first the arguments that the syntax names, then objects.
void ParsedArguments::takeObjects()
{
    const std::size_t count = std::min(table_.arguments.size(), sorted_.objects.size());
    for (std::size_t i = 0; i < count; ++i) {
        refuseUnfit(sorted_.objects[i], table_.arguments[i]);
        arguments.push_back(sorted_.objects[i].text);
    }
    for (std::size_t i = count; i < sorted_.objects.size(); ++i)
        objects.push_back(sorted_.objects[i].text);
    if (!table_.usesSelection || !objects.empty())
        return;
    objects.assign(selection_.begin(), selection_.end());
    mel::requireObjectCount(row_.name, objects.size(), table_.objects);
}

unsigned ParsedArguments::uses(std::string_view flag) const
{
    const mel::Flag *known = table_.find(flag);
    return known ? static_cast<unsigned>(sorted_.uses(known->longName)) : 0;
}

const mel::Operand *ParsedArguments::argument(std::string_view flag, std::size_t index) const
{
    if (uses(flag) == 0)
        return nullptr;
    const std::vector<mel::Operand> &values = sorted_.of(table_.find(flag)->longName);
    return index < values.size() ? &values[index] : nullptr;
}

unsigned ParsedArguments::flagsUsed() const
{
    const auto isFirst = [](const auto &flagAndUse) { return flagAndUse.second == 0; };
    return static_cast<unsigned>(
        std::count_if(sorted_.order.begin(), sorted_.order.end(), isFirst));
}

} // namespace host
