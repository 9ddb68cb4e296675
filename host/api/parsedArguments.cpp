// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "api/arguments.h"

namespace host
{

namespace
{

// A dash and a letter: "-1" is a number.
bool looksLikeFlag(const ArgumentValue &argument)
{
    const std::string &text = argument.text;
    return text.size() > 1 && text[0] == '-' &&
           ((text[1] >= 'a' && text[1] <= 'z') || (text[1] >= 'A' && text[1] <= 'Z'));
}

std::string_view withoutDash(std::string_view name)
{
    return !name.empty() && name.front() == '-' ? name.substr(1) : name;
}

const char *typeWord(MSyntax::MArgType type)
{
    switch (type) {
    case MSyntax::kBoolean:
        return "boolean";
    case MSyntax::kLong:
        return "int";
    case MSyntax::kUnsigned:
        return "unsigned int";
    case MSyntax::kDouble:
    case MSyntax::kDistance:
    case MSyntax::kAngle:
    case MSyntax::kTime:
        return "double";
    default:
        return "string";
    }
}

bool fits(const ArgumentValue &argument, MSyntax::MArgType type)
{
    bool truth = false;
    int whole = 0;
    double number = 0.0;
    switch (type) {
    case MSyntax::kBoolean:
        return convert(argument, truth);
    case MSyntax::kLong:
        return convert(argument, whole);
    case MSyntax::kUnsigned:
        return convert(argument, whole) && whole >= 0;
    case MSyntax::kDouble:
    case MSyntax::kDistance:
    case MSyntax::kAngle:
    case MSyntax::kTime:
        return convert(argument, number);
    default:
        return true;
    }
}

void requireFit(const FlagRule &flag, const ArgumentValue &argument, MSyntax::MArgType type)
{
    if (fits(argument, type))
        return;
    const char *got = argument.kind == ArgumentValue::Kind::text ? "string" : "double";
    throw Error("Invalid arguments for flag '" + flag.longName + "'.  Expected ( " +
                typeWord(type) + " ), got [ " + got + " ]");
}

} // namespace

const FlagRule *SyntaxTable::find(std::string_view name) const
{
    const std::string_view bare = withoutDash(name);
    if (bare.empty())
        return nullptr;
    const auto place = std::find_if(flags.begin(), flags.end(),
                                    [bare](const FlagRule &flag) { return flag.hasName(bare); });
    return place == flags.end() ? nullptr : &*place;
}

ParsedArguments::ParsedArguments(SyntaxTable table, const Values &values,
                                 const std::vector<std::string> &selection)
    : table_(std::move(table))
{
    Values operands;
    for (std::size_t i = 0; i < values.size();) {
        if (looksLikeFlag(values[i]))
            i = takeFlag(values, i);
        else
            operands.push_back(values[i++]);
    }
    takeObjects(operands, selection);
}

// Takes the flag at `place` with its arguments; returns the place behind them.
std::size_t ParsedArguments::takeFlag(const Values &values, std::size_t place)
{
    const std::string &text = values[place++].text;
    const std::string_view name = withoutDash(text);
    const FlagRule *flag = table_.find(name);
    if (!flag && table_.canQuery && (name == "q" || name == "query")) {
        isQuery = true;
        return place;
    }
    if (!flag && table_.canEdit && (name == "e" || name == "edit")) {
        isEdit = true;
        return place;
    }
    if (!flag)
        throw Error("Invalid flag '" + text + "'");
    std::vector<Values> &uses = uses_[flag];
    if (!uses.empty() && !flag->isMultiUse)
        throw Error("Flag '" + text + "' can't be used more than once");
    Values taken;
    const bool takesArguments = !isQuery || flag->queryTakesArguments;
    for (const MSyntax::MArgType type : takesArguments ? flag->types : decltype(flag->types)()) {
        if (place >= values.size() && isQuery && flag->queryArgumentsAreOptional)
            break;
        if (place >= values.size())
            throw Error("Flag '" + text + "' must be passed " + std::to_string(flag->types.size()) +
                        (flag->types.size() == 1 ? " argument" : " arguments"));
        requireFit(*flag, values[place], type);
        taken.push_back(values[place++]);
    }
    uses.push_back(std::move(taken));
    return place;
}

// What belongs to no flag: first the arguments that the syntax names, then objects.
void ParsedArguments::takeObjects(const Values &operands, const std::vector<std::string> &selection)
{
    const std::size_t wanted = table_.arguments.size();
    if (operands.size() < wanted && !isQuery)
        throw Error("Wrong number of arguments: expected " + std::to_string(wanted) + ", got " +
                    std::to_string(operands.size()));
    const std::size_t count = std::min(wanted, operands.size());
    for (std::size_t i = 0; i < count; ++i) {
        if (!fits(operands[i], table_.arguments[i]))
            throw Error("Invalid argument '" + operands[i].text + "'.  Expected ( " +
                        typeWord(table_.arguments[i]) + " )");
        arguments.push_back(operands[i]);
    }
    for (std::size_t i = count; i < operands.size(); ++i)
        objects.push_back(operands[i].text);
    const bool takesObjects = table_.objectFormat != MSyntax::kNone;
    if (!takesObjects && !objects.empty())
        throw Error("Invalid argument '" + objects.front() + "'");
    if (takesObjects && objects.empty() && table_.usesSelection)
        objects = selection;
    if (takesObjects && objects.size() < table_.minimumObjects)
        throw Error("Not enough objects or values.");
    if (takesObjects && objects.size() > table_.maximumObjects)
        throw Error("Too many objects or values.");
}

const std::vector<std::vector<ArgumentValue>> *ParsedArguments::uses(std::string_view flag) const
{
    const auto place = uses_.find(table_.find(flag));
    return place == uses_.end() ? nullptr : &place->second;
}

} // namespace host
