// SPDX-License-Identifier: Apache-2.0
// The parser as a picture: a text and the tree that it stands for, or the place of its error.

#include "mel/statement.h"

#include <gtest/gtest.h>

using namespace host::mel;

namespace
{

std::string picture(const Statement &statement);

std::string picture(const Argument &argument)
{
    switch (argument.kind) {
    case Argument::Kind::string:
        return '"' + std::string(argument.text) + '"';
    case Argument::Kind::call:
        return '[' + picture(*argument.call) + ']';
    default:
        return std::string(argument.text);
    }
}

// print("a") is `print() "a"`, a call inside stands in brackets.
std::string picture(const Statement &statement)
{
    std::string text(statement.command);
    text += statement.isFunctionForm ? "()" : "";
    for (const Argument &argument : statement.arguments)
        text += ' ' + picture(argument);
    return text;
}

std::string tree(const std::string &text)
{
    Script script;
    if (const SyntaxError error = parseScript(text, script))
        return toText(error);
    std::string all;
    for (const Statement &statement : script.statements)
        all += (all.empty() ? "" : "; ") + picture(statement);
    return all;
}

struct Case {
    std::string text;
    std::string expected;
};

const Case kCases[] = {
    // Words.
    {"select -r pCube1.vtx[3] ;", "select -r pCube1.vtx[3]"},
    {"select |a|b:c* ?x #1 -add", "select |a|b:c* ?x #1 -add"},
    {"setAttr .pt[0:2] 1 -.5 -2.2204460492503131e-016 1e+010 -nan -1.#IND 2.",
     "setAttr .pt[0:2] 1 -.5 -2.2204460492503131e-016 1e+010 -nan -1.#IND 2."},
    {"f -nan(ind) nan(snan)", "f -nan(ind) nan(snan)"},
    {"f {\"alias\",\"attr[0]\"} a,b", "f { \"alias\" , \"attr[0]\" } a,b"},
    {"f caf\xC3\xA9", "f caf\xC3\xA9"},
    {"a;b\t;;\r\n c", "a; b; c"},
    {"// a; b\nf /* ; \" */ x // \"", "f x"},
    {"", ""},
    // Strings.
    {R"(f "a;b" "//" "")", R"(f "a;b" "//" "")"},
    {R"(f "\"\\\n\t\r\q")", "f \"\"\\\n\t\rq\""},
    {"f \"a\nb\"", "f \"a\nb\""},
    {R"(f ( "a" + "b\n" +
        "c") 1)",
     "f \"ab\nc\" 1"},
    {R"(setAttr ("a" + ".tx") 5)", R"(setAttr "a.tx" 5)"},
    {R"(f (("a") + ("b" + "c")))", R"(f() "abc")"},
    // Calls.
    {R"(menu("a", "b" ); print ("x") ;)", R"(menu() "a" "b"; print() "x")"},
    {"f();", "f()"},
    {"f(-1, -.5e-3, true, off)", "f() -1 -.5e-3 true off"},
    {R"(print("a" + size("b") + 1))", R"(print() [+ "a" [size() "b"] 1])"},
    {"f(- g(1), -(2))", "f() [- [g() 1]] [- 2]"},
    {"f -q 0.5 `currentCtx` x", "f -q 0.5 [currentCtx] x"},
    {"select `ls -sl` `ls(\"-sl\")`;", "select [ls -sl] [ls() \"-sl\"]"},
    {"a `b `c d` ` `e`", "a [b [c d]] [e]"},
    {"a `b (`c` + \"d\")`", "a [b() [+ [c] \"d\"]]"},
    {"a `b (\"c\") `d` `", "a [b \"c\" [d]]"},
    {"setAttr (\"a.tx\") `getAttr b.tx`", "setAttr \"a.tx\" [getAttr b.tx]"},
    // What is refused.
    {"f a\n  $x", "Line 2.3: Syntax error: variables are not supported"},
    {"$x = 5", "Line 1.1: Syntax error: variables are not supported"},
    {"string $s[] = `ls`", "Line 1.8: Syntax error: variables are not supported"},
    {"a = 5", "Line 1.3: Syntax error: assignments are not supported"},
    {"f (1 * 2)", "Line 1.6: Syntax error: operators are not supported"},
    {"f a - b", "Line 1.5: Syntax error: operators are not supported"},
    {"if (1) f", "Line 1.1: Syntax error: control flow is not supported"},
    {"f;\nglobal proc g() {}", "Line 2.1: Syntax error: procedures are not supported"},
    {"{ f; }", "Line 1.1: Syntax error: blocks and arrays are not supported"},
    {"f \"abc\n;", "Line 1.3: Syntax error: string without end"},
    {"f /* abc", "Line 1.3: Syntax error: comment without end"},
    {"f (\"a\"", "Line 1.7: Syntax error"},
    {"f(1,)", "Line 1.5: Syntax error"},
    {"f(a)", "Line 1.3: Syntax error"},
    {"f(\"a\", \"b\") c", "Line 1.13: Syntax error"},
    {"f `g", "Line 1.5: Syntax error"},
    {"f g)", "Line 1.4: Syntax error"},
    {"\"f\"", "Line 1.1: Syntax error"},
    {"f.x 1", "Line 1.2: Syntax error"},
    {std::string("f \0", 3), "Line 1.3: Syntax error"},
};

TEST(parser, makesATreeOrTellsWhereItCanNot)
{
    for (const Case &c : kCases)
        EXPECT_EQ(tree(c.text), c.expected) << c.text;
}

TEST(parser, givesPlacesAndTextsOfStatements)
{
    Script script;
    EXPECT_FALSE(parseScript("// head\n\n  first 1 ;second `third\n  4`  ", script, 10));
    ASSERT_EQ(script.statements.size(), 2u);
    EXPECT_EQ(script.statements[0].line, 12u);
    EXPECT_EQ(script.statements[0].column, 3u);
    EXPECT_EQ(script.statements[0].text, "first 1");
    EXPECT_EQ(script.statements[1].column, 12u);
    EXPECT_EQ(script.statements[1].text, "second `third\n  4`");
    EXPECT_EQ(script.statements[1].arguments[0].call->text, "third\n  4");
    EXPECT_EQ(parseScript("a;\nb =", script, 10).line, 11u);
    EXPECT_EQ(script.statements.size(), 1u) << "those before the error are kept, older ones not";
}

TEST(parser, tellsFlagsFromNumbers)
{
    Script script;
    parseScript("f -type -s -1 -.5 -nan -1.#IND \"-type\" type", script);
    std::string flags;
    for (const Argument &argument : script.statements[0].arguments)
        flags += argument.isFlag() ? 'f' : '.';
    EXPECT_EQ(flags, "ff......");
}

TEST(statementEnd, looksPastStringsAndComments)
{
    struct {
        const char *text;
        std::size_t end;
        std::size_t lines;
    } cases[] = {{"a;b;", 2, 0},
                 {"\n a\n;", 5, 2},
                 {"a \";\\\";\";b", 9, 0},
                 {"//;\n/*;\n*/a;", 12, 2},
                 {"a / b;", 6, 0},
                 {"a \"\\\\\";", 7, 0},
                 {"a", std::string::npos, 0},
                 {"a \";\n", std::string::npos, 1},
                 {"a /* ;", std::string::npos, 0},
                 {"a \"\\", std::string::npos, 0}};
    for (const auto &expected : cases) {
        std::size_t lines = 0;
        EXPECT_EQ(statementEnd(expected.text, lines), expected.end) << expected.text;
        EXPECT_EQ(lines, expected.lines) << expected.text;
    }
}

std::string repeated(const std::string &text, std::size_t times)
{
    std::string all;
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

// Each of these takes a parser that recurses or looks back too freely minutes, or its stack.
TEST(parser, survivesHostileTexts)
{
    constexpr std::size_t kMany = 100'000;
    for (const char *nesting : {"(", "f(", "`f ", "-(", "`f (", "f(\"a\"+"}) {
        const std::string error = tree("f (" + repeated(nesting, kMany));
        EXPECT_NE(error.find("nested too deeply"), std::string::npos) << nesting << error;
    }
    EXPECT_NE(tree("f(" + repeated("-", kMany)).find("nested too deeply"), std::string::npos);
    const std::string deepest = repeated("(", kMaxNesting) + "1" + repeated(")", kMaxNesting);
    EXPECT_EQ(tree("f " + deepest), "f() 1");
    EXPECT_EQ(tree("f " + repeated("\"", kMany + 1)).substr(0, 5), "Line ");
    EXPECT_EQ(tree("f (\"a\"" + repeated("+\"a\"", kMany) + ")").size(), kMany + 7);
    EXPECT_EQ(tree("f " + repeated("/* ", kMany)), "Line 1.3: Syntax error: comment without end");
    EXPECT_EQ(tree(repeated("a\n;", kMany)).size(), kMany * 3 - 2);
    constexpr std::size_t kHuge = 50u << 20;
    EXPECT_EQ(tree(std::string(kHuge, 'a')).size(), kHuge);
}

} // namespace
