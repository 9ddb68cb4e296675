// SPDX-License-Identifier: Apache-2.0
// A typed value, in all cells that were selected.
#pragma once

#include "commands/operationCmd.h"

class setCellDataCmd : public operationCmd<setCellDataCmd>
{
public:
    setCellDataCmd(korvexWindow *window, weightTableModel *model)
        : operationCmd(window, model, {prepareCells, writeCells})
    {
    }
};
