// SPDX-License-Identifier: Apache-2.0
// Cuts the text of a file into statements.
#pragma once

#include <string>
#include <string_view>

#include "ma/fileText.h"

namespace host::ma
{

// What a statement may have at most. Maya cuts its own after some 500 numbers; these bounds keep a
// hostile file from taking more memory than a scene of that size would.
constexpr std::size_t kMaxStatementBytes = 64u << 20;
constexpr std::size_t kMaxStatementTokens = 3'000'000;

struct StatementText {
    std::string_view text; // with its `;` and the comments before it
    std::size_t line = 1;  // of the text's first character
};

class StatementReader
{
public:
    explicit StatementReader(FileText &file) : file_(file) {}

    // The next statement; it is valid until the next call. False at the end of the file. Throws
    // Error when the file is cut off or a statement is too long.
    bool next(StatementText &statement);
    // Whether a comment "// End of NAME", with which Maya ends a file, stands behind the last
    // statement. REQUIRES: next() was false.
    bool hasEndMark() const;
    // Blanks and comments after the last statement, once next() has given false.
    std::string_view rest() const { return std::string_view(buffer_).substr(position_); }

private:
    bool fetchMore(); // after the statement's beginning; false at the end of the file
    void checkEnd() const;

    FileText &file_;
    std::string buffer_;
    std::size_t position_ = 0; // of the next statement in buffer_
    std::size_t line_ = 1;     // of that place
};

} // namespace host::ma
