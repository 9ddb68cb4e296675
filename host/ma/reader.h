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

// Learns of each statement what it says and whom it is about: for those who need a file's text
// beside its meaning.
class StatementListener
{
public:
    virtual ~StatementListener() = default;
    // `text` begins behind the statement before and ends with the `;`; `node` is the one that
    // relative plugs mean, or null; `hasFailed`: the statement became a warning. All of it is valid
    // during the call.
    virtual void wasRead(std::string_view text, const mel::Script &script, Node *node,
                         bool hasFailed) = 0;
    // What follows the last statement.
    virtual void hasEnded(std::string_view rest) = 0;
};

// What goes wrong with a statement is a warning or ends the reading with an Error that names file
// and line: see StatementRunner.
class Reader
{
public:
    // Opens the file. Throws Error.
    Reader(mel::Interpreter &interpreter, const std::string &path, Scene &target);
    // For a listener (null: none) rather than the user: shows no warnings and no progress. `bytes`
    // are those of the file; null: they are read from it.
    Reader(mel::Interpreter &interpreter, const std::string &path, const std::string *bytes,
           Scene &target, StatementListener *listener);

    // Reads it all. On an Error the target holds what was read until then.
    void run();
    const FileText &file() const { return file_; }

private:
    void runStatement(const StatementText &text);
    void reportProgress();

    mel::Interpreter &interpreter_;
    Scene &target_;
    Output silence_; // takes the warnings that nobody is to see
    FileText file_;
    StatementReader statements_;
    FileWarnings warnings_;
    StatementRunner runner_;
    StatementListener *listener_ = nullptr;
    bool showsProgress_ = true;
    mel::Script script_; // kept, so that its storage is reused
    std::size_t reported_ = 0;
};

} // namespace host::ma
