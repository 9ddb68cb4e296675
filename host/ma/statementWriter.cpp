// SPDX-License-Identifier: Apache-2.0
#include "ma/statementWriter.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace host::ma
{

namespace
{

constexpr std::size_t kColumns = 100;
constexpr std::size_t kSinkBytes = 1u << 20;
// Maya cuts strings of user interface scripts after about as many characters.
constexpr std::size_t kStringPiece = 400;

// Digits as printf's %g has them, but never more than it takes to read the number back. A whole
// number has no exponent as long as all its digits count.
template <typename Number>
std::string_view format(Number number, char (&space)[64])
{
    const Number size = std::fabs(number);
    const bool isPlain = size == 0 || (size >= Number(1e-4) && size < Number(1e16));
    const auto style = isPlain ? std::chars_format::fixed : std::chars_format::scientific;
    const std::to_chars_result result = std::to_chars(space, space + sizeof space, number, style);
    return {space, std::size_t(result.ptr - space)};
}

void appendEscaped(std::string_view text, std::string &escaped)
{
    for (const char c : text) {
        switch (c) {
        case '\0': // no text file may hold one
            break;
        case '"':
        case '\\':
            escaped += {'\\', c};
            break;
        case '\n':
            escaped += "\\n";
            break;
        case '\t':
            escaped += "\\t";
            break;
        case '\r':
            escaped += "\\r";
            break;
        default:
            escaped += c;
        }
    }
}

// Where to cut a long string: after the last line end in its first piece, else before a character.
std::size_t pieceOf(std::string_view text)
{
    if (text.size() <= kStringPiece)
        return text.size();
    const std::size_t lineEnd = text.rfind('\n', kStringPiece - 1);
    if (lineEnd != std::string_view::npos)
        return lineEnd + 1;
    std::size_t cut = kStringPiece;
    while (cut > 1 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80)
        --cut; // inside a UTF-8 sequence
    return cut;
}

// Where the value at the beginning of `text` ends: at a blank outside quotes.
std::size_t valueLength(std::string_view text)
{
    bool isInQuotes = false;
    std::size_t at = 0;
    for (; at < text.size() && (isInQuotes || text[at] != ' '); ++at) {
        if (text[at] == '"')
            isInQuotes = !isInQuotes;
        else if (isInQuotes && text[at] == '\\')
            ++at;
    }
    return std::min(at, text.size());
}

} // namespace

std::string realText(double number)
{
    char space[64];
    return std::string(format(number, space));
}

std::string singleText(double number)
{
    char space[64];
    return std::string(format(float(number), space));
}

std::string quotedText(std::string_view text)
{
    std::string quoted = "\"";
    appendEscaped(text, quoted);
    return quoted += '"';
}

StatementWriter::StatementWriter(Sink sink) : sink_(std::move(sink))
{
    text_.reserve(kSinkBytes + (kSinkBytes >> 2));
}

void StatementWriter::finish()
{
    sink_(text_);
    text_.clear();
}

void StatementWriter::line(std::string_view text)
{
    text_.append(text) += '\n';
    lineStart_ = text_.size();
}

StatementWriter &StatementWriter::begin(std::string_view command, Place place)
{
    lineStart_ = text_.size();
    if (place == Place::insideNode)
        text_ += '\t';
    text_ += command;
    return *this;
}

void StatementWriter::separate(std::size_t size)
{
    const std::size_t column = text_.size() - lineStart_;
    if (column + size >= kColumns && column > 2) {
        newLine();
        return;
    }
    const char last = text_.back();
    if (last != ' ' && last != '\t')
        text_ += ' ';
    if (text_.size() >= kSinkBytes) {
        // Within the statement: a long one must not pile up.
        finish();
        lineStart_ = 0;
    }
}

StatementWriter &StatementWriter::newLine()
{
    text_ += '\n';
    lineStart_ = text_.size();
    text_ += "\t\t";
    return *this;
}

StatementWriter &StatementWriter::word(std::string_view word)
{
    separate(word.size());
    text_ += word;
    return *this;
}

StatementWriter &StatementWriter::quoted(std::string_view text)
{
    return word(quotedText(text));
}

StatementWriter &StatementWriter::wordOrQuoted(std::string_view text)
{
    const bool isWord = !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) {
        return std::isalnum(c) || c == '_' || c == ':';
    });
    return isWord ? word(text) : quoted(text);
}

StatementWriter &StatementWriter::flag(std::string_view flag, std::string_view value)
{
    separate(flag.size() + value.size() + 1);
    text_.append(flag) += ' ';
    text_ += value;
    return *this;
}

StatementWriter &StatementWriter::flagQuoted(std::string_view flagName, std::string_view text)
{
    return flag(flagName, quotedText(text));
}

StatementWriter &StatementWriter::integer(long long number)
{
    char space[32];
    const std::to_chars_result result = std::to_chars(space, space + sizeof space, number);
    return word({space, std::size_t(result.ptr - space)});
}

StatementWriter &StatementWriter::real(double number)
{
    char space[64];
    return word(format(number, space));
}

StatementWriter &StatementWriter::single(double number)
{
    char space[64];
    return word(format(float(number), space));
}

StatementWriter &StatementWriter::stringValue(std::string_view text)
{
    if (text.size() <= kStringPiece)
        return quoted(text);
    word("(");
    for (bool isFirst = true; !text.empty(); isFirst = false) {
        const std::string_view piece = text.substr(0, pieceOf(text));
        text.remove_prefix(piece.size());
        newLine();
        if (!isFirst)
            text_ += "+ ";
        text_ += quotedText(piece);
    }
    text_ += ')';
    return *this;
}

StatementWriter &StatementWriter::values(std::string_view text)
{
    while (!text.empty()) {
        if (text.front() == ' ') {
            text.remove_prefix(1);
            continue;
        }
        const std::string_view value = text.substr(0, valueLength(text));
        word(value);
        text.remove_prefix(value.size());
    }
    return *this;
}

void StatementWriter::end()
{
    line(";");
    if (text_.size() >= kSinkBytes)
        finish();
}

} // namespace host::ma
