// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cassert>

#include "mel/command.h"

namespace host::mel
{

const Flag *findFlag(const std::vector<Flag> &flags, std::string_view name)
{
    const auto found = std::find_if(flags.begin(), flags.end(), [name](const Flag &flag) {
        return name == flag.shortName || name == flag.longName;
    });
    return found == flags.end() ? nullptr : &*found;
}

void requireObjectCount(std::string_view command, std::size_t count, const Objects &wanted)
{
    if (count < wanted.least || count > wanted.most)
        throw Error("Wrong number of arguments on call to " + std::string(command) + '.');
}

const Arguments::UsedFlag *Arguments::find(std::string_view longName) const
{
    assert(!declared_ || std::any_of(declared_->begin(), declared_->end(),
                                     [&](const Flag &flag) { return longName == flag.longName; }));
    const auto found = std::find_if(used_.begin(), used_.end(), [&](const UsedFlag &used) {
        return longName == used.flag->longName;
    });
    return found == used_.end() ? nullptr : &*found;
}

const Operand *Arguments::first(std::string_view longName) const
{
    const UsedFlag *used = find(longName);
    return used && !used->uses.front().empty() ? &used->uses.front().front() : nullptr;
}

bool Arguments::has(std::string_view longName) const
{
    return find(longName) != nullptr;
}

std::size_t Arguments::uses(std::string_view longName) const
{
    const UsedFlag *used = find(longName);
    return used ? used->uses.size() : 0;
}

const std::vector<Operand> &Arguments::of(std::string_view longName, std::size_t use) const
{
    const UsedFlag *used = find(longName);
    assert(used && use < used->uses.size());
    return used->uses[use];
}

double Arguments::number(std::string_view longName, double fallback) const
{
    const Operand *operand = first(longName);
    return operand ? operand->number() : fallback;
}

long long Arguments::integer(std::string_view longName, long long fallback) const
{
    const Operand *operand = first(longName);
    return operand ? operand->integer() : fallback;
}

bool Arguments::boolean(std::string_view longName, bool fallback) const
{
    const Operand *operand = first(longName);
    return operand ? operand->boolean() : fallback;
}

std::string Arguments::string(std::string_view longName, std::string_view fallback) const
{
    const Operand *operand = first(longName);
    return operand ? operand->string() : std::string(fallback);
}

} // namespace host::mel
