// SPDX-License-Identifier: Apache-2.0
#include "mel/parserActions.h"

namespace host::mel
{

namespace
{

constexpr std::string_view kSyntaxError = "Syntax error";

// What a character means that can't stand where it stands.
std::string_view reasonFor(char character)
{
    switch (character) {
    case '$':
        return "Syntax error: variables are not supported";
    case '=':
        return "Syntax error: assignments are not supported";
    case '{':
    case '}':
        return "Syntax error: blocks and arrays are not supported";
    case '+':
    case '-':
    case '*':
    case '/':
    case '%':
    case '^':
    case '<':
    case '>':
    case '!':
    case '&':
        return "Syntax error: operators are not supported";
    default:
        return kSyntaxError;
    }
}

std::string_view reasonAt(std::string_view rest)
{
    if (rest.empty())
        return kSyntaxError;
    if (rest.substr(0, 2) == "/*")
        return "Syntax error: comment without end";
    if (rest.front() == '"') {
        tao::pegtl::memory_input<tao::pegtl::tracking_mode::lazy> input(
            rest.data(), rest.data() + rest.size(), "");
        const bool isWhole = tao::pegtl::parse<grammar::string>(input);
        return isWhole ? kSyntaxError : "Syntax error: string without end";
    }
    return reasonFor(rest.front());
}

template <typename Rule>
struct Control : tao::pegtl::normal<Rule> {
    template <typename Input>
    [[noreturn]] static void raise(const Input &input, ScriptBuilder &)
    {
        if constexpr (std::is_same_v<Rule, grammar::tooDeep>)
            throw ParseFailure{input.current(), "Syntax error: nested too deeply"};
        else
            throw ParseFailure{input.current(), reasonAt({input.current(), input.size()})};
    }
};

} // namespace

SyntaxError parseScript(std::string_view text, Script &script, std::size_t firstLine)
{
    script.clear();
    ScriptBuilder builder(text, script, firstLine);
    tao::pegtl::memory_input<tao::pegtl::tracking_mode::lazy, tao::pegtl::eol::lf, const char *>
        input(text.data(), text.data() + text.size(), "");
    SyntaxError error;
    try {
        if (!tao::pegtl::parse<grammar::script, Action, Control>(input, builder))
            throw ParseFailure{input.current(), kSyntaxError};
    } catch (const ParseFailure &failure) {
        error.message = failure.reason;
        builder.locate(failure.at, error.line, error.column);
    }
    return error;
}

} // namespace host::mel
