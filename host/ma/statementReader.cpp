// SPDX-License-Identifier: Apache-2.0
#include "ma/statementReader.h"

#include <algorithm>

#include "mel/statement.h"

namespace host::ma
{

namespace
{

constexpr std::size_t kBlockBytes = 256u << 10;

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

// Where something other than blanks and comments begins in `text`; its size if nowhere.
std::size_t skipBlanksAndComments(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size()) {
        if (isBlank(text[at])) {
            ++at;
            continue;
        }
        const std::string_view mark = text.substr(at, 2);
        if (mark != "//" && mark != "/*")
            return at;
        const std::size_t end = mark == "//" ? text.find('\n', at) : text.find("*/", at + 2);
        if (end == std::string_view::npos)
            return mark == "//" ? text.size() : at;
        at = end + (mark == "//" ? 1 : 2);
    }
    return text.size();
}

// An upper bound of the tokens: words that stand apart and punctuation, inside strings too.
std::size_t countTokens(std::string_view text)
{
    constexpr std::string_view kPunctuation = "\"`(){},+";
    std::size_t tokens = 0;
    bool isInside = false;
    for (const char c : text) {
        const bool isPunctuation = kPunctuation.find(c) != std::string_view::npos;
        tokens += isPunctuation || (!isInside && !isBlank(c));
        isInside = !isBlank(c) && !isPunctuation;
    }
    return tokens;
}

} // namespace

bool StatementReader::next(StatementText &statement)
{
    for (;;) {
        const std::string_view rest = std::string_view(buffer_).substr(position_);
        std::size_t lines = 0;
        const std::size_t end = mel::statementEnd(rest, lines);
        if (end != std::string_view::npos) {
            statement = {rest.substr(0, end), line_};
            if (end > kMaxStatementTokens && countTokens(statement.text) > kMaxStatementTokens)
                throwFileError(file_.path(), line_, "The statement has too many values");
            position_ += end;
            line_ += lines;
            return true;
        }
        if (rest.size() > kMaxStatementBytes)
            throwFileError(file_.path(), line_, "The statement is longer than 64 MB");
        if (!fetchMore()) {
            checkEnd();
            return false;
        }
    }
}

bool StatementReader::fetchMore()
{
    buffer_.erase(0, position_);
    position_ = 0;
    // Twice the text each time, so that looking for the end of a long statement again and again
    // stays cheap, but not much beyond what a statement may have.
    const std::size_t most = kMaxStatementBytes + kBlockBytes - buffer_.size();
    return file_.fetch(std::min(std::max(kBlockBytes, buffer_.size()), most), buffer_);
}

bool StatementReader::hasEndMark() const
{
    return buffer_.find("// End of", position_) != std::string::npos;
}

void StatementReader::checkEnd() const
{
    const std::string_view rest = std::string_view(buffer_).substr(position_);
    const std::size_t start = skipBlanksAndComments(rest);
    if (start == rest.size())
        return;
    const auto lines = std::count(rest.begin(), rest.begin() + long(start), '\n');
    throwFileError(file_.path(), line_ + std::size_t(lines),
                   "The file is cut off: this statement has no end");
}

} // namespace host::ma
