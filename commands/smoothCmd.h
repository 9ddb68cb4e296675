// SPDX-License-Identifier: Apache-2.0
// Smooths one joint's weights with Maya's skin paint tool.
#pragma once

#include "commands/operationCmd.h"

class smoothCmd : public operationCmd<smoothCmd>
{
public:
    smoothCmd(korvexWindow *window, weightTableModel *model)
        : operationCmd(window, model, {preparePaintSmoothing, writePaintSmoothing})
    {
    }
};
