// SPDX-License-Identifier: Apache-2.0
#include "mel/argumentSorter.h"

#include <algorithm>

#include "mel/characters.h"
#include "mel/operandText.h"

namespace host::mel
{

namespace
{

bool accepts(char letter, std::string_view text)
{
    switch (letter) {
    case 'b':
        return toBoolean(text).has_value();
    case 'i':
        return toInteger(text).has_value();
    case 'u':
        return toInteger(text).value_or(-1) >= 0;
    case 'd':
        return toNumber(text).has_value();
    default:
        return true;
    }
}

std::string_view letterName(char letter)
{
    switch (letter) {
    case 'b':
        return "boolean";
    case 'i':
        return "int";
    case 'u':
        return "unsigned int";
    case 'd':
        return "double";
    default:
        return "string";
    }
}

// What error texts call it.
const std::string &nameOf(const Flag &flag)
{
    return flag.shortName.empty() ? flag.longName : flag.shortName;
}

[[noreturn]] void throwWrongArguments(const Flag &flag, const Operand *first, std::size_t count)
{
    std::string expected;
    for (const char letter : flag.arguments)
        expected.append(expected.empty() ? "" : ", ").append(letterName(letter));
    std::string got;
    for (std::size_t i = 0; i < std::min(count, flag.arguments.size()); ++i)
        got.append(i == 0 ? " " : ", ").append(typeName(first[i].text));
    throw Error("Invalid arguments for flag '" + nameOf(flag) + "'.  Expected ( " + expected +
                " ), got [" + got + " ]");
}

} // namespace

ArgumentSorter::ArgumentSorter(const Command &command, const std::vector<Operand> &operands,
                               bool isFunctionForm)
    : command_(command), operands_(operands), isFunctionForm_(isFunctionForm), queryAt_(findQuery())
{
    result_.declared_ = &command.flags;
    result_.isFunctionForm = isFunctionForm;
}

Arguments ArgumentSorter::sorted() &&
{
    result_.objects.reserve(operands_.size());
    while (next_ < operands_.size()) {
        const Operand &operand = operands_[next_];
        const Flag *flag = nullptr;
        switch (meaningOf(operand, &flag)) {
        case Meaning::value:
            result_.objects.push_back(operand);
            break;
        case Meaning::flag:
            takeFlag(*flag);
            break;
        case Meaning::query:
            result_.mode = Arguments::Mode::query;
            break;
        case Meaning::edit:
            result_.mode = Arguments::Mode::edit;
            break;
        case Meaning::unknownFlag:
            throw Error("Invalid flag '" + operand.string() + "'");
        }
        ++next_;
    }
    requireObjects();
    return std::move(result_);
}

void ArgumentSorter::requireObjects() const
{
    const bool isCreated = result_.mode == Arguments::Mode::create;
    const Objects wanted =
        isCreated ? command_.objects : command_.targets.value_or(command_.objects);
    requireObjectCount(command_.name, result_.objects.size(), wanted);
}

bool ArgumentSorter::mayBeFlag(const Operand &operand) const
{
    if (!looksLikeFlag(operand.text) || (operand.isQuoted && !isFunctionForm_))
        return false;
    const auto isName = [](char letter) { return isOf(letter, kName); };
    return !operand.isQuoted || std::all_of(operand.text.begin() + 1, operand.text.end(), isName);
}

ArgumentSorter::Meaning ArgumentSorter::meaningOf(const Operand &operand, const Flag **flag) const
{
    if (!mayBeFlag(operand))
        return Meaning::value;
    const std::string_view name = operand.text.substr(1);
    if (const Flag *found = findFlag(command_.flags, name)) {
        if (flag)
            *flag = found;
        return Meaning::flag;
    }
    if ((name == "q" || name == "query") && (command_.modes & Modes::query) != 0)
        return Meaning::query;
    if ((name == "e" || name == "edit") && (command_.modes & Modes::edit) != 0)
        return Meaning::edit;
    // print("-abc") prints; a command without flags has none that could be unknown.
    const bool isText = operand.isQuoted && command_.flags.empty();
    return isText || isNotFinite(operand.text) ? Meaning::value : Meaning::unknownFlag;
}

std::size_t ArgumentSorter::findQuery() const
{
    const auto found = std::find_if(operands_.begin(), operands_.end(), [this](const Operand &one) {
        return meaningOf(one) == Meaning::query;
    });
    return static_cast<std::size_t>(found - operands_.begin());
}

void ArgumentSorter::takeFlag(const Flag &flag)
{
    const std::size_t count = wantedValues(flag);
    const auto first = operands_.begin() + static_cast<std::ptrdiff_t>(next_ + 1);
    addUse(flag, std::vector<Operand>(first, first + static_cast<std::ptrdiff_t>(count)));
    next_ += count;
}

// How many values follow, as far as the flag could take them. A quoted text that is no flag of the
// command is a value here: button("-label", "-go").
std::size_t ArgumentSorter::availableValues(const Flag &flag) const
{
    const std::size_t most = flag.hasOption(Flag::rest) ? operands_.size() : flag.arguments.size();
    std::size_t count = 0;
    for (std::size_t i = next_ + 1; i < operands_.size() && count < most; ++i, ++count) {
        const Meaning meaning = meaningOf(operands_[i]);
        if (meaning != Meaning::value &&
            !(meaning == Meaning::unknownFlag && operands_[i].isQuoted))
            break;
    }
    return count;
}

std::size_t ArgumentSorter::wantedValues(const Flag &flag) const
{
    const bool isQuery = queryAt_ < operands_.size();
    const bool isAsked = isQuery && next_ > queryAt_;
    if (isAsked && !flag.hasOption(Flag::queryTakesValue))
        return 0;
    const std::size_t available = availableValues(flag);
    if (fits(flag, available))
        return available;
    if (!isQuery || flag.hasOption(Flag::queryNeedsValue))
        throwWrongArguments(flag, operands_.data() + next_ + 1, available);
    return 0;
}

bool ArgumentSorter::fits(const Flag &flag, std::size_t available) const
{
    const std::size_t needed = flag.arguments.size();
    if (available < needed)
        return false;
    for (std::size_t i = 0; i < needed; ++i)
        if (!accepts(flag.arguments[i], operands_[next_ + 1 + i].text))
            return false;
    return true;
}

void ArgumentSorter::addUse(const Flag &flag, std::vector<Operand> values)
{
    auto used = std::find_if(result_.used_.begin(), result_.used_.end(),
                             [&](const auto &one) { return one.flag == &flag; });
    if (used == result_.used_.end())
        used = result_.used_.insert(used, {&flag, {}});
    else if (!flag.hasOption(Flag::multiUse))
        throw Error("Flag '-" + nameOf(flag) + "' can't be used more than once");
    result_.order.emplace_back(flag.longName, used->uses.size());
    used->uses.push_back(std::move(values));
}

} // namespace host::mel
