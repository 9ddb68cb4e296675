// SPDX-License-Identifier: Apache-2.0
// A call written down again, for statements that a scene keeps as text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mel/command.h"

namespace host::mel
{

// "requires -nodeType "aiOptions" "mtoa" "5.0";": flags in the order of the call, by their short
// names, then the operands.
std::string statementText(std::string_view command, const std::vector<Flag> &flags,
                          const Arguments &arguments);

} // namespace host::mel
