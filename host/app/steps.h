// SPDX-License-Identifier: Apache-2.0
// What a command line asks for, step by step: open a scene, run MEL, save.
//
// What goes wrong is shown as an error of the session. Paths are as the user wrote them; "-" is
// standard input or output.
#pragma once

#include <functional>

#include "app/options.h"

namespace host
{
class Process;
}

namespace host::app
{

// Runs `step`. False if it throws, which is shown as an error of the session.
bool succeeds(Process &process, const std::function<void()> &step);

// False if the scene could not be opened; the session's scene is the one before.
bool openScene(Process &process, const QString &path);

// Runs the options' commands and then their script, unless one asks to quit. An error in MEL stops
// them only if the options are strict. False if they were stopped by one, or the script could not
// be read; it is read before any command runs.
bool runScripts(Process &process, const Options &options);

// False if the scene could not be saved; the old file is as it was.
bool saveScene(Process &process, const QString &path);

// The MEL string literal of a path.
QString melQuoted(const QString &text);

} // namespace host::app
