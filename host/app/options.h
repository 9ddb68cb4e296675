// SPDX-License-Identifier: Apache-2.0
// What the command line of the program `korvex` asks for.
#pragma once

#include <QString>
#include <QStringList>

namespace host::app
{

struct Options {
    bool isBatch = false;
    bool isStrict = false; // batch: any error makes the exit code 1

    // The steps, in this order: open, run each command, run the script, save.
    QString file;
    QStringList commands;
    QString script;
    QString saveAs;

    bool opensEditor = false; // --edit: load the plug-in and the scene's skinned meshes
    QString picture;          // write a picture of the window there and quit
};

// Reads the arguments of the running QCoreApplication. Prints help or version and exits if those
// are asked for, and exits with code 1 and a message on arguments that do not fit.
Options readOptions();

// Whether the raw arguments hold --batch; asked before any application object exists.
bool wantsBatch(int argumentCount, char **arguments);

} // namespace host::app
