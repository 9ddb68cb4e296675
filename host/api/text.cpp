// SPDX-License-Identifier: Apache-2.0
#include "api/text.h"

#include <charconv>
#include <cstdint>

namespace host
{

namespace
{

constexpr char32_t kReplacement = 0xFFFD;

bool isBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string formatted(double number, std::chars_format format, int precision)
{
    char buffer[512]; // %f of the largest double takes 309 digits before the point
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, number, format, precision);
    return result.ec == std::errc() ? std::string(buffer, result.ptr) : std::string("0");
}

// How many continuation bytes a lead byte announces; -1 if it is no lead byte.
int continuationCount(unsigned char lead)
{
    if (lead < 0x80)
        return 0;
    if (lead >= 0xC2 && lead < 0xE0)
        return 1;
    if (lead >= 0xE0 && lead < 0xF0)
        return 2;
    return lead >= 0xF0 && lead < 0xF5 ? 3 : -1;
}

// Takes one character off the front of a text that is not empty.
char32_t takeCharacter(std::string_view &text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const int count = continuationCount(lead);
    text.remove_prefix(1);
    if (count <= 0)
        return count < 0 ? kReplacement : lead;
    if (text.size() < static_cast<std::size_t>(count))
        return kReplacement;
    char32_t character = lead & (0x3Fu >> count);
    for (int i = 0; i < count; ++i) {
        const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
        if ((byte & 0xC0u) != 0x80u)
            return kReplacement;
        character = (character << 6) | (byte & 0x3Fu);
    }
    text.remove_prefix(static_cast<std::size_t>(count));
    return character;
}

void appendUtf8(std::string &text, char32_t character)
{
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int count = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    const unsigned lead = 0xFF00u >> (count + 1); // 0xC0, 0xE0, 0xF0 in the low byte
    text += static_cast<char>((lead & 0xFFu) | (character >> (6 * count)));
    for (int i = count - 1; i >= 0; --i)
        text += static_cast<char>(0x80u | ((character >> (6 * i)) & 0x3Fu));
}

} // namespace

std::string_view view(const MString &text)
{
    return {text.asUTF8(), text.length()};
}

std::string toString(const MString &text)
{
    return std::string(view(text));
}

MString toMString(std::string_view text)
{
    return MString(text.data() ? text.data() : "", static_cast<int>(text.size()));
}

std::string generalText(double number)
{
    return formatted(number, std::chars_format::general, 6);
}

std::string fixedText(double number, int places)
{
    const int kept = places < 0 ? 0 : places > 100 ? 100 : places;
    return formatted(number, std::chars_format::fixed, kept);
}

bool leadingNumber(std::string_view text, double &number, std::string_view &rest)
{
    text = withoutLeadingBlanks(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    double parsed = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (result.ec != std::errc())
        return false;
    number = parsed;
    rest = text.substr(static_cast<std::size_t>(result.ptr - text.data()));
    return true;
}

bool wholeNumber(std::string_view text, double &number)
{
    double parsed = 0;
    std::string_view rest;
    if (!leadingNumber(text, parsed, rest) || !withoutLeadingBlanks(rest).empty())
        return false;
    number = parsed;
    return true;
}

std::string melString(std::string_view text)
{
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\')
            result += '\\';
        result += character == '\n' ? std::string("\\n") : std::string(1, character);
    }
    return result + '"';
}

std::wstring toWide(std::string_view text)
{
    std::wstring wide;
    while (!text.empty()) {
        const char32_t character = takeCharacter(text);
        if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
            wide += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
            wide += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        } else {
            wide += static_cast<wchar_t>(character);
        }
    }
    return wide;
}

std::string toUtf8(std::wstring_view text)
{
    std::string narrow;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = static_cast<char32_t>(text[i]);
        const bool isHighSurrogate = character >= 0xD800 && character < 0xDC00;
        if (isHighSurrogate && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000)
            character = 0x10000 + ((character - 0xD800) << 10) +
                        (static_cast<char32_t>(text[++i]) - 0xDC00);
        const bool isValid = character < 0x110000 && (character < 0xD800 || character >= 0xE000);
        appendUtf8(narrow, isValid ? character : kReplacement);
    }
    return narrow;
}

} // namespace host
