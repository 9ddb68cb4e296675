// SPDX-License-Identifier: Apache-2.0
// Runs MEL: parses a text and calls the commands of its table, one statement after the other.
//
// The first error stops the text; what ran before stays done. No variables, control flow or
// procedures: they are refused as a syntax error that says so.
#pragma once

#include <string>
#include <string_view>

#include "mel/command.h"
#include "mel/statement.h"

namespace host::mel
{

class PluginLoader;

struct RunOptions {
    bool echo = false;         // show the text and its result (executeCommand's displayEnabled)
    bool undo = false;         // keep what can be undone; false: nothing is recorded
    bool oneItem = true;       // all statements are one undo item; false: one item each
    bool resultPrefix = false; // show the result as typed input does: "Result: text"
    std::string file;          // named in errors when the text is that of a script file
};

struct Outcome {
    bool succeeded = true;
    MelValue value; // of the last statement
};

class Interpreter
{
public:
    explicit Interpreter(Session &session); // with the built-in commands

    Session &session() { return session_; }
    CommandTable &commands() { return commands_; }
    // Errors are shown ("line 1: Cannot find procedure \"fred\".") and counted, never thrown.
    Outcome run(std::string_view text, const RunOptions &options);

    // Runs one parsed statement in `context`; used by the reader of files too. Throws Error.
    MelValue call(Context &context, const Statement &statement);

    // What loadPlugin works with (pluginLoader.h); not owned. Null: there are no plug-ins.
    PluginLoader *pluginLoader = nullptr;

    // Set by the quit command: the program should end with this code once the text is done.
    bool quitRequested = false;
    int exitCode = 0;

private:
    Session &session_;
    CommandTable commands_;
    unsigned depth_ = 0;
};

// Adds every built-in command; one line per family in host/mel/commands/builtInCommands.cpp.
void addBuiltInCommands(CommandTable &table);

} // namespace host::mel
