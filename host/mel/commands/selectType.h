// SPDX-License-Identifier: Apache-2.0
// selectType and selectMode: what the user can pick. Scripts may select anything all the same.
#pragma once

#include "mel/command.h"

namespace host::mel
{

// The masks live as long as the commands in the table.
void addSelectTypeCommands(CommandTable &table);

} // namespace host::mel
