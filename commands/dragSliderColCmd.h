// SPDX-License-Identifier: Apache-2.0
// A step of the value slider over a joint column.
#pragma once

#include "commands/operationCmd.h"

class dragSliderColCmd : public operationCmd<dragSliderColCmd>
{
public:
    dragSliderColCmd(korvexWindow *window, weightTableModel *model)
        : operationCmd(window, model, {prepareColumn, writeColumn})
    {
    }
};
