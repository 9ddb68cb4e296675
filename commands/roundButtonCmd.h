// SPDX-License-Identifier: Apache-2.0
// Rounds all weights to the decimal places that the table shows.
#pragma once

#include "commands/operationCmd.h"

class roundButtonCmd : public operationCmd<roundButtonCmd>
{
public:
    roundButtonCmd(korvexWindow *window, weightTableModel *model)
        : operationCmd(window, model, {prepareRounding, writeRounding})
    {
    }
};
