// SPDX-License-Identifier: Apache-2.0
#include "mel/statement.h"

#include <cstring>

#include "mel/characters.h"
#include "mel/operandText.h"
#include "scene/lineCount.h"

namespace host::mel
{

bool Argument::isFlag() const
{
    return kind == Kind::word && looksLikeFlag(text) && !isNotFinite(text);
}

void Script::clear()
{
    for (Statement &statement : statements)
        if (statement.arguments.capacity() > spareArguments.capacity())
            spareArguments = std::move(statement.arguments);
    spareArguments.clear();
    statements.clear();
    calls.clear();
    strings.clear();
}

std::string toText(const SyntaxError &error)
{
    return "Line " + std::to_string(error.line) + '.' + std::to_string(error.column) + ": " +
           error.message;
}

namespace
{

const char *findLineEnd(const char *begin, const char *end)
{
    const void *found = std::memchr(begin, '\n', static_cast<std::size_t>(end - begin));
    return found ? static_cast<const char *>(found) : end;
}

// The place after a string, from its opening quote on; `end` if it has none.
const char *afterString(const char *quote, const char *end)
{
    for (const char *here = quote + 1; here < end; ++here) {
        if (*here == '"')
            return here + 1;
        if (*here == '\\' && here + 1 < end)
            ++here;
    }
    return end;
}

// The place after a comment; from a slash that begins none, the next character.
const char *afterComment(const char *slash, const char *end)
{
    if (slash + 1 == end)
        return end;
    if (slash[1] == '/')
        return findLineEnd(slash, end);
    if (slash[1] != '*')
        return slash + 1;
    const std::string_view rest(slash + 2, static_cast<std::size_t>(end - slash - 2));
    const std::size_t close = rest.find("*/");
    return close == std::string_view::npos ? end : rest.data() + close + 2;
}

} // namespace

std::size_t statementEnd(std::string_view text, std::size_t &lines)
{
    const char *const begin = text.data();
    const char *const end = begin + text.size();
    const char *here = begin;
    bool isFound = false;
    while (here < end && !isFound) {
        if (*here == '"')
            here = afterString(here, end);
        else if (*here == '/')
            here = afterComment(here, end);
        else
            isFound = *here++ == ';';
    }
    lines += lineEndsIn(text.substr(0, static_cast<std::size_t>(here - begin)));
    return isFound ? static_cast<std::size_t>(here - begin) : std::string_view::npos;
}

} // namespace host::mel
