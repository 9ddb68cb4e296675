// SPDX-License-Identifier: Apache-2.0
// What lies behind MArgList, MSyntax and MArgParser: operands, the row of a command, and the
// operands sorted by it. Plug-in commands are sorted as built-in ones are (mel/command.h).
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <maya/MArgList.h>
#include <maya/MString.h>
#include <maya/MSyntax.h>

#include "mel/command.h"

namespace host
{

// The arguments of one call, with their texts.
class ArgumentValues
{
public:
    struct Value {
        std::string text;
        bool isQuoted = true; // a quoted text is a flag in the function form only
    };
    std::vector<Value> list;
    // What a program puts together counts as f("-x", "y").
    bool isFunctionForm = true;

    std::vector<mel::Operand> operands() const; // views of the texts
};
using ArgumentValue = ArgumentValues::Value;

ArgumentValue makeArgument(bool value);
ArgumentValue makeArgument(int value);
ArgumentValue makeArgument(double value);
ArgumentValue makeArgument(std::string text);

// The text as that type, as MEL reads it; false, and `result` left alone, when it is none.
bool convert(std::string_view text, bool &result);
bool convert(std::string_view text, int &result);
bool convert(std::string_view text, double &result);
bool convert(std::string_view text, MString &result);

const ArgumentValues &valuesOf(const MArgList &list);

// What an MSyntax says, as a row of the command table and what such a row does not know.
class SyntaxTable
{
public:
    mel::Command command;  // flags and modes; counts are left to the members below
    std::string arguments; // a letter for each argument in front of the objects
    MSyntax::MObjectFormat objectFormat = MSyntax::kNone;
    mel::Objects objects;
    bool usesSelection = false;

    // By short or long name, with or without dash; null if there is none.
    const mel::Flag *find(std::string_view name) const;
    // The row with its counts. Objects that the selection stands for are not among them.
    mel::Command row() const;
};

// The rules behind an MSyntax; never null.
const SyntaxTable &tableOf(const MSyntax &syntax);

// Names of what is selected now, as a command without objects gets them.
std::vector<std::string> selectedNames();

// Arguments of one call, sorted.
class ParsedArguments
{
public:
    // Throws Error as CommandTable::sort does. `selection`: names that stand for the objects when
    // the syntax says so and none were given.
    ParsedArguments(const SyntaxTable &table, const ArgumentValues &values,
                    std::vector<std::string> selection);
    ParsedArguments(const ParsedArguments &) = delete; // sorted_ points into the others
    ParsedArguments &operator=(const ParsedArguments &) = delete;

    std::vector<std::string_view> arguments; // those of MSyntax::addArg
    std::vector<std::string_view> objects;

    bool isQuery() const { return sorted_.isQuery(); }
    bool isEdit() const { return sorted_.isEdit(); }
    bool knows(std::string_view flag) const { return table_.find(flag) != nullptr; }
    unsigned uses(std::string_view flag) const;
    // An argument of the first use; null if there is none.
    const mel::Operand *argument(std::string_view flag, std::size_t index) const;
    unsigned flagsUsed() const;

private:
    void takeObjects();

    const SyntaxTable table_;
    const mel::Command row_;
    const ArgumentValues values_;
    const std::vector<std::string> selection_;
    mel::Arguments sorted_;
};

} // namespace host
