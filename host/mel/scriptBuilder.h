// SPDX-License-Identifier: Apache-2.0
// Puts a Script together from what the parser finds, in the order of the text.
//
// Everything is handed over as a view into the text; only strings with escapes and joined strings
// are copied. Commands inside commands are kept on a stack.
#pragma once

#include <string_view>
#include <vector>

#include "mel/statement.h"

namespace host::mel
{

// Thrown when the text is no MEL that can be run: where, and what SyntaxError::message says.
struct ParseFailure {
    const char *at;
    std::string_view reason;
};

class ScriptBuilder
{
public:
    // `text` and `script` must outlive the builder.
    ScriptBuilder(std::string_view text, Script &script, std::size_t firstLine);

    // A statement, and a command inside it. Keywords of MEL that are not supported throw
    // ParseFailure. `text` is the whole command, blanks at its end are cut off.
    void beginStatement(std::string_view command);
    void endStatement(std::string_view text);
    void beginCall(std::string_view command);
    void endCall(std::string_view text);

    // Arguments of the innermost command that has begun and not ended.
    void addArgument(Argument::Kind kind, std::string_view text);
    void addEscapedString(std::string_view inner); // without its quotes, escapes unresolved
    void setFunctionForm() { current().isFunctionForm = true; }
    bool hasOneArgument() { return current().arguments.size() == 1; }

    // Arguments added between these become one.
    void beginSum() { sums_.push_back(current().arguments.size()); }
    void endSum();

    // Line and column of a place that is not before the last one asked for.
    void locate(const char *place, std::size_t &line, std::size_t &column);

    // Counted by the grammar.
    unsigned depth = 0;
    static constexpr unsigned maxDepth = kMaxNesting;

private:
    Statement &current() { return open_.empty() ? statement_ : *open_.back(); }
    std::string_view joined(const Argument *first, const Argument *end);

    Script &script_;
    Statement statement_;           // the one that is being read
    std::vector<Statement *> open_; // commands inside it
    std::vector<std::size_t> sums_; // where the open sums begin among the arguments
    const char *place_;             // the last place that was located,
    const char *lineStart_;         // the start of its line
    std::size_t line_;              // and the number of that
};

} // namespace host::mel
