// SPDX-License-Identifier: Apache-2.0
#include "support/maText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace
{

struct token {
    std::string text;
    bool isQuoted = false;
    bool isFlag() const
    {
        return !isQuoted && text.size() > 1 && text[0] == '-' && std::isalpha(text[1]) &&
               text != "-nan" && text != "-inf";
    }
};
using tokens = std::vector<token>;

std::string takeString(const std::string &text, std::size_t &at)
{
    std::string value;
    for (++at; at < text.size() && text[at] != '"'; ++at) {
        if (text[at] != '\\') {
            value += text[at];
            continue;
        }
        const char c = text[++at];
        value += c == 'n' ? '\n' : c == 't' ? '\t' : c == 'r' ? '\r' : c;
    }
    ++at;
    return value;
}

// The next statement's tokens; pieces of ( "a" + "b" ) are joined. False at the end.
bool takeStatement(const std::string &text, std::size_t &at, tokens &out)
{
    out.clear();
    bool joins = false;
    while (at < text.size()) {
        const char c = text[at];
        if (text.compare(at, 2, "//") == 0) {
            at = std::min(text.find('\n', at), text.size());
        } else if (c == '"') {
            const std::string value = takeString(text, at);
            if (joins)
                out.back().text += value;
            else
                out.push_back({value, true});
            joins = false;
        } else if (c == ';') {
            ++at;
            return true;
        } else if (std::isspace(static_cast<unsigned char>(c)) || c == '(' || c == ')') {
            ++at;
        } else if (c == '+') {
            joins = true;
            ++at;
        } else if (c == '{' || c == '}' || c == ',') {
            out.push_back({std::string(1, c), false});
            ++at;
        } else {
            const std::size_t end =
                std::min(text.find_first_of(" \t\r\n;\"(){},", at), text.size());
            out.push_back({text.substr(at, end - at), false});
            at = end;
        }
    }
    return false;
}

std::string joined(tokens::const_iterator first, tokens::const_iterator last)
{
    std::string text;
    for (; first != last; ++first)
        text += (text.empty() ? "" : " ") + first->text;
    return text;
}

// Takes a flag with its value off a statement; "" if it is not there.
std::string takeFlag(tokens &words, const char *shortName, const char *longName, bool hasValue)
{
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (!word->isFlag() || (word->text != shortName && word->text != longName))
            continue;
        const std::string value = hasValue ? word[1].text : "on";
        words.erase(word, word + (hasValue ? 2 : 1));
        return value;
    }
    return {};
}

class reader
{
public:
    explicit reader(std::map<std::string, std::string> &facts) : facts_(facts) {}
    void read(const std::string &text);

private:
    void createNode(tokens words);
    void setAttr(tokens words);
    void setValues(const std::string &path, const std::string &type, const tokens &values);
    void setWeights(const std::string &before, long first, const tokens &values);
    void setFaces(const std::string &before, long first, const tokens &values);
    void connect(tokens words);
    void addAttr(tokens words);
    std::string fullPath(const std::string &name) const;
    std::string fullPlug(const std::string &plug) const;
    void count(const std::string &fact);

    std::map<std::string, std::string> &facts_;
    std::multimap<std::string, std::string> paths_; // of nodes, by name
    std::string current_;
};

void reader::count(const std::string &fact)
{
    std::string &times = facts_[fact];
    times = std::to_string(std::atoi(times.c_str()) + 1);
}

// "grp|hip" of "hip", "|grp|hip" or ":hip"; the name itself if no node of the file has it.
std::string reader::fullPath(const std::string &name) const
{
    const bool isRooted = name[0] == '|';
    const std::string plain = name.substr(isRooted || name[0] == ':');
    const auto [begin, end] = paths_.equal_range(plain.substr(plain.rfind('|') + 1));
    for (auto path = begin; path != end; ++path) {
        const std::string &full = path->second;
        const bool isBelow =
            full.size() > plain.size() &&
            full.compare(full.size() - plain.size() - 1, std::string::npos, '|' + plain) == 0;
        if (full == plain || (isBelow && !isRooted))
            return full;
    }
    return plain;
}

std::string reader::fullPlug(const std::string &plug) const
{
    const std::size_t dot = plug.find('.');
    return fullPath(plug.substr(0, dot)) + plug.substr(dot);
}

void reader::createNode(tokens words)
{
    const std::string name = takeFlag(words, "-n", "-name", true);
    const std::string parent = takeFlag(words, "-p", "-parent", true);
    const std::string shared = takeFlag(words, "-s", "-shared", false);
    current_ = parent.empty() ? name : fullPath(parent) + '|' + name;
    if (facts_.count("node " + current_) == 0)
        paths_.emplace(name, current_);
    facts_["node " + current_] = words[1].text + (shared.empty() ? "" : " shared");
}

void reader::addAttr(tokens words)
{
    const std::string name = takeFlag(words, "-ln", "-longName", true);
    std::vector<std::string> flags;
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (words[i].isFlag())
            flags.push_back(words[i].text);
        else
            flags.back() += ' ' + words[i].text;
    }
    std::sort(flags.begin(), flags.end());
    std::string &fact = facts_[current_ + " addAttr " + name];
    for (const std::string &flag : flags)
        fact += flag + ' ';
}

void reader::connect(tokens words)
{
    const std::string lock = takeFlag(words, "-l", "-lock", true);
    const std::string next = takeFlag(words, "-na", "-nextAvailable", false);
    count(fullPlug(words[1].text) + " -> " + fullPlug(words[2].text) +
          (lock.empty() ? "" : " locked") + (next.empty() ? "" : " next available"));
}

void reader::setAttr(tokens words)
{
    const std::string type = takeFlag(words, "-type", "-type", true);
    static const char *const kStates[][2] = {{"-s", "-size"},    {"-ch", "-capacityHint"},
                                             {"-k", "-keyable"}, {"-cb", "-channelBox"},
                                             {"-l", "-lock"},    {"-av", "-alteredValue"}};
    std::vector<std::pair<std::string, std::string>> states;
    for (const auto &names : kStates) {
        const std::string value = takeFlag(words, names[0], names[1], names[0] != kStates[5][0]);
        if (!value.empty())
            states.emplace_back(names[0], value);
    }
    const std::string &path = words[1].text;
    for (const auto &[flag, value] : states) {
        // Sizes belong to the array, whatever range of it the statement sets.
        const bool isSize = flag == "-s" || flag == "-ch";
        facts_[current_ + ' ' +
               (isSize && path.back() == ']' ? path.substr(0, path.rfind('[')) : path) + ' ' +
               flag] = value;
    }
    if (words.size() > 2 || !type.empty())
        setValues(path, type, tokens(words.begin() + 2, words.end()));
}

void reader::setValues(const std::string &path, const std::string &type, const tokens &values)
{
    const auto endsWith = [&path](const std::string &end) {
        return path.size() > end.size() &&
               path.compare(path.size() - end.size(), std::string::npos, end) == 0;
    };
    const std::size_t colon = path.find(':');
    const std::size_t open = colon == std::string::npos ? path.find('[') : path.rfind('[', colon);
    const std::size_t close = path.find(']', open);
    const bool hasIndex = open != std::string::npos;
    const long first = hasIndex ? std::atol(path.c_str() + open + 1) : 0;
    const long last = colon == std::string::npos ? first : std::atol(path.c_str() + colon + 1);
    const std::string before = current_ + ' ' + path.substr(0, open);
    if (endsWith("].w") || endsWith("].weights"))
        return setWeights(before, first, values);
    if (type == "polyFaces" || (!values.empty() && values[0].text == "f"))
        return setFaces(before, first, values);
    if (colon == std::string::npos) {
        facts_[current_ + ' ' + path] = joined(values.begin(), values.end());
        return;
    }
    const long each = long(values.size()) / (last - first + 1);
    for (long i = first; i <= last; ++i) {
        const auto begin = values.begin() + (i - first) * each;
        facts_[before + '[' + std::to_string(i) + path.substr(close)] = joined(begin, begin + each);
    }
}

void reader::setWeights(const std::string &before, long first, const tokens &values)
{
    for (std::size_t at = 0; at < values.size(); ++first) {
        long pairs = std::atol(values[at++].text.c_str());
        for (; pairs > 0 && at + 1 < values.size(); --pairs, at += 2)
            facts_[before + '[' + std::to_string(first) + "].w[" + values[at].text + ']'] =
                values[at + 1].text;
    }
}

void reader::setFaces(const std::string &before, long first, const tokens &values)
{
    std::string *face = nullptr;
    for (const token &value : values) {
        if (value.text == "f")
            face = &facts_[before + '[' + std::to_string(first++) + ']'];
        *face += value.text + ' ';
    }
}

void reader::read(const std::string &text)
{
    tokens words;
    for (std::size_t at = 0; takeStatement(text, at, words);) {
        const std::string command = words.front().text;
        const std::string values = joined(words.begin(), words.end());
        if (command == "createNode")
            createNode(words);
        else if (command == "select")
            current_ = fullPath(words.back().text);
        else if (command == "rename")
            facts_[current_ + " uid"] = words.back().text;
        else if (command == "addAttr")
            addAttr(words);
        else if (command == "setAttr")
            setAttr(words);
        else if (command == "connectAttr")
            connect(words);
        else if (command == "lockNode" || command == "instanceable")
            count(current_ + ' ' + values);
        else
            count(values);
    }
}

// Attributes of single precision: Maya writes more digits of some than a float has.
bool isSingle(const std::string &fact)
{
    static const char *const kSingles[] = {"vt", "vrts", "uvsp", "uvSetPoints", "pt",  "pnts",
                                           "n",  "c",    "ifcl", "obcc",        "wfcc"};
    const std::string last = fact.substr(fact.rfind('.') + 1);
    return std::count(std::begin(kSingles), std::end(kSingles), last.substr(0, last.find('['))) > 0;
}

bool isSameWord(const std::string &first, const std::string &second, bool single)
{
    if (first == second)
        return true;
    char *firstEnd = nullptr;
    char *secondEnd = nullptr;
    const double a = std::strtod(first.c_str(), &firstEnd);
    const double b = std::strtod(second.c_str(), &secondEnd);
    if (*firstEnd || *secondEnd || first.empty() || second.empty())
        return false;
    return a == b || (std::isnan(a) && std::isnan(b)) || (single && float(a) == float(b));
}

// Word by word.
bool isSame(const std::string &fact, const std::string &first, const std::string &second)
{
    if (first == second)
        return true;
    const bool single = isSingle(fact);
    std::istringstream a(first);
    std::istringstream b(second);
    std::string wordOfA;
    std::string wordOfB;
    while (a >> wordOfA) {
        if (!(b >> wordOfB) || !isSameWord(wordOfA, wordOfB, single))
            return false;
    }
    return !(b >> wordOfB);
}

} // namespace

maText::maText(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    reader(facts).read(text);
}

std::vector<std::string> differences(const maText &first, const maText &second)
{
    std::vector<std::string> lines;
    for (const auto &[fact, value] : first.facts) {
        const auto other = second.facts.find(fact);
        if (other == second.facts.end())
            lines.push_back("- " + fact + " = " + value);
        else if (!isSame(fact, value, other->second))
            lines.push_back("~ " + fact + " = " + value + " | " + other->second);
    }
    for (const auto &[fact, value] : second.facts) {
        if (first.facts.count(fact) == 0)
            lines.push_back("+ " + fact + " = " + value);
    }
    return lines;
}
