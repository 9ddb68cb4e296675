// SPDX-License-Identifier: Apache-2.0
#include "mel/scriptBuilder.h"

#include <algorithm>
#include <cstring>

#include "mel/characters.h"

namespace host::mel
{

namespace
{

struct Keyword {
    std::string_view word;
    std::string_view reason;
};
constexpr std::string_view kControlFlow = "Syntax error: control flow is not supported";
constexpr std::string_view kProcedures = "Syntax error: procedures are not supported";
constexpr Keyword kKeywords[] = {
    {"if", kControlFlow},     {"else", kControlFlow},  {"for", kControlFlow},
    {"while", kControlFlow},  {"do", kControlFlow},    {"switch", kControlFlow},
    {"case", kControlFlow},   {"break", kControlFlow}, {"continue", kControlFlow},
    {"return", kControlFlow}, {"proc", kProcedures},   {"global", kProcedures}};

char unescaped(char letter)
{
    switch (letter) {
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    default:
        return letter;
    }
}

std::string_view trimmedEnd(std::string_view text)
{
    while (!text.empty() && isOf(text.back(), kBlank))
        text.remove_suffix(1);
    return text;
}

bool isString(const Argument &argument)
{
    return argument.kind == Argument::Kind::string;
}

} // namespace

ScriptBuilder::ScriptBuilder(std::string_view text, Script &script, std::size_t firstLine)
    : script_(script), place_(text.data()), lineStart_(text.data()), line_(firstLine)
{
    statement_.arguments = std::move(script.spareArguments);
}

void ScriptBuilder::beginStatement(std::string_view command)
{
    for (const Keyword &keyword : kKeywords)
        if (command == keyword.word)
            throw ParseFailure{command.data(), keyword.reason};
    statement_.command = command;
    statement_.isFunctionForm = false;
    locate(command.data(), statement_.line, statement_.column);
}

void ScriptBuilder::endStatement(std::string_view text)
{
    statement_.text = trimmedEnd(text);
    script_.statements.push_back(std::move(statement_));
    statement_.arguments.clear();
}

void ScriptBuilder::beginCall(std::string_view command)
{
    Statement &call = script_.calls.emplace_back();
    call.command = command;
    locate(command.data(), call.line, call.column);
    open_.push_back(&call);
}

void ScriptBuilder::endCall(std::string_view text)
{
    Statement *call = open_.back();
    call->text = trimmedEnd(text);
    open_.pop_back();
    current().arguments.push_back({Argument::Kind::call, {}, call});
}

void ScriptBuilder::addArgument(Argument::Kind kind, std::string_view text)
{
    current().arguments.push_back({kind, text, nullptr});
}

void ScriptBuilder::addEscapedString(std::string_view inner)
{
    std::string &text = script_.strings.emplace_back();
    text.reserve(inner.size());
    while (!inner.empty()) {
        const std::size_t plain = std::min(inner.find('\\'), inner.size());
        text.append(inner.substr(0, plain));
        inner.remove_prefix(plain);
        if (!inner.empty()) {
            text.push_back(unescaped(inner[1]));
            inner.remove_prefix(2);
        }
    }
    addArgument(Argument::Kind::string, text);
}

void ScriptBuilder::endSum()
{
    std::vector<Argument> &arguments = current().arguments;
    const auto first = arguments.begin() + static_cast<std::ptrdiff_t>(sums_.back());
    sums_.pop_back();
    if (arguments.end() - first == 1)
        return;
    Argument sum{Argument::Kind::call, {}, nullptr};
    if (std::all_of(first, arguments.end(), isString)) {
        sum.kind = Argument::Kind::string;
        sum.text = joined(&*first, arguments.data() + arguments.size());
    } else {
        Statement &call = script_.calls.emplace_back();
        call.command = "+";
        call.arguments.assign(first, arguments.end());
        call.line = current().line;
        call.column = current().column;
        sum.call = &call;
    }
    arguments.erase(first, arguments.end());
    arguments.push_back(sum);
}

std::string_view ScriptBuilder::joined(const Argument *first, const Argument *end)
{
    std::size_t length = 0;
    for (const Argument *piece = first; piece != end; ++piece)
        length += piece->text.size();
    std::string &text = script_.strings.emplace_back();
    text.reserve(length);
    for (const Argument *piece = first; piece != end; ++piece)
        text.append(piece->text);
    return text;
}

void ScriptBuilder::locate(const char *place, std::size_t &line, std::size_t &column)
{
    while (place_ != place) {
        const auto *lineEnd = static_cast<const char *>(
            std::memchr(place_, '\n', static_cast<std::size_t>(place - place_)));
        if (!lineEnd)
            break;
        ++line_;
        lineStart_ = place_ = lineEnd + 1;
    }
    place_ = place;
    line = line_;
    column = static_cast<std::size_t>(place - lineStart_) + 1;
}

} // namespace host::mel
