// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cstdlib>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/plugValues.h"

namespace host::mel
{

namespace
{

MelValue fromBoolean(bool value)
{
    return static_cast<long long>(value);
}

Plug wholeArrayOf(const Plug &plug)
{
    return plug.isElement() ? plug.array() : plug;
}

bool isKeyable(const Plug &plug)
{
    const PlugState state = plug.node->state(plug);
    return state.isKeyable.value_or(plug.attribute->isKeyable);
}

MelValue typeOf(const PlugRange &range)
{
    const Attribute &attribute = *range.plug.attribute;
    if (attribute.isLearned()) {
        const Datum *datum = range.plug.node->datum(range.plug);
        const OpaqueValue *value = datum ? std::get_if<OpaqueValue>(&datum->value) : nullptr;
        return value && !value->type.empty() ? value->type : std::string("TdataCompound");
    }
    const bool isLoose = attribute.isCompound() && !attribute.isTuple();
    return isLoose || range.plug.isWholeArray() ? std::string("TdataCompound") : attribute.typeName;
}

MelValue indicesOf(const PlugRange &range)
{
    if (!range.plug.attribute->isArray)
        throw Error("'" + range.plug.name() + "' is not a multi.");
    const std::vector<int> indices = range.plug.node->elementIndices(wholeArrayOf(range.plug));
    return std::vector<long long>(indices.begin(), indices.end());
}

MelValue sizeOf(const PlugRange &range)
{
    const Plug array = wholeArrayOf(range.plug);
    return array.attribute->isArray ? static_cast<long long>(array.node->elementCount(array)) : 1LL;
}

bool isLocked(const PlugRange &range)
{
    for (Plug plug = range.plug; !plug.isNull(); plug = plug.parent()) {
        if (plug.node->state(plug).isLocked)
            return true;
    }
    return false;
}

// What getAttr tells about an attribute instead of its value, by flag.
struct Question {
    Flag flag;
    MelValue (*answer)(const PlugRange &range);
};
const Question kQuestions[] = {
    {{"typ", "type"}, typeOf},
    {{"mi", "multiIndices"}, indicesOf},
    {{"s", "size"}, sizeOf},
    {{"l", "lock"}, [](const PlugRange &range) { return fromBoolean(isLocked(range)); }},
    {{"k", "keyable"}, [](const PlugRange &range) { return fromBoolean(isKeyable(range.plug)); }},
    {{"cb", "channelBox"},
     [](const PlugRange &range) {
         const PlugState state = range.plug.node->state(range.plug);
         return fromBoolean(state.isChannelBox.value_or(range.plug.attribute->isChannelBox));
     }},
    {{"se", "settable"},
     [](const PlugRange &range) { return fromBoolean(isSettable(range.plug)); }},
};

// "none:interactive=1:post" and 2 give "post".
std::string enumField(const std::string &fields, long long wanted)
{
    long long value = -1;
    for (std::size_t at = 0; at <= fields.size();) {
        const std::size_t end = std::min(fields.find(':', at), fields.size());
        std::string field = fields.substr(at, end - at);
        const std::size_t equals = field.find('=');
        value = equals == std::string::npos ? value + 1 : std::atoll(field.c_str() + equals + 1);
        if (value == wanted)
            return field.substr(0, equals);
        at = end + 1;
    }
    return std::to_string(wanted);
}

MelValue valueOf(const PlugRange &range, const Arguments &arguments)
{
    try {
        const MelValue value = readValues(range);
        const long long *number = std::get_if<long long>(&value);
        if (arguments.has("asString") && number)
            return enumField(range.plug.attribute->enumNames, *number);
        return value;
    } catch (const Error &) {
        if (arguments.has("silent"))
            return MelValue();
        throw;
    }
}

MelValue getAttr(Context &context, const Arguments &arguments)
{
    const PlugRange range = requirePlug(context, arguments.objects.front().text);
    for (const Question &question : kQuestions) {
        if (arguments.has(question.flag.longName))
            return question.answer(range);
    }
    return valueOf(range, arguments);
}

} // namespace

void addGetAttrCommand(CommandTable &table)
{
    Command command{"getAttr", {{"as", "asString"}, {"sl", "silent"}}, getAttr, {1, 1}};
    for (const Question &question : kQuestions)
        command.flags.push_back(question.flag);
    table.add(std::move(command));
}

} // namespace host::mel
