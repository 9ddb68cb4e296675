// SPDX-License-Identifier: Apache-2.0
// Runs the statements of one file against a scene.
#pragma once

#include <string>

#include "ma/fileText.h"
#include "ma/statementReader.h"
#include "ma/statementRunner.h"
#include "mel/interpreter.h"

namespace host::ma
{

// What goes wrong with a statement is a warning or ends the reading with an Error that names file
// and line: see StatementRunner.
class Reader
{
public:
    // Opens the file. Throws Error.
    Reader(mel::Interpreter &interpreter, const std::string &path, Scene &target);

    // Reads it all. On an Error the target holds what was read until then.
    void run();

private:
    void runStatement(const StatementText &text);
    void reportProgress();

    mel::Interpreter &interpreter_;
    Scene &target_;
    FileText file_;
    StatementReader statements_;
    FileWarnings warnings_;
    StatementRunner runner_;
    mel::Script script_; // kept, so that its storage is reused
    std::size_t reported_ = 0;
};

} // namespace host::ma
