// SPDX-License-Identifier: Apache-2.0
// Runs the statements of a file against a scene, and decides what becomes of one that fails.
#pragma once

#include <string>
#include <string_view>

#include "ma/fileWarnings.h"
#include "mel/interpreter.h"
#include "mel/pendingWeights.h"

namespace host::ma
{

// Only commands that their table marks as file statements run, and none in back quotes. A statement
// that fails is kept as text for the next save, with its node, its connection or the file, and
// becomes a warning. Those few without which no sane scene is left end the reading.
class StatementRunner
{
public:
    // `warnings` null: silently, for text that was told about when it was read from its file.
    StatementRunner(mel::Context context, FileWarnings *warnings);
    StatementRunner(const StatementRunner &) = delete;
    StatementRunner &operator=(const StatementRunner &) = delete;

    // False if the statement failed and was kept. Throws Error, without file and line, when the
    // failure must not be passed over.
    bool run(const mel::Statement &statement);
    // Every statement of a text that the host wrote itself.
    void runAll(std::string_view text);
    // To be called behind the last statement.
    void finish();
    // The one that the next statement is about; null if none.
    Node *currentNode() const { return currentNode_.get(); }

private:
    bool runHere(const mel::Statement &statement);
    void runAbout(const NodePtr &node, const std::string &text);
    bool call(const mel::Statement &statement);
    bool skip(const mel::Statement &statement);
    bool mustNotFail(const mel::Statement &statement);
    void prepare(const mel::Statement &statement);
    void selectNode(const mel::Statement &statement);
    void makeDefaultNodes(const mel::Statement &statement);
    void requireCurrentNode(const mel::Statement &statement) const;
    void checkGivenName(const mel::Statement &statement) const;
    void noteReference(const mel::Statement &statement);
    void keep(const mel::Statement &statement);
    bool keepConnection(const mel::Statement &statement);
    KeptConnection::End endOf(std::string_view plug);
    void warn(const mel::Statement &statement, const std::string &text);

    NodePtr currentNode_;
    mel::PendingWeights pendingWeights_;
    mel::Context context_;
    FileWarnings *warnings_;
    std::size_t line_ = 0; // of the file's statement that is run
};

} // namespace host::ma
