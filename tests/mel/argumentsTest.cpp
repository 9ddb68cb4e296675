// SPDX-License-Identifier: Apache-2.0
// How the operands of a call are sorted into flags and objects, and what their texts mean.

#include "mel/command.h"
#include "mel/statement.h"

#include <cmath>

#include <gtest/gtest.h>

using namespace host::mel;

namespace
{

const Command kPercent = {"percent",
                          {{"tv", "transformValue", "sd", Flag::multiUse},
                           {"ib", "ignoreBelow", "d", Flag::queryTakesValue},
                           {"nrm", "normalize", "b"},
                           {"v", "value", "d"},
                           {"n", "name", "s"},
                           {"inf", "influence", "s"},
                           {"mi", "maxInfluences", "i"},
                           {"dv", "defaultValue", "d", Flag::rest},
                           {"r", "relative"}},
                          nullptr,
                          {},
                          Modes::create | Modes::query | Modes::edit};

std::string joined(const std::vector<Operand> &operands)
{
    std::string text;
    for (const Operand &operand : operands)
        text += (text.empty() ? "" : " ") + operand.string();
    return text;
}

// "edit name(a) | x y": the mode, the flags in order with their arguments, the objects; or the
// error.
std::string sorted(const Command &command, const std::string &call)
{
    Script script;
    EXPECT_FALSE(parseScript(call, script)) << call;
    const Statement &statement = script.statements.at(0);
    std::vector<Operand> operands;
    for (const Argument &argument : statement.arguments)
        operands.push_back({argument.text, argument.kind == Argument::Kind::string});
    try {
        const Arguments arguments = CommandTable::sort(command, operands, statement.isFunctionForm);
        std::string text = arguments.isQuery() ? "query " : arguments.isEdit() ? "edit " : "";
        for (const auto &[name, use] : arguments.order)
            text += name + '(' + joined(arguments.of(name, use)) + ") ";
        return text + "| " + joined(arguments.objects);
    } catch (const host::Error &error) {
        return error.what();
    }
}

TEST(flags, areSortedFromObjects)
{
    const std::pair<const char *, const char *> cases[] = {
        // Anywhere, short and long, repeated.
        {"f -tv hip 0.5 sc -transformValue knee -1 vtx", "transformValue(hip 0.5) "
                                                         "transformValue(knee -1) | sc vtx"},
        {"f sc -r", "relative() | sc"},
        {"f -nrm off -r -mi 3 sc", "normalize(off) relative() maxInfluences(3) | sc"},
        {"f -dv 1 2 3 -r sc", "defaultValue(1 2 3) relative() | sc"},
        {"f -e -mi 4 sc", "edit maxInfluences(4) | sc"},
        // Queries: a flag has its argument before -q, after it only where it can.
        {"f -ib 0.1 -q -v sc vtx", "query ignoreBelow(0.1) value() | sc vtx"},
        {"f -q -ib 0.1 -v sc", "query ignoreBelow(0.1) value() | sc"},
        {"f -q -ib sc", "query ignoreBelow() | sc"},
        {"f -q -n sc", "query name() | sc"},
        {"f sc -inf -query", "query influence() | sc"},
        {"f -inf hip -q -v sc", "query influence(hip) value() | sc"},
        // Negative numbers and quoted texts are no flags, words that are numbers only if
        // undeclared.
        {"f -1 -.5 -nan \"-r\" \"-xyz\"", "| -1 -.5 -nan -r -xyz"},
        {"f -n \"-r\" -inf hip", "name(-r) influence(hip) | "},
        // The function form quotes its flags.
        {"f(\"-n\", \"a\", \"-r\", \"sc\")", "name(a) relative() | sc"},
        {"f(\"-n\", \"-go on\", \"- x\", \"-go on\")", "name(-go on) | - x -go on"},
        {"f(\"-xyz\")", "Invalid flag '-xyz'"},
        // Refusals.
        {"f -xyz sc", "Invalid flag '-xyz'"},
        {"f -v abc", "Invalid arguments for flag 'v'.  Expected ( double ), got [ string ]"},
        {"f -tv hip",
         "Invalid arguments for flag 'tv'.  Expected ( string, double ), got [ string ]"},
        {"f -mi -r", "Invalid arguments for flag 'mi'.  Expected ( int ), got [ ]"},
        {"f -n a -n b", "Flag '-n' can't be used more than once"},
    };
    for (const auto &[call, expected] : cases)
        EXPECT_EQ(sorted(kPercent, call), expected) << call;
}

TEST(columns, refuseCallsThatTheCommandDoesNotKnow)
{
    const Command make = {"make", {{"n", "name", "s"}}, nullptr, {0, 1}};
    const Command ask = {"ask",  {{"n", "name", "s"}},         nullptr,
                         {0, 0}, Modes::create | Modes::query, Objects{1, 2}};
    const struct {
        const Command &command;
        const char *call, *expected;
    } cases[] = {
        {make, "make -n a b", "name(a) | b"},
        {make, "make a b", "Wrong number of arguments on call to make."},
        {make, "make -q -n a", "Invalid flag '-q'"},
        {make, "make(\"-edit\")", "Invalid flag '-edit'"},
        {ask, "ask", "| "},
        {ask, "ask a", "Wrong number of arguments on call to ask."},
        {ask, "ask -q -n a b", "query name() | a b"},
        {ask, "ask -q", "Wrong number of arguments on call to ask."},
        {ask, "ask -e a", "Invalid flag '-e'"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(sorted(c.command, c.call), c.expected) << c.call;
}

TEST(flags, areLeftToCommandsThatSortThemselves)
{
    Command command = kPercent;
    command.takesRawArguments = true;
    EXPECT_EQ(sorted(command, "f -q sc -xyz 1"), "| -q sc -xyz 1");
    EXPECT_EQ(sorted({"print", {}, nullptr}, "print(\"-abc\")"), "| -abc");
}

TEST(operands, areNumbersAsMayaWritesThem)
{
    const std::pair<const char *, double> cases[] = {{"1", 1},
                                                     {"-.5", -0.5},
                                                     {"2.", 2},
                                                     {"1e+010", 1e10},
                                                     {"+3", 3},
                                                     {"yes", 1},
                                                     {"off", 0},
                                                     {"1e-400", 0},
                                                     {"-1e400", -HUGE_VAL},
                                                     {"inf", HUGE_VAL},
                                                     {"-1.#INF", -HUGE_VAL},
                                                     {"-2.2204460492503131e-016", -0x1p-52}};
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(Operand{text}.number(), expected) << text;
    for (const char *text : {"nan", "-nan", "-nan(ind)", "1.#QNAN", "-1.#IND"})
        EXPECT_TRUE(std::isnan(Operand{text}.number())) << text;
    for (const char *text : {"", "-", "--1", "1x", "abc", "0x", "1 ", "1.#"})
        EXPECT_THROW(Operand{text}.number(), host::Error) << text;
    EXPECT_EQ(Operand{"-3.9"}.integer(), -3);
    EXPECT_EQ(Operand{"9007199254740993"}.integer(), 9007199254740993);
    EXPECT_THROW(Operand{"1e30"}.integer(), host::Error);
    EXPECT_THROW(Operand{"nan"}.integer(), host::Error);
    EXPECT_TRUE(Operand{"on"}.boolean());
    EXPECT_TRUE(Operand{"2"}.boolean());
    EXPECT_FALSE(Operand{"0.0"}.boolean());
}

} // namespace
