// SPDX-License-Identifier: Apache-2.0
// Runs MEL: parses a text and calls the commands of its table, one statement after the other.
//
// A text with a syntax error does nothing at all. Otherwise the first error stops the text; what
// ran before stays done. No variables, control flow or
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
    bool undo = false;         // keep what can be undone; false: nothing is recorded, and a
                               // command that fails half way leaves what it did
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

    // Runs one parsed statement in `context`; used by the reader of files too. Throws Error, after
    // what the failing command has recorded for undo was taken back.
    //
    // `catch` and `catchQuiet`, which must see their arguments fail, are known here and not in the
    // table. While a file is read, only its own statements run and no calls inside them.
    MelValue call(Context &context, const Statement &statement);

    // What loadPlugin works with (pluginLoader.h); not owned. Null: there are no plug-ins.
    PluginLoader *pluginLoader = nullptr;

    // Set by the quit command: the program should end with this code once the text is done.
    bool quitRequested = false;
    int exitCode = 0;

private:
    friend class ScriptRun;
    MelValue callCatch(Context &context, const Statement &statement);
    MelValue callCommand(Context &context, const Statement &statement);

    Session &session_;
    CommandTable commands_;
    unsigned runDepth_ = 0;  // calls of run() inside each other
    unsigned callDepth_ = 0; // calls of call() inside each other, over all runs
};

// Adds every built-in command; one line per family in host/mel/commands/builtInCommands.cpp.
void addBuiltInCommands(CommandTable &table);

} // namespace host::mel
