// SPDX-License-Identifier: Apache-2.0
// Batch mode: a scene and some MEL, no window.
#pragma once

#include "app/options.h"

namespace host
{
class Process;
}

namespace host::app
{

// Prints messages as Maya's batch mode does: "Warning: ...", "Error: ..." on stderr, the rest on
// stdout. Returns the exit code.
int runBatch(Process &process, const Options &options);

// Runs the options' -command and -script texts; stops early when one of them asked to quit. Used by
// the window as well.
void runScripts(Process &process, const Options &options);

// The MEL string literal of a path.
QString melQuoted(const QString &text);

} // namespace host::app
