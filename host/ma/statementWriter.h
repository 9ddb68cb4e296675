// SPDX-License-Identifier: Apache-2.0
// Writes MEL statements as Maya lays them out: one blank between words, lines of about a hundred
// columns, continued with two tabs.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace host::ma
{

class StatementWriter
{
public:
    using Sink = std::function<void(std::string_view)>;
    // `sink` gets the text in large pieces; the last one in finish().
    explicit StatementWriter(Sink sink);
    void finish();

    // A line as it is.
    void line(std::string_view text);

    enum class Place { firstColumn, insideNode };
    StatementWriter &begin(std::string_view command, Place place = Place::firstColumn);
    StatementWriter &word(std::string_view word);
    StatementWriter &quoted(std::string_view text);
    // As a bare word where that says the same, else in quotes: type names, units.
    StatementWriter &wordOrQuoted(std::string_view text);
    // Two words that a line end should not part: -n "name".
    StatementWriter &flag(std::string_view flag, std::string_view value);
    StatementWriter &flagQuoted(std::string_view flag, std::string_view text);
    StatementWriter &integer(long long number);
    // The shortest digits that read back as the same double, or as the same float.
    StatementWriter &real(double number);
    StatementWriter &single(double number);
    // A string value; a long one is cut: ( "first" \n + "second").
    StatementWriter &stringValue(std::string_view text);
    // Values as they were read: words and quoted strings with one blank in between.
    StatementWriter &values(std::string_view text);
    // Goes on in the next line.
    StatementWriter &newLine();
    void end(); // ";"

private:
    void separate(std::size_t size);

    Sink sink_;
    std::string text_;
    std::size_t lineStart_ = 0;
};

// A number as real() and single() write it.
std::string realText(double number);
std::string singleText(double number);

// The text in quotes, with MEL's escapes.
std::string quotedText(std::string_view text);

} // namespace host::ma
