// SPDX-License-Identifier: Apache-2.0
// What Maya calls when it loads and unloads the plug-in. Loading registers the command and nothing
// else; the window comes with the command's first use.
#include "plugin/korvexCmd.h"
#include "plugin/processState.h"
#include "ui/korvexWindow.h"

// Defines the API version that Maya's loader looks for: in this source only.
#include <maya/MFnPlugin.h>

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "", "2015", "Any");
    return plugin.registerCommand(korvexCmd::name(), korvexCmd::creator, korvexCmd::newSyntax);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    // The model goes with its window, and its callbacks with it: Maya must find none left.
    delete activeWindow;
    activeWindow = nullptr;
    activeModel = nullptr;
    return plugin.deregisterCommand(korvexCmd::name());
}
