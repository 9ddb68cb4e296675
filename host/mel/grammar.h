// SPDX-License-Identifier: Apache-2.0
// The grammar of MEL, as far as single commands reach: no variables, control flow, procedures.
//
//   script      command ; command ; ...
//   command     name argument argument ...      imperative form
//               name ( expression, ... )        function form
//   argument    word  "string"  ( expression )  `command`  { , }
//   expression  term + term + ...
//   term        number  "string"  name ( ... )  `command`  ( expression )  - term  true
//
// It is decided by the next character or two what comes, and what has begun must end well (if_must,
// must): actions never have to be taken back, and the time is in proportion to the text. A failing
// `must` is the syntax error; its place tells what was wrong. What the rules mean is in
// parserActions.h.
#pragma once

#include <tao/pegtl.hpp>

#include "mel/characters.h"

namespace host::mel::grammar
{

namespace pegtl = tao::pegtl;
using pegtl::at;
using pegtl::if_must;
using pegtl::must;
using pegtl::not_at;
using pegtl::one;
using pegtl::opt;
using pegtl::seq;
using pegtl::sor;
using pegtl::star;

// --- Building blocks ----------------------------------------------------------------------------

// One character of the classes.
template <unsigned Classes>
struct of {
    using rule_t = of;
    using subs_t = pegtl::empty_list;
    template <typename Input>
    static bool match(Input &in)
    {
        if (in.empty() || !isOf(in.peek_char(), Classes))
            return false;
        in.bump_in_this_line();
        return true;
    }
};

// As many of them as there are, at least `Least`.
template <unsigned Classes, std::size_t Least = 0>
struct run {
    using rule_t = run;
    using subs_t = pegtl::empty_list;
    template <typename Input>
    static bool match(Input &in)
    {
        const char *end = in.current();
        while (end != in.end() && isOf(*end, Classes))
            ++end;
        const auto length = static_cast<std::size_t>(end - in.current());
        if (length < Least)
            return false;
        in.bump(length);
        return true;
    }
};

// What is raised where calls and parentheses stand too deep in each other.
struct tooDeep {
};

// The rules in sequence, one level deeper. The state counts, as `depth`, and sets `maxDepth`.
template <typename... Rules>
struct nested {
    using rule_t = nested;
    using subs_t = pegtl::type_list<Rules...>;
    template <pegtl::apply_mode A, pegtl::rewind_mode M, template <typename...> class Action,
              template <typename...> class Control, typename Input, typename State>
    static bool match(Input &in, State &state)
    {
        if (state.depth == state.maxDepth)
            Control<tooDeep>::raise(in, state);
        ++state.depth;
        const bool matched =
            Control<must<Rules...>>::template match<A, M, Action, Control>(in, state);
        --state.depth;
        return matched;
    }
};

struct lineComment : seq<pegtl::two<'/'>, star<pegtl::not_one<'\n'>>> {
};
struct blockComment : seq<pegtl::string<'/', '*'>, pegtl::until<pegtl::string<'*', '/'>>> {
};
struct gap : star<sor<run<kBlank, 1>, lineComment, blockComment>> {
};
struct name : seq<of<kLetter>, run<kName>> {
};

// --- Literals -----------------------------------------------------------------------------------

struct plainString : seq<one<'"'>, run<kPlainText>, one<'"'>> {
};
struct escapedString
    : seq<one<'"'>, star<sor<run<kPlainText, 1>, seq<one<'\\'>, pegtl::any>>>, one<'"'>> {
};
struct string : sor<plainString, escapedString> {
};

struct exponent : seq<one<'e', 'E'>, opt<one<'+', '-'>>, run<kDigit, 1>> {
};
struct fraction : seq<one<'.'>, run<kDigit>> {
};
struct number
    : seq<opt<one<'-'>>, sor<seq<run<kDigit, 1>, opt<fraction>>, seq<one<'.'>, run<kDigit, 1>>>,
          opt<exponent>> {
};
// How the C run-time of newer Windows builds writes what is no number.
struct notANumber
    : seq<opt<one<'-'>>, pegtl::string<'n', 'a', 'n', '('>,
          sor<pegtl::string<'i', 'n', 'd'>, pegtl::string<'s', 'n', 'a', 'n'>>, one<')'>> {
};
// The number comes first because of the + in 1e+010; more may follow, as in 0:3 and -1.#IND.
struct word : sor<seq<number, run<kWord>>, notANumber, seq<of<kWordStart>, run<kWord>>,
                  seq<one<'-'>, of<kLetter>, run<kWord>>> {
};
struct punctuation : one<'{', '}', ','> {
};

// --- Expressions --------------------------------------------------------------------------------

struct expression;
struct backquoted;

struct literalNumber : seq<number, not_at<of<kName>>> {
};
struct literalBoolean
    : seq<sor<pegtl::string<'t', 'r', 'u', 'e'>, pegtl::string<'f', 'a', 'l', 's', 'e'>,
              pegtl::string<'y', 'e', 's'>, pegtl::string<'n', 'o'>, pegtl::string<'o', 'n'>,
              pegtl::string<'o', 'f', 'f'>>,
          not_at<of<kName>>> {
};
// expression, expression ) with what closes the list.
struct expressionList
    : sor<one<')'>, seq<must<expression>, gap, star<if_must<one<','>, gap, expression, gap>>,
                        must<one<')'>>>> {
};
struct functionHead : seq<name, gap, one<'('>> {
};
struct functionCall : if_must<functionHead, nested<gap, expressionList>> {
};
struct parenthesised : if_must<one<'('>, nested<gap, expression, gap, one<')'>>> {
};
struct term;
struct minus : one<'-'> {
};
struct negated : if_must<minus, nested<gap, term>> {
};
struct term
    : sor<literalNumber, string, functionCall, literalBoolean, backquoted, parenthesised, negated> {
};
struct beginSum : pegtl::success {
};
struct endSum : pegtl::success {
};
struct expression : seq<beginSum, must<term>, star<gap, if_must<one<'+'>, gap, term>>, endSum> {
};

// --- Commands -----------------------------------------------------------------------------------

struct commandName : seq<name, must<not_at<of<kWord>>>> {
};
struct statementName : commandName {
};
struct innerName : commandName {
};
struct isFunctionForm : pegtl::success {
};
// Fails unless the list before it was a single expression: setAttr ("a" + ".tx") 5
struct isFirstArgument : pegtl::success {
};
// What follows the name. A parenthesis begins a list of the function form, if the command ends
// after it, or the first argument of the imperative form.
template <typename Argument, typename End>
struct commandBody
    : sor<if_must<one<'('>, nested<gap, expressionList>, gap,
                  sor<seq<at<End>, isFunctionForm>, seq<isFirstArgument, star<Argument, gap>>>>,
          star<Argument, gap>> {
};

// A backquote inside backquotes closes them, unless it stands after a blank and before a letter.
// Maya's manual has no such case; this reads `a `b`` and `a b ` as they are meant.
struct opensInside {
    using rule_t = opensInside;
    using subs_t = pegtl::empty_list;
    template <typename Input>
    static bool match(const Input &in)
    {
        const char *here = in.current();
        return in.size() >= 2 && here[0] == '`' && isOf(here[1], kLetter) && isOf(here[-1], kBlank);
    }
};
struct closingBackquote : seq<not_at<opensInside>, one<'`'>> {
};
struct innerArgument
    : sor<word, string, parenthesised, punctuation, seq<at<opensInside>, backquoted>> {
};
struct innerCommand : seq<innerName, gap, commandBody<innerArgument, closingBackquote>> {
};
struct backquoted : if_must<one<'`'>, nested<gap, innerCommand, closingBackquote>> {
};

struct argument : sor<word, string, parenthesised, punctuation, backquoted> {
};
struct statementEnd : sor<one<';'>, pegtl::eof> {
};
struct statement
    : if_must<statementName, gap, commandBody<argument, statementEnd>, at<statementEnd>> {
};
struct script : seq<gap, star<sor<one<';'>, statement>, gap>, must<pegtl::eof>> {
};

} // namespace host::mel::grammar
