// SPDX-License-Identifier: Apache-2.0
// Searching, cutting and replacing in strings, and reading numbers from them.
#include <maya/MString.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <maya/MStringArray.h>

#include "api/text.h"

namespace
{

// The part from `start` to `end`, both included, as far as it exists.
template <class Text>
Text part(const Text &text, int start, int end)
{
    const int first = std::max(start, 0);
    const int last = std::min(end, static_cast<int>(text.size()) - 1);
    if (first > last)
        return Text();
    return text.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(last - first + 1));
}

// How often `source` was replaced, at most `limit` times, from left to right.
void replaceIn(std::string &text, std::string_view source, std::string_view target,
               std::size_t limit)
{
    if (source.empty())
        return;
    std::size_t place = 0;
    while (limit-- > 0 && (place = text.find(source, place)) != std::string::npos) {
        text.replace(place, source.size(), target);
        place += target.size();
    }
}

template <class Integer>
bool isWhole(std::string_view text)
{
    double number = 0;
    return host::wholeNumber(text, number) && number == std::floor(number) &&
           number >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
           number <= static_cast<double>(std::numeric_limits<Integer>::max());
}

template <class Integer>
Integer truncated(double number)
{
    const double low = static_cast<double>(std::numeric_limits<Integer>::min());
    const double high = static_cast<double>(std::numeric_limits<Integer>::max());
    return std::isnan(number) ? Integer(0) : static_cast<Integer>(std::clamp(number, low, high));
}

int position(std::size_t found)
{
    return found == std::string::npos ? -1 : static_cast<int>(found);
}

} // namespace

int MString::index(char character) const
{
    return position(text_.find(character));
}
int MString::rindex(char character) const
{
    return position(text_.rfind(character));
}

int MString::indexW(const MString &part) const
{
    return position(host::toWide(text_).find(host::toWide(part.text_)));
}

int MString::rindexW(const MString &part) const
{
    return position(host::toWide(text_).rfind(host::toWide(part.text_)));
}

// Empty pieces are left out, as MEL's tokenize does: "|a|b" has two pieces.
MStatus MString::split(char separator, MStringArray &pieces) const
{
    MStringArray found;
    std::size_t start = 0;
    while (start < text_.size()) {
        const std::size_t end = std::min(text_.find(separator, start), text_.size());
        if (end > start)
            found.append(host::toMString(std::string_view(text_).substr(start, end - start)));
        start = end + 1;
    }
    pieces = found;
    return MStatus::kSuccess;
}

MString MString::substring(int start, int end) const
{
    return host::toMString(part(text_, start, end));
}

MString MString::substringW(int start, int end) const
{
    return host::toMString(host::toUtf8(part(host::toWide(text_), start, end)));
}

MString &MString::toUpperCase()
{
    for (char &character : text_)
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
    return *this;
}

MString &MString::toLowerCase()
{
    for (char &character : text_)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return *this;
}

bool MString::isShort() const
{
    return isWhole<short>(text_);
}
short MString::asShort() const
{
    return truncated<short>(asDouble());
}
bool MString::isInt() const
{
    return isWhole<int>(text_);
}
int MString::asInt() const
{
    return truncated<int>(asDouble());
}
bool MString::isUnsigned() const
{
    return isWhole<unsigned int>(text_);
}
unsigned int MString::asUnsigned() const
{
    return truncated<unsigned int>(asDouble());
}
bool MString::isFloat() const
{
    return isDouble();
}
float MString::asFloat() const
{
    return static_cast<float>(asDouble());
}

bool MString::isDouble() const
{
    double number = 0;
    return host::wholeNumber(text_, number);
}

double MString::asDouble() const
{
    double number = 0;
    std::string_view rest;
    host::leadingNumber(text_, number, rest);
    return number;
}

MStatus MString::format(const MString &fmt, const MStringArray &args)
{
    const std::string pattern = fmt.text_;
    std::string result;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        std::size_t end = i + 1;
        unsigned int place = 0;
        while (end < pattern.size() && end < i + 3 && pattern[end] >= '0' && pattern[end] <= '9')
            place = place * 10 + static_cast<unsigned int>(pattern[end++] - '0');
        const bool isPlace = pattern[i] == '^' && end > i + 1 && end < pattern.size() &&
                             pattern[end] == 's' && place >= 1 && place <= args.length();
        if (isPlace) {
            result += args[place - 1].asUTF8();
            i = end;
        } else {
            result += pattern[i];
        }
    }
    text_ = result;
    return MStatus::kSuccess;
}

MStatus MString::substitute(const MString &src, const MString &target)
{
    replaceIn(text_, std::string(src.text_), std::string(target.text_), text_.size());
    return MStatus::kSuccess;
}

MStatus MString::substituteFirst(const MString &src, const MString &target)
{
    replaceIn(text_, std::string(src.text_), std::string(target.text_), 1);
    return MStatus::kSuccess;
}
