// SPDX-License-Identifier: Apache-2.0
// A step of the value slider over cells.
#pragma once

#include "commands/operationCmd.h"

class dragSliderCmd : public operationCmd<dragSliderCmd>
{
public:
    dragSliderCmd(korvexWindow *window, weightTableModel *model)
        : operationCmd(window, model, {prepareCells, writeCells})
    {
    }
};
