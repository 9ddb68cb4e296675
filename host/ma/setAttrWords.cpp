// SPDX-License-Identifier: Apache-2.0
#include "ma/setAttrWords.h"

#include <algorithm>

namespace host::ma
{

namespace
{

struct FlagRow {
    std::string_view shortName;
    std::string_view longName;
    bool hasValue;
    bool isState;
};

constexpr FlagRow kFlags[] = {
    {"-s", "-size", true, false},       {"-ch", "-capacityHint", true, false},
    {"-typ", "-type", true, false},     {"-c", "-clamp", false, false},
    {"-l", "-lock", true, true},        {"-k", "-keyable", true, true},
    {"-cb", "-channelBox", true, true}, {"-av", "-alteredValue", false, true},
};

const FlagRow *findFlag(std::string_view text)
{
    for (const FlagRow &row : kFlags) {
        if (text == row.shortName || text == row.longName)
            return &row;
    }
    return nullptr;
}

} // namespace

bool SetAttrWords::hasNumbersOnly() const
{
    return std::all_of(values.begin(), values.end(), [](const mel::Argument *value) {
        return value->kind == mel::Argument::Kind::word;
    });
}

SetAttrWords sortSetAttr(const mel::Statement &statement)
{
    SetAttrWords words;
    const std::vector<mel::Argument> &all = statement.arguments;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const FlagRow *flag = all[i].isFlag() ? findFlag(all[i].text) : nullptr;
        if (!flag) {
            if (words.plug.empty())
                words.plug = all[i].text;
            else
                words.values.push_back(&all[i]);
            continue;
        }
        if (flag->isState)
            words.states.push_back(all[i].text);
        if (!flag->hasValue || i + 1 == all.size())
            continue;
        ++i;
        if (flag->isState)
            words.states.push_back(all[i].text);
        if (flag->longName == "-size")
            words.size = &all[i];
        words.hasCapacity = words.hasCapacity || flag->longName == "-capacityHint";
    }
    return words;
}

} // namespace host::ma
