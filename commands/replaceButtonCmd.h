// SPDX-License-Identifier: Apache-2.0
// Floods a joint column with one value.
#pragma once

#include "commands/operationCmd.h"

class replaceButtonCmd : public operationCmd<replaceButtonCmd>
{
public:
    replaceButtonCmd(korvexWindow *window, weightTableModel *model)
        : operationCmd(window, model, {prepareFlood, writeFlood})
    {
    }
};
