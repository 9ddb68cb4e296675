// SPDX-License-Identifier: Apache-2.0
// The characters of MEL by the places where they may stand.
//
// One table look-up decides about a character; bytes from 0x80 on belong to UTF-8 letters and are
// treated as letters.
#pragma once

#include <array>
#include <string_view>

namespace host::mel
{

enum CharacterClass : unsigned char {
    kBlank = 1,
    kDigit = 2,
    kLetter = 4, // begins a name: letters and _
    kName = 8,   // letters, digits and _
    kWordStart = 16,
    kWord = 32,     // what an unquoted argument may hold: pCube1.vtx[0:3], |a|b, ns:*, Index_Data
    kPlainText = 64 // stands for itself in a string: all but quote and backslash
};

constexpr std::array<unsigned char, 256> makeCharacterClasses()
{
    std::array<unsigned char, 256> classes{};
    const auto add = [&classes](std::string_view characters, unsigned added) {
        for (const char character : characters)
            classes[static_cast<unsigned char>(character)] |= static_cast<unsigned char>(added);
    };
    for (unsigned i = 0; i < 256; ++i) {
        const bool isLetter = (i >= 'a' && i <= 'z') || (i >= 'A' && i <= 'Z') || i >= 0x80;
        classes[i] = isLetter ? kLetter | kName | kWordStart | kWord | kPlainText : kPlainText;
    }
    add("_", kLetter | kName | kWordStart | kWord);
    add("0123456789", kDigit | kName | kWordStart | kWord);
    add(".[|:*?#", kWordStart | kWord);
    add("],-", kWord);
    add(" \t\r\n\f\v", kBlank);
    classes['"'] = classes['\\'] = 0;
    return classes;
}

inline constexpr std::array<unsigned char, 256> kCharacterClasses = makeCharacterClasses();

constexpr bool isOf(char character, unsigned classes)
{
    return (kCharacterClasses[static_cast<unsigned char>(character)] & classes) != 0;
}

} // namespace host::mel
