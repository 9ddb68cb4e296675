// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/statementText.h"

#include "mel/commands/attributeValues.h"

namespace host::mel
{

std::string statementText(std::string_view command, const std::vector<Flag> &flags,
                          const Arguments &arguments)
{
    std::string text(command);
    for (const auto &[name, use] : arguments.order) {
        text += " -" + findFlag(flags, name)->shortName;
        for (const Operand &operand : arguments.of(name, use))
            text += ' ' + written(operand);
    }
    for (const Operand &operand : arguments.objects)
        text += ' ' + written(operand);
    return text + ';';
}

} // namespace host::mel
