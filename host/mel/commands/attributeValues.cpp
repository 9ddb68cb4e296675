// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/attributeValues.h"

#include <algorithm>

#include "scene/error.h"

namespace host::mel
{

namespace
{

struct TypeRow {
    std::string_view name;
    Value (*take)(std::string_view type, ValueTokens &tokens);
};

Value takeString(std::string_view, ValueTokens &tokens)
{
    return tokens.take().string();
}

// The form with the word "xform" holds a transform's parts instead of 16 numbers; it is kept so.
Value takeMatrix(std::string_view type, ValueTokens &tokens)
{
    if (!tokens.atEnd() && tokens.peek() == "xform")
        return OpaqueValue{std::string(type), tokens.rest()};
    Matrix matrix;
    for (double &number : matrix)
        number = tokens.number();
    return matrix;
}

Value takeStrings(std::string_view, ValueTokens &tokens)
{
    return tokens.strings(tokens.arrayCount());
}

template <unsigned size>
Value takeNumbers(std::string_view, ValueTokens &tokens)
{
    return tokens.numbers(tokens.arrayCount(size) * size);
}

constexpr TypeRow kTypes[] = {
    {"string", takeString},         {"matrix", takeMatrix},
    {"fltMatrix", takeMatrix},      {"stringArray", takeStrings},
    {"componentList", takeStrings}, {"doubleArray", takeNumbers<1>},
    {"floatArray", takeNumbers<1>}, {"Int32Array", takeNumbers<1>},
    {"pointArray", takeNumbers<4>}, {"vectorArray", takeNumbers<3>},
};

const TypeRow *findType(std::string_view name)
{
    const auto row = std::find_if(std::begin(kTypes), std::end(kTypes),
                                  [name](const TypeRow &type) { return type.name == name; });
    return row == std::end(kTypes) ? nullptr : row;
}

struct Escape {
    char character;
    const char *text;
};
constexpr Escape kEscapes[] = {
    {'"', "\\\""}, {'\\', "\\\\"}, {'\n', "\\n"}, {'\t', "\\t"}, {'\r', "\\r"},
};

void appendEscaped(std::string &text, char c)
{
    for (const Escape &escape : kEscapes) {
        if (escape.character == c) {
            text += escape.text;
            return;
        }
    }
    text += c;
}

void appendWritten(std::string &text, const Operand &operand)
{
    if (!operand.isQuoted) {
        text += operand.text;
        return;
    }
    text += '"';
    for (char c : operand.text)
        appendEscaped(text, c);
    text += '"';
}

} // namespace

void ValueTokens::refuse() const
{
    throw Error("setAttr: Error reading data element number " + std::to_string(next_ - first_ + 1) +
                ": " + (atEnd() ? std::string() : std::string(next_->text)));
}

const Operand &ValueTokens::take()
{
    if (atEnd())
        refuse();
    return *next_++;
}

double ValueTokens::number()
{
    double number = 0.0;
    if (atEnd() ||
        !parseNumber(next_->text.data(), next_->text.data() + next_->text.size(), number))
        refuse();
    ++next_;
    return number;
}

std::vector<double> ValueTokens::numbers(std::size_t count)
{
    std::vector<double> numbers;
    numbers.reserve(std::min(count, left()));
    for (std::size_t i = 0; i < count; ++i)
        numbers.push_back(number());
    return numbers;
}

std::vector<std::string> ValueTokens::strings(std::size_t count)
{
    std::vector<std::string> strings;
    strings.reserve(std::min(count, left()));
    for (std::size_t i = 0; i < count; ++i)
        strings.push_back(take().string());
    return strings;
}

std::size_t ValueTokens::arrayCount(std::size_t size)
{
    const double count = number();
    const bool fits = count >= 0.0 && count * double(size) <= double(left());
    if (!fits) {
        --next_;
        refuse();
    }
    return std::size_t(count);
}

std::string ValueTokens::rest()
{
    constexpr std::string_view kTight = "{},"; // stand without blanks around them
    std::string text;
    for (bool wantsBlank = false; !atEnd(); ++next_) {
        const bool isTight = !next_->isQuoted && next_->text.size() == 1 &&
                             kTight.find(next_->text) != std::string_view::npos;
        if (wantsBlank && !isTight)
            text += ' ';
        appendWritten(text, *next_);
        wantsBlank = !isTight;
    }
    return text;
}

void ValueTokens::requireEnd() const
{
    if (!atEnd())
        refuse();
}

Value takeValue(std::string_view type, ValueTokens &tokens)
{
    if (const TypeRow *row = findType(type))
        return row->take(type, tokens);
    return OpaqueValue{std::string(type), tokens.rest()};
}

std::string quoted(std::string_view text)
{
    return written(Operand{text, true});
}

std::string written(const Operand &operand)
{
    std::string text;
    appendWritten(text, operand);
    return text;
}

} // namespace host::mel
