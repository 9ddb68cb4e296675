// SPDX-License-Identifier: Apache-2.0
#include "fuzz/sceneMutation.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace
{

struct Span {
    std::size_t begin;
    std::size_t end;
};

bool isInNumber(char c)
{
    return std::isdigit(static_cast<unsigned char>(c)) || c == '.' || c == '-';
}

// Without the header, which has to be sound for anything else to be read.
std::vector<Span> statementsOf(const std::string &text)
{
    std::vector<Span> spans;
    std::size_t begin = text.find("requires");
    while (begin < text.size()) {
        const std::size_t end = text.find(";\n", begin);
        if (end == std::string::npos)
            break;
        spans.push_back({begin, end + 2});
        begin = end + 2;
    }
    return spans;
}

std::vector<Span> numbersOf(const std::string &text)
{
    std::vector<Span> spans;
    for (std::size_t at = text.find("requires"); at < text.size(); ++at) {
        const std::size_t begin = at;
        while (at < text.size() && isInNumber(text[at]))
            ++at;
        if (at > begin)
            spans.push_back({begin, at});
    }
    return spans;
}

std::vector<Span> quotedOf(const std::string &text)
{
    std::vector<Span> spans;
    for (std::size_t at = text.find('"'); at != std::string::npos; at = text.find('"', at + 1)) {
        const std::size_t end = text.find('"', at + 1);
        if (end == std::string::npos)
            break;
        spans.push_back({at + 1, end});
        at = end;
    }
    return spans;
}

std::string cut(const std::string &text, const Span &span)
{
    return text.substr(span.begin, span.end - span.begin);
}

void replace(std::string &text, const Span &span, const std::string &by)
{
    text.replace(span.begin, span.end - span.begin, by);
}

void changeByte(std::string &text, Chance &chance)
{
    const std::size_t at = chance.below(text.size());
    constexpr char kBytes[] = {'"', ';', '\\', '[', ']',  ':',   '.',
                               '|', '-', '(',  '{', '\0', '\xff'};
    switch (chance.below(4)) {
    case 0:
        text[at] = chance.pick(kBytes);
        break;
    case 1:
        text.insert(at, 1, chance.pick(kBytes));
        break;
    case 2:
        text.erase(at, 1 + chance.below(40));
        break;
    default:
        text.insert(at, text.substr(at, 1 + chance.below(200)));
    }
}

void cutOff(std::string &text, Chance &chance)
{
    text.resize(chance.below(text.size()));
}

void changeStatements(std::string &text, Chance &chance)
{
    const std::vector<Span> statements = statementsOf(text);
    if (statements.empty())
        return;
    const Span first = chance.pick(statements);
    const Span second = chance.pick(statements);
    const std::string moved = cut(text, first);
    if (chance.oneIn(3)) {
        replace(text, first, "");
    } else if (chance.oneIn(2)) {
        text.insert(second.begin, moved);
    } else {
        text.insert(second.begin, moved);
        replace(text,
                {first.begin + (second.begin <= first.begin ? moved.size() : 0),
                 first.end + (second.begin <= first.begin ? moved.size() : 0)},
                "");
    }
}

void changeNumber(std::string &text, Chance &chance)
{
    static const std::string kNumbers[] = {"0",   "-1",    "1",          "2",           "7",
                                           "0.5", "1e308", "nan",        "-1e-9",       "1e9",
                                           "3:1", "",      "2147483647", "99999999999", "1500000"};
    const std::vector<Span> numbers = numbersOf(text);
    if (!numbers.empty())
        replace(text, chance.pick(numbers), chance.pick(kNumbers));
}

void changeName(std::string &text, Chance &chance)
{
    static const std::string kNames[] = {"", "persp", "time1", ".wl", ".ip[0].ig", "a|b", ":", "*"};
    const std::vector<Span> names = quotedOf(text);
    if (names.empty())
        return;
    const std::string other = chance.oneIn(4) ? chance.pick(kNames) : cut(text, chance.pick(names));
    replace(text, chance.pick(names), other);
}

using Mutation = void (*)(std::string &, Chance &);
// Those that leave most of the file sound stand several times: they lead further in.
constexpr Mutation kMutations[] = {changeByte,   cutOff,     changeStatements, changeStatements,
                                   changeNumber, changeName, changeNumber,     changeName};

} // namespace

std::string mutatedScene(std::string text, Chance &chance)
{
    for (std::size_t left = 1 + chance.below(4); left > 0 && !text.empty(); --left)
        chance.pick(kMutations)(text, chance);
    return text;
}
