// SPDX-License-Identifier: Apache-2.0
// What the command line of the program `korvex` asks for.
#pragma once

#include <QString>
#include <QStringList>

namespace host::app
{

struct Options {
    bool isBatch = false;
    bool isStrict = false; // batch: the first error ends it

    // The steps, in this order: open, run each command, run the script, save. "-" is standard input
    // or output.
    QString file;
    QStringList commands;
    QString script;
    QString saveAs; // batch only

    bool opensEditor = false;     // --edit: load the plug-in and the scene's skinned meshes
    QString picture;              // write a picture of the window there and quit
    bool choosesPlatform = false; // Qt's own -platform is given
};

// Reads the arguments; no application object is needed. Prints help or version and exits if those
// are asked for, and exits with code 1 and a message on arguments that do not fit.
Options readOptions(int argumentCount, char **arguments);

} // namespace host::app
