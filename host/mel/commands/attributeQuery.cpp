// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "mel/commands/attributeCommands.h"
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

using Answer = MelValue (*)(const Plug &plug);

MelValue yesOrNo(bool value)
{
    return static_cast<long long>(value);
}

template <bool Attribute::*member>
MelValue flagOf(const Plug &plug)
{
    return yesOrNo((*plug.attribute).*member);
}

template <std::optional<double> Attribute::*member>
MelValue limitOf(const Plug &plug)
{
    const std::optional<double> &limit = (*plug.attribute).*member;
    return limit ? std::vector<double>{*limit} : std::vector<double>{};
}

template <std::optional<double> Attribute::*member>
MelValue hasLimit(const Plug &plug)
{
    return yesOrNo(((*plug.attribute).*member).has_value());
}

MelValue typeNameOf(const Plug &plug)
{
    return plug.attribute->isDataType ? std::string("typed") : plug.attribute->typeName;
}

MelValue dataTypeOf(const Plug &plug)
{
    return std::vector<std::string>{plug.attribute->isDataType ? plug.attribute->typeName
                                                               : std::string("TdataNumeric")};
}

MelValue childrenOf(const Plug &plug)
{
    std::vector<std::string> names;
    for (const AttributePtr &child : plug.attribute->children)
        names.push_back(child->longName);
    return names.empty() ? MelValue() : MelValue(names);
}

MelValue parentOf(const Plug &plug)
{
    if (!plug.attribute->parent)
        return MelValue();
    return std::vector<std::string>{plug.attribute->parent->longName};
}

MelValue defaultsOf(const Plug &plug)
{
    std::vector<double> numbers;
    if (plug.attribute->isNumber())
        numbers.push_back(plug.attribute->defaultNumber);
    for (const AttributePtr &child : plug.attribute->children)
        numbers.push_back(child->defaultNumber);
    return numbers;
}

MelValue rangeOf(const Plug &plug)
{
    const Attribute &attribute = *plug.attribute;
    if (!attribute.minimum || !attribute.maximum)
        throw Error("attributeQuery: '" + plug.name() + "' has no range.");
    return std::vector<double>{*attribute.minimum, *attribute.maximum};
}

// "softMinValue" reads "Soft Min Value" in Maya's windows.
MelValue niceNameOf(const Plug &plug)
{
    if (!plug.attribute->niceName.empty())
        return plug.attribute->niceName;
    std::string nice;
    for (char c : plug.attribute->longName) {
        const auto byte = static_cast<unsigned char>(c);
        if (nice.empty()) {
            nice += char(std::toupper(byte));
            continue;
        }
        if (std::isupper(byte))
            nice += ' ';
        nice += c;
    }
    return nice;
}

template <AttributeKind kind>
MelValue isKind(const Plug &plug)
{
    return yesOrNo(plug.attribute->kind == kind);
}

struct Question {
    Flag flag;
    Answer answer;
};

// attributeQuery's flags.
const Question kQuestions[] = {
    {{"ln", "longName"}, [](const Plug &plug) -> MelValue { return plug.attribute->longName; }},
    {{"s", "shortName"}, [](const Plug &plug) -> MelValue { return plug.attribute->shortName; }},
    {{"nn", "niceName"}, niceNameOf},
    {{"at", "attributeType"}, typeNameOf},
    {{"lc", "listChildren"}, childrenOf},
    {{"lp", "listParent"}, parentOf},
    {{"nc", "numberOfChildren"},
     [](const Plug &plug) -> MelValue {
         return std::vector<long long>{static_cast<long long>(plug.attribute->children.size())};
     }},
    {{"m", "multi"}, flagOf<&Attribute::isArray>},
    {{"k", "keyable"}, flagOf<&Attribute::isKeyable>},
    {{"ch", "channelBox"}, flagOf<&Attribute::isChannelBox>},
    {{"h", "hidden"}, flagOf<&Attribute::isHidden>},
    {{"st", "storable"}, flagOf<&Attribute::isStorable>},
    {{"r", "readable"}, flagOf<&Attribute::isReadable>},
    {{"w", "writable"}, flagOf<&Attribute::isWritable>},
    {{"c", "connectable"}, flagOf<&Attribute::isConnectable>},
    {{"im", "indexMatters"}, flagOf<&Attribute::indexMatters>},
    {{"uac", "usedAsColor"}, flagOf<&Attribute::isUsedAsColor>},
    {{"msg", "message"}, isKind<AttributeKind::message>},
    {{"enum", "enum"}, isKind<AttributeKind::enumeration>},
    {{"le", "listEnum"},
     [](const Plug &plug) -> MelValue {
         return std::vector<std::string>{plug.attribute->enumNames};
     }},
    {{"ld", "listDefault"}, defaultsOf},
    {{"min", "minimum"}, limitOf<&Attribute::minimum>},
    {{"max", "maximum"}, limitOf<&Attribute::maximum>},
    {{"mne", "minExists"}, hasLimit<&Attribute::minimum>},
    {{"mxe", "maxExists"}, hasLimit<&Attribute::maximum>},
    {{"smn", "softMin"}, limitOf<&Attribute::softMinimum>},
    {{"smx", "softMax"}, limitOf<&Attribute::softMaximum>},
    {{"rge", "rangeExists"},
     [](const Plug &plug) -> MelValue {
         return yesOrNo(plug.attribute->minimum && plug.attribute->maximum);
     }},
    {{"range", "range"}, rangeOf},
};

// What addAttr -query calls otherwise, or asks beyond those.
struct NamedAnswer {
    std::string_view name;
    Answer answer;
};
const NamedAnswer kAddAttrAnswers[] = {
    {"dataType", dataTypeOf},
    {"parent",
     [](const Plug &plug) -> MelValue {
         const Attribute *parent = plug.attribute->parent;
         return (parent ? parent : plug.attribute.get())->longName;
     }},
    {"minValue", [](const Plug &plug) -> MelValue { return plug.attribute->minimum.value_or(0); }},
    {"maxValue", [](const Plug &plug) -> MelValue { return plug.attribute->maximum.value_or(0); }},
    {"softMinValue",
     [](const Plug &plug) -> MelValue { return plug.attribute->softMinimum.value_or(0); }},
    {"softMaxValue",
     [](const Plug &plug) -> MelValue { return plug.attribute->softMaximum.value_or(0); }},
    {"hasMinValue", hasLimit<&Attribute::minimum>},
    {"hasMaxValue", hasLimit<&Attribute::maximum>},
    {"enumName", [](const Plug &plug) -> MelValue { return plug.attribute->enumNames; }},
    {"defaultValue", [](const Plug &plug) -> MelValue { return plug.attribute->defaultNumber; }},
    {"numberOfChildren",
     [](const Plug &plug) -> MelValue {
         return static_cast<long long>(plug.attribute->children.size());
     }},
    {"cachedInternally", flagOf<&Attribute::isCached>},
};

// The attribute that -node or -type and the operand name; a null plug if there is none.
Plug attributeAsked(Context &context, const Arguments &arguments)
{
    const std::string_view name = arguments.objects.front().text;
    if (arguments.has("node")) {
        const NodePtr node = requireNode(context, arguments.string("node"));
        return Plug(node, node->findAttribute(name));
    }
    const std::string type = arguments.string("type");
    const NodeType *known = context.scene().types().find(type);
    if (!known)
        throw Error("attributeQuery: Unknown node type '" + type + "'.");
    return Plug(nullptr, known->find(name));
}

MelValue attributeQuery(Context &context, const Arguments &arguments)
{
    if (!arguments.has("node") && !arguments.has("type"))
        throw Error("attributeQuery: A node (-n) or a node type (-typ) has to be given.");
    const Plug plug = attributeAsked(context, arguments);
    if (arguments.has("exists"))
        return yesOrNo(!plug.isNull());
    if (plug.isNull())
        throwNoSuchObject(std::string(arguments.objects.front().text));
    for (const Question &question : kQuestions) {
        if (arguments.has(question.flag.longName))
            return question.answer(plug);
    }
    throwNoQuestion();
}

} // namespace

MelValue askAttribute(const Plug &plug, std::string_view question)
{
    for (const NamedAnswer &row : kAddAttrAnswers) {
        if (row.name == question)
            return row.answer(plug);
    }
    const auto row =
        std::find_if(std::begin(kQuestions), std::end(kQuestions),
                     [question](const Question &known) { return known.flag.longName == question; });
    return row->answer(plug);
}

void addAttributeQueryCommand(CommandTable &table)
{
    Command command{"attributeQuery",
                    {{"n", "node", "s"}, {"typ", "type", "s"}, {"ex", "exists"}},
                    attributeQuery,
                    {1, 1}};
    for (const Question &question : kQuestions)
        command.flags.push_back(question.flag);
    table.add(std::move(command));
}

void addAttributeCommands(CommandTable &table)
{
    addAddAttrCommand(table);
    addAttributeQueryCommand(table);
    addListAttrCommand(table);
    addAliasAttrCommand(table);
    addDeleteAttrCommands(table);
}

} // namespace host::mel
