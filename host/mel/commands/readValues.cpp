// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "mel/commands/plugValues.h"
#include "scene/error.h"

namespace host::mel
{

namespace
{

constexpr const char *kNotDisplayable =
    "The data is not a numeric or string value, and cannot be displayed.";

// What was read so far. One that holds numbers and strings at the same time has no MEL type.
struct Gathered {
    std::vector<double> numbers;
    std::vector<std::string> strings;
    bool isArray = false;      // even if there is one value only
    bool hasFractions = false; // some of the numbers are floats rather than ints
};

bool isWholeNumberKind(const Attribute &attribute)
{
    const AttributeKind kind = attribute.kind;
    return kind == AttributeKind::boolean || kind == AttributeKind::integer ||
           kind == AttributeKind::enumeration || attribute.typeName == "Int32Array";
}

// Values of unknown attributes are text; numbers in it are read as such.
void gatherText(const OpaqueValue &value, Gathered &gathered)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < value.text.size(); ++count) {
        const std::size_t end = std::min(value.text.find(' ', at), value.text.size());
        double number = 0.0;
        if (!parseNumber(value.text.data() + at, value.text.data() + end, number))
            throw Error(kNotDisplayable);
        gathered.numbers.push_back(number);
        at = end + 1;
    }
    gathered.isArray = gathered.isArray || count > 1;
    gathered.hasFractions = true;
}

struct ValueGatherer {
    const Attribute &attribute;
    Gathered &gathered;

    void operator()(std::monostate) const {}
    void operator()(double number) const
    {
        gathered.numbers.push_back(number);
        gathered.hasFractions = gathered.hasFractions || !isWholeNumberKind(attribute);
    }
    void operator()(const std::string &text) const { gathered.strings.push_back(text); }
    void operator()(const Matrix &matrix) const
    {
        gathered.numbers.insert(gathered.numbers.end(), matrix.begin(), matrix.end());
        gathered.isArray = gathered.hasFractions = true;
    }
    void operator()(const std::vector<std::string> &texts) const
    {
        gathered.strings.insert(gathered.strings.end(), texts.begin(), texts.end());
        gathered.isArray = true;
    }
    void operator()(const std::vector<double> &numbers) const
    {
        gathered.numbers.insert(gathered.numbers.end(), numbers.begin(), numbers.end());
        gathered.isArray = true;
        gathered.hasFractions = gathered.hasFractions || !isWholeNumberKind(attribute);
    }
    void operator()(const OpaqueValue &value) const { gatherText(value, gathered); }
};

void gather(const Plug &plug, Gathered &gathered)
{
    const Attribute &attribute = *plug.attribute;
    if (plug.isWholeArray()) {
        gathered.isArray = true;
        for (int index : plug.node->elementIndices(plug))
            gather(plug.element(index), gathered);
    } else if (attribute.isCompound() || !attribute.children.empty()) {
        gathered.isArray = true;
        for (const AttributePtr &child : attribute.children)
            gather(plug.child(child), gathered);
    } else if (attribute.kind == AttributeKind::message) {
        throw Error("Message attributes have no data values.");
    } else {
        std::visit(ValueGatherer{attribute, gathered}, evaluate(plug));
    }
}

MelValue toNumbers(const Gathered &gathered)
{
    const std::vector<double> &numbers = gathered.numbers;
    if (gathered.hasFractions) {
        if (gathered.isArray)
            return numbers;
        return numbers.front();
    }
    if (gathered.isArray)
        return std::vector<long long>(numbers.begin(), numbers.end());
    return static_cast<long long>(numbers.front());
}

} // namespace

MelValue readValues(const PlugRange &range)
{
    constexpr unsigned kMaxPlugs = 10'000'000;
    if (range.count() > kMaxPlugs)
        throw Error("The range of '" + range.plug.name() + "' is too wide.");
    Gathered gathered;
    gathered.isArray = range.rangeDepth >= 0;
    for (unsigned i = 0; i < range.count(); ++i)
        gather(range.at(i), gathered);
    if (gathered.numbers.empty() && gathered.strings.empty())
        return MelValue();
    if (!gathered.numbers.empty() && !gathered.strings.empty())
        throw Error(kNotDisplayable);
    if (!gathered.numbers.empty())
        return toNumbers(gathered);
    if (gathered.isArray)
        return gathered.strings;
    return gathered.strings.front();
}

} // namespace host::mel
