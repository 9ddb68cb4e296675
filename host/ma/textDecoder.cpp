// SPDX-License-Identifier: Apache-2.0
#include "ma/textDecoder.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>
#include <utility>

#include "scene/error.h"

namespace host::ma
{

namespace
{

constexpr char kReplacement[] = "\xEF\xBF\xBD"; // U+FFFD

const iconv_t kNoConversion = iconv_t(-1);

// iconv's name of a codeset as Maya writes it.
std::string conversionName(std::string_view codeset)
{
    const bool isNumber =
        !codeset.empty() &&
        std::all_of(codeset.begin(), codeset.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (codeset == "65001" || codeset.empty())
        return "UTF-8";
    return (isNumber ? "CP" : "") + std::string(codeset);
}

bool isAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

} // namespace

std::optional<std::string> encodeText(std::string_view text, std::string_view codeset)
{
    const std::string name = conversionName(codeset);
    if (name == "UTF-8" || isAscii(text))
        return std::string(text);
    const iconv_t conversion = iconv_open(name.c_str(), "UTF-8");
    if (conversion == kNoConversion)
        return std::nullopt;
    std::string encoded(text.size() * 2 + 16, '\0'); // codesets of Maya: at most two bytes for two
    char *input = const_cast<char *>(text.data());
    std::size_t left = text.size();
    char *output = encoded.data();
    std::size_t room = encoded.size();
    const std::size_t result = iconv(conversion, &input, &left, &output, &room);
    iconv_close(conversion);
    if (result != 0 || left > 0) // also characters that were replaced by others
        return std::nullopt;
    encoded.resize(std::size_t(output - encoded.data()));
    return encoded;
}

TextDecoder::TextDecoder(std::string_view codeset)
    : conversion_(iconv_open("UTF-8", conversionName(codeset).c_str()))
{
    if (conversion_ == kNoConversion) {
        isKnown_ = false;
        conversion_ = iconv_open("UTF-8", "UTF-8");
    }
    if (conversion_ == kNoConversion)
        throw Error("This system cannot convert text");
}

TextDecoder::~TextDecoder()
{
    iconv_close(conversion_);
}

void TextDecoder::decode(std::string_view bytes, std::string &text)
{
    if (waiting_.empty() && isAscii(bytes)) {
        text.append(bytes);
        return;
    }
    const std::string whole = std::exchange(waiting_, {}).append(bytes);
    convert(whole, text);
}

void TextDecoder::finish(std::string &text)
{
    for (std::size_t i = 0; i < waiting_.size(); ++i)
        text += kReplacement;
    replacedBytes_ += waiting_.size();
    waiting_.clear();
}

void TextDecoder::convert(std::string_view bytes, std::string &text)
{
    char *input = const_cast<char *>(bytes.data());
    std::size_t left = bytes.size();
    char block[16384];
    while (left > 0) {
        char *output = block;
        std::size_t room = sizeof block;
        const std::size_t result = iconv(conversion_, &input, &left, &output, &room);
        const int reason = result == std::size_t(-1) ? errno : 0;
        text.append(block, std::size_t(output - block));
        if (reason == EINVAL) {
            waiting_.assign(input, left);
            return;
        }
        if (reason == EILSEQ) {
            text += kReplacement;
            ++replacedBytes_;
            ++input;
            --left;
        }
    }
}

} // namespace host::ma
