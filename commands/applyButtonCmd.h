// SPDX-License-Identifier: Apache-2.0
// Limits the influences per vertex. A cell that the table no longer has keeps its weight, with a
// message.
#pragma once

#include "commands/operationCmd.h"

class applyButtonCmd : public operationCmd<applyButtonCmd>
{
public:
    applyButtonCmd(korvexWindow *window, weightTableModel *model);
};
