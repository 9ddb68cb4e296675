// SPDX-License-Identifier: Apache-2.0
// Batch mode: a scene and some MEL, no window.
#pragma once

#include <cstdio>

#include "app/options.h"
#include "scene/output.h"

namespace host
{
class Process;
}

namespace host::app
{

// Does the options' steps. A scene or script that cannot be opened ends it: no command runs then,
// nothing is saved, and the exit code is 1. With --strict any error ends it so. Returns the exit
// code.
int runBatch(Process &process, const Options &options);

// Prints a message as Maya's batch mode does: "Warning: ...", "Error: ..." on stderr, the rest on
// `stream`.
void printMessage(const std::string &text, MessageKind kind, std::FILE *stream);

} // namespace host::app
