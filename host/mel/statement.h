// SPDX-License-Identifier: Apache-2.0
// A parsed MEL statement: one command call with its arguments.
//
// Arguments point into the text that was parsed wherever they can; the text must outlive them.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace host::mel
{

struct Statement;

struct Argument {
    enum class Kind {
        word,       // unquoted: number, flag, name, keyword
        string,     // quoted, escapes resolved, pieces of ( "a" + "b" ) joined
        call,       // `backquoted` or name(...) inside an expression
        punctuation // { } and , of attributeAlias values
    };
    Kind kind = Kind::word;
    std::string_view text;           // of word, string and punctuation
    const Statement *call = nullptr; // of call
    bool isFlag() const;             // a word such as -type: a dash and a letter, no number
};

// Two commands stand for operators of expressions: "+" joins or adds its arguments, "-" negates its
// one argument. No script can call them by these names.
struct Statement {
    std::string_view command;
    std::string_view text; // from the command word to before the `;`, without blanks at the end
    std::vector<Argument> arguments;
    std::size_t line = 1;        // of the command word, 1-based
    std::size_t column = 1;      // in bytes, 1-based
    bool isFunctionForm = false; // name(...): flags are strings there
};

// Statements of one text with the storage that their arguments need: strings with escapes, calls.
struct Script {
    std::vector<Statement> statements;
    std::deque<std::string> strings; // a deque: views into it stay valid while it grows
    std::deque<Statement> calls;
    // Forgets all of it but keeps the largest room for arguments, so that parsing one statement
    // after the other into the same Script does not allocate for each.
    void clear();
    std::vector<Argument> spareArguments; // what clear() kept; the parser's to use
};

struct SyntaxError {
    std::size_t line = 0; // 0: no error
    std::size_t column = 0;
    std::string message; // "Syntax error", or that with a word of what MEL can't do here
    explicit operator bool() const { return line != 0; }
};

// As Maya prints it: "Line 1.23: Syntax error", the column after the dot.
std::string toText(const SyntaxError &error);

// Calls and parentheses may stand inside each other this deep.
constexpr unsigned kMaxNesting = 200;

// Parses a whole text into `script`, which is cleared first. On an error it holds the statements
// before it. `firstLine` is the line number of the text's first line. Takes time and memory in
// proportion to the text, whatever stands in it.
SyntaxError parseScript(std::string_view text, Script &script, std::size_t firstLine = 1);

// The end of the first statement in `text`: the position after its `;` outside strings and
// comments, or npos when there is none. Counts the line ends that it passes into `lines`.
std::size_t statementEnd(std::string_view text, std::size_t &lines);

} // namespace host::mel
