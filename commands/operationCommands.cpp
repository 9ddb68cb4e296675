// SPDX-License-Identifier: Apache-2.0
#include "commands/operationCommands.h"

#include "commands/applyButtonCmd.h"
#include "commands/dragSliderCmd.h"
#include "commands/dragSliderColCmd.h"
#include "commands/replaceButtonCmd.h"
#include "commands/roundButtonCmd.h"
#include "commands/setCellDataCmd.h"
#include "commands/smoothCmd.h"

operationCommands::operationCommands(korvexWindow *window, weightTableModel *model)
{
    commands_.emplace_back(new replaceButtonCmd(window, model));
    commands_.emplace_back(new roundButtonCmd(window, model));
    commands_.emplace_back(new applyButtonCmd(window, model));
    commands_.emplace_back(new dragSliderCmd(window, model));
    commands_.emplace_back(new dragSliderColCmd(window, model));
    commands_.emplace_back(new setCellDataCmd(window, model));
    commands_.emplace_back(new smoothCmd(window, model));
}

operationCommands::~operationCommands()
{
    for (std::unique_ptr<MPxCommand> &command : commands_)
        command.reset();
}
