// SPDX-License-Identifier: Apache-2.0
// Commands that plug-ins add: from a call in MEL to an MPxCommand object and back.
#pragma once

#include <memory>
#include <string>

#include <maya/MString.h>
#include <maya/MSyntax.h>
#include <maya/MTypes.h>

#include "api/plugins.h"
#include "mel/command.h"

namespace host
{

// What a command object knows of its registration. Behind MPxCommand.
class CommandContext
{
public:
    MSyntax syntax;
    MString commandString;
    bool isHistoryOn = true;
};

struct PluginCommand {
    std::shared_ptr<Plugin> plugin;
    std::string name;
    MCreatorFunction creator;
    MCreateSyntaxFunction createSyntax; // null: the command takes what it gets
};

// A row for the command table. A call makes a new command object and runs its doIt; an undoable one
// goes on the undo queue and stays alive as long as it is there.
mel::Command makePluginCommand(Process &process, const PluginCommand &registration);

} // namespace host
