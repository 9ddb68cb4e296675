// SPDX-License-Identifier: Apache-2.0
// Calls of the host's commands with any flags, values and objects.
#pragma once

#include <string>
#include <vector>

#include "fuzz/chance.h"
#include "mel/command.h"

class RandomMel
{
public:
    // `names`: nodes, plugs and components that the calls are about. The table must outlive this.
    RandomMel(const host::mel::CommandTable &table, std::vector<std::string> names);

    // One statement: something usual about any names, or any command with any flags.
    std::string statement(Chance &chance) const;

private:
    std::string usualStatement(Chance &chance) const;
    std::string value(char kind, Chance &chance) const;

    const host::mel::CommandTable &table_;
    std::vector<std::string> commands_;
    std::vector<std::string> names_;
};
