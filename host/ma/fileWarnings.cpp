// SPDX-License-Identifier: Apache-2.0
#include "ma/fileWarnings.h"

namespace host::ma
{

namespace
{

bool isNameLike(const std::string &word)
{
    const std::size_t sign = word.find_first_of("0123456789|.[");
    return sign != std::string::npos && sign + 1 < word.size(); // not the full stop
}

// The text without what differs from statement to statement: words in quotes, and words that have
// a digit or a sign of a path in them or follow a colon.
std::string withoutNames(const std::string &text)
{
    std::string kind;
    std::string word;
    char quote = '\0';
    bool isBehindColon = false;
    for (const char c : text + ' ') {
        if (quote != '\0' || c == '\'' || c == '"') {
            quote = quote == '\0' ? c : quote == c ? '\0' : quote;
        } else if (c != ' ') {
            word += c;
        } else {
            const bool isName = isBehindColon || isNameLike(word);
            kind += isName ? " *" : ' ' + word;
            isBehindColon = !word.empty() && word.back() == ':';
            word.clear();
        }
    }
    return kind;
}

} // namespace

void FileWarnings::add(const std::string &command, std::size_t line, const std::string &text)
{
    const auto [place, isNew] = places_.emplace(command + withoutNames(text), kinds_.size());
    if (isNew)
        kinds_.push_back({path_ + " line " + std::to_string(line) + ": " + text, command, 0});
    ++kinds_[place->second].count;
}

void FileWarnings::addForFile(const std::string &text)
{
    kinds_.push_back({path_ + ": " + text, "", 1});
}

void FileWarnings::show()
{
    const bool isTooMany = kinds_.size() > kShownLines;
    const std::size_t shown = isTooMany ? kShownLines - 1 : kinds_.size();
    std::size_t left = 0;
    for (std::size_t i = 0; i < kinds_.size(); ++i) {
        const Kind &kind = kinds_[i];
        const std::string more = " (and " + std::to_string(kind.count - 1) + " more such \"" +
                                 kind.command + "\" statements)";
        if (i < shown)
            output_.warning(kind.text + (kind.count > 1 ? more : ""));
        else
            left += kind.count;
    }
    if (isTooMany)
        output_.warning(path_ + ": " + std::to_string(left) + " more warnings of " +
                        std::to_string(kinds_.size() - shown) + " other kinds");
}

} // namespace host::ma
