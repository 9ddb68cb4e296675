// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/statementText.h"

#include "mel/commands/attributeValues.h"

namespace host::mel
{

namespace
{

const char *shortNameOf(const std::vector<Flag> &flags, std::string_view longName)
{
    for (const Flag &flag : flags) {
        if (flag.longName == longName)
            return flag.shortName;
    }
    return "";
}

} // namespace

std::string statementText(std::string_view command, const std::vector<Flag> &flags,
                          const Arguments &arguments)
{
    std::string text(command);
    for (const auto &[name, use] : arguments.order) {
        text += std::string(" -") + shortNameOf(flags, name);
        for (const Operand &operand : arguments.of(name, use))
            text += ' ' + written(operand);
    }
    for (const Operand &operand : arguments.objects)
        text += ' ' + written(operand);
    return text + ';';
}

} // namespace host::mel
