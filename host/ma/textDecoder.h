// SPDX-License-Identifier: Apache-2.0
// Turns the bytes of a file into UTF-8, piece by piece.
//
// Maya writes its files in the code page of the machine and names it in the fourth line: a Windows
// code page as a bare number ("1252", "932"), or a name ("UTF-8"). Decoding comes before anything
// else looks at the text: in code pages 932, 936, 949 and 950 the second byte of a character can be
// a backslash.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host::ma
{

// The way back: UTF-8 in that codeset. Nothing when the codeset is not known or lacks a character.
std::optional<std::string> encodeText(std::string_view text, std::string_view codeset);

class TextDecoder
{
public:
    // A codeset that is not known is read as UTF-8; isKnown() is false then.
    explicit TextDecoder(std::string_view codeset);
    ~TextDecoder();
    TextDecoder(const TextDecoder &) = delete;
    TextDecoder &operator=(const TextDecoder &) = delete;

    bool isKnown() const { return isKnown_; }
    // Appends the decoded bytes to `text`. A character that is cut at the end of `bytes` waits for
    // the next call.
    void decode(std::string_view bytes, std::string &text);
    // The end of the file: what still waits is no character.
    void finish(std::string &text);
    // Bytes that meant nothing; each has become U+FFFD.
    std::size_t replacedBytes() const { return replacedBytes_; }

private:
    void convert(std::string_view bytes, std::string &text);

    void *conversion_; // iconv_t
    bool isKnown_ = true;
    std::string waiting_; // the beginning of a character
    std::size_t replacedBytes_ = 0;
};

} // namespace host::ma
