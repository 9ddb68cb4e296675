// SPDX-License-Identifier: Apache-2.0
// What the rules of the grammar mean: each calls a function of the ScriptBuilder.
#pragma once

#include "mel/grammar.h"
#include "mel/scriptBuilder.h"

namespace host::mel
{

template <typename Rule>
struct Action : tao::pegtl::nothing<Rule> {
};

template <typename Input>
std::string_view matched(const Input &input)
{
    return {input.begin(), input.size()};
}

template <Argument::Kind Kind>
struct AddArgument {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        builder.addArgument(Kind, matched(input));
    }
};

template <>
struct Action<grammar::word> : AddArgument<Argument::Kind::word> {
};
template <>
struct Action<grammar::literalNumber> : AddArgument<Argument::Kind::word> {
};
template <>
struct Action<grammar::literalBoolean> : AddArgument<Argument::Kind::word> {
};
template <>
struct Action<grammar::punctuation> : AddArgument<Argument::Kind::punctuation> {
};

template <>
struct Action<grammar::plainString> {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        builder.addArgument(Argument::Kind::string, matched(input).substr(1, input.size() - 2));
    }
};
template <>
struct Action<grammar::escapedString> {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        builder.addEscapedString(matched(input).substr(1, input.size() - 2));
    }
};

template <>
struct Action<grammar::beginSum> {
    static void apply0(ScriptBuilder &builder) { builder.beginSum(); }
};
template <>
struct Action<grammar::endSum> {
    static void apply0(ScriptBuilder &builder) { builder.endSum(); }
};

template <>
struct Action<grammar::isFunctionForm> {
    static void apply0(ScriptBuilder &builder) { builder.setFunctionForm(); }
};
template <>
struct Action<grammar::isFirstArgument> {
    static bool apply0(ScriptBuilder &builder) { return builder.hasOneArgument(); }
};

struct BeginCall {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        builder.beginCall(matched(input));
    }
};
struct EndCall {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        builder.endCall(matched(input));
    }
};

template <>
struct Action<grammar::functionHead> {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        const std::string_view head = matched(input);
        std::size_t length = 0;
        while (isOf(head[length], kName))
            ++length;
        builder.beginCall(head.substr(0, length));
        builder.setFunctionForm();
    }
};
template <>
struct Action<grammar::functionCall> : EndCall {
};
template <>
struct Action<grammar::minus> : BeginCall {
};
template <>
struct Action<grammar::negated> : EndCall {
};
template <>
struct Action<grammar::innerName> : BeginCall {
};
template <>
struct Action<grammar::innerCommand> : EndCall {
};

template <>
struct Action<grammar::statementName> {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        builder.beginStatement(matched(input));
    }
};
template <>
struct Action<grammar::statement> {
    template <typename Input>
    static void apply(const Input &input, ScriptBuilder &builder)
    {
        builder.endStatement(matched(input));
    }
};

} // namespace host::mel
