// SPDX-License-Identifier: Apache-2.0
// Runs the statements of one file against a scene.
#pragma once

#include <string>
#include <string_view>

#include "ma/fileText.h"
#include "ma/fileWarnings.h"
#include "ma/statementReader.h"
#include "mel/interpreter.h"

namespace host::ma
{

// Only commands that their table marks as file statements run, and none in back quotes. What may
// fail without harm to the rest (a connection to a node that is not there) becomes a warning,
// everything else ends the reading with an Error that names file and line.
class Reader
{
public:
    // Opens the file. Throws Error.
    Reader(mel::Interpreter &interpreter, const std::string &path, Scene &target);

    // Reads it all. On an Error the target holds what was read until then.
    void run();

private:
    void runStatement(const StatementText &text);
    void call(const mel::Statement &statement);
    void callCommand(const mel::Statement &statement);
    void selectNode(const mel::Statement &statement);
    void requireObjects(const mel::Statement &statement) const;
    void requireCurrentNode(const mel::Statement &statement) const;
    void checkArguments(const mel::Statement &statement) const;
    void checkGivenName(const mel::Statement &statement) const;
    void noteReference(const mel::Statement &statement);
    void noteLongNames(const mel::Statement &statement);
    void reportProgress();

    mel::Interpreter &interpreter_;
    Scene &target_;
    FileText file_;
    StatementReader statements_;
    FileWarnings warnings_;
    NodePtr currentNode_;
    mel::Context context_;
    mel::Script script_; // kept, so that its storage is reused
    std::size_t reported_ = 0;
};

} // namespace host::ma
