// SPDX-License-Identifier: Apache-2.0
// What lies behind MArgList, MSyntax and MArgParser: values, the rules of a command, and the values
// sorted by the rules.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <maya/MArgList.h>
#include <maya/MString.h>
#include <maya/MSyntax.h>

#include "scene/error.h"

namespace host
{

// One argument. What MEL typed is kept as text; numbers that a program added keep their kind.
struct ArgumentValue {
    enum class Kind { boolean, number, text };
    Kind kind = Kind::text;
    std::string text; // always set
    double number = 0.0;
};

ArgumentValue makeArgument(bool value);
ArgumentValue makeArgument(int value);
ArgumentValue makeArgument(double value);
ArgumentValue makeArgument(std::string text); // text that reads as a number is a number too

// The argument as that type; false, and `result` left alone, when it is none. Text converts to
// numbers as MEL does it, true/false, on/off and yes/no to bool.
bool convert(const ArgumentValue &argument, bool &result);
bool convert(const ArgumentValue &argument, int &result);
bool convert(const ArgumentValue &argument, double &result);
bool convert(const ArgumentValue &argument, MString &result);

class ArgumentValues
{
public:
    std::vector<ArgumentValue> list;
};

struct FlagRule {
    std::string shortName; // without dash; empty when an earlier flag has it
    std::string longName;
    std::vector<MSyntax::MArgType> types;
    bool isMultiUse = false;
    bool queryTakesArguments = false;
    bool queryArgumentsAreOptional = false;

    bool hasName(std::string_view name) const { return name == shortName || name == longName; }
};

class SyntaxTable
{
public:
    std::vector<FlagRule> flags;
    std::vector<MSyntax::MArgType> arguments;
    MSyntax::MObjectFormat objectFormat = MSyntax::kNone;
    unsigned minimumObjects = 0;
    unsigned maximumObjects = ~0u;
    bool usesSelection = false;
    bool canQuery = false;
    bool canEdit = false;

    // By short or long name, with or without dash; null if there is none.
    const FlagRule *find(std::string_view name) const;
};

// The rules behind an MSyntax; never null.
const SyntaxTable &tableOf(const MSyntax &syntax);
const std::vector<ArgumentValue> &valuesOf(const MArgList &list);

// Names of what is selected now, as a command without objects gets them.
std::vector<std::string> selectedNames();

// Arguments of one call, sorted.
class ParsedArguments
{
public:
    // Throws Error with what Maya prints: "Invalid flag '-xyz'", ... `selection`: names that stand
    // for the objects when the syntax says so and none were given.
    ParsedArguments(SyntaxTable table, const std::vector<ArgumentValue> &values,
                    const std::vector<std::string> &selection);

    bool isQuery = false;
    bool isEdit = false;
    std::vector<ArgumentValue> arguments; // those of MSyntax::addArg
    std::vector<std::string> objects;

    // Uses of a flag, each with its arguments; null if the flag was not used or does not exist.
    const std::vector<std::vector<ArgumentValue>> *uses(std::string_view flag) const;
    bool knows(std::string_view flag) const { return table_.find(flag) != nullptr; }
    unsigned flagsUsed() const { return static_cast<unsigned>(uses_.size()); }

private:
    using Values = std::vector<ArgumentValue>;
    std::size_t takeFlag(const Values &values, std::size_t place);
    void takeObjects(const Values &operands, const std::vector<std::string> &selection);

    SyntaxTable table_;
    std::map<const FlagRule *, std::vector<Values>> uses_;
};

} // namespace host
