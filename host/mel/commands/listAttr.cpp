// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "mel/commands/attributeCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/wildcard.h"

namespace host::mel
{

namespace
{

bool isLocked(const Plug &plug)
{
    return plug.node->state(plug).isLocked;
}

struct Filter {
    Flag flag;
    bool (*keeps)(const Plug &plug);
};

// All filters of a call have to agree.
const Filter kFilters[] = {
    {{"k", "keyable"},
     [](const Plug &plug) {
         return plug.node->state(plug).isKeyable.value_or(plug.attribute->isKeyable);
     }},
    {{"cb", "channelBox"},
     [](const Plug &plug) {
         return plug.node->state(plug).isChannelBox.value_or(plug.attribute->isChannelBox);
     }},
    {{"ud", "userDefined"}, [](const Plug &plug) { return plug.attribute->isDynamic; }},
    {{"m", "multi"}, [](const Plug &) { return true; }}, // adds elements, see appendPlug
    {{"a", "array"}, [](const Plug &plug) { return plug.attribute->isArray; }},
    {{"r", "read"}, [](const Plug &plug) { return plug.attribute->isReadable; }},
    {{"w", "write"}, [](const Plug &plug) { return plug.attribute->isWritable; }},
    {{"c", "connectable"}, [](const Plug &plug) { return plug.attribute->isConnectable; }},
    {{"s", "scalar"},
     [](const Plug &plug) { return plug.attribute->isNumber() && !plug.attribute->isArray; }},
    {{"lf", "leaf"}, [](const Plug &plug) { return plug.attribute->children.empty(); }},
    {{"l", "locked"}, isLocked},
    {{"u", "unlocked"}, [](const Plug &plug) { return !isLocked(plug); }},
    {{"se", "settable"}, [](const Plug &plug) { return isSettable(plug); }},
    {{"v", "visible"}, [](const Plug &plug) { return !plug.attribute->isHidden; }},
};

bool isWanted(const Plug &plug, const Arguments &arguments)
{
    const bool passes =
        std::all_of(std::begin(kFilters), std::end(kFilters), [&](const Filter &filter) {
            return !arguments.has(filter.flag.longName) || filter.keeps(plug);
        });
    if (!passes || !arguments.has("string"))
        return passes;
    for (std::size_t use = 0; use < arguments.uses("string"); ++use) {
        const std::string_view pattern = arguments.of("string", use).front().text;
        if (matchesWildcard(pattern, plug.attribute->longName) ||
            matchesWildcard(pattern, plug.attribute->shortName))
            return true;
    }
    return false;
}

// Elements and members of arrays are named by their path, all else by the bare name.
std::string nameOf(const Plug &plug, bool isShort)
{
    std::string path = plug.path(isShort);
    if (path.find('[') != std::string::npos)
        return path;
    return isShort ? plug.attribute->shortName : plug.attribute->longName;
}

void appendPlug(const Plug &plug, const Arguments &arguments, std::vector<std::string> &names)
{
    if (isWanted(plug, arguments))
        names.push_back(nameOf(plug, arguments.has("shortNames")));
    if (plug.isWholeArray() && arguments.has("multi")) {
        for (int index : plug.node->elementIndices(plug))
            appendPlug(plug.element(index), arguments, names);
        return;
    }
    for (const AttributePtr &child : plug.attribute->children)
        appendPlug(plug.child(child), arguments, names);
}

MelValue listAttr(Context &context, const Arguments &arguments)
{
    std::vector<std::string> names;
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (item.isPlug()) {
            appendPlug(item.plug, arguments, names);
            continue;
        }
        for (const AttributePtr &attribute : item.node->attributes())
            appendPlug(Plug(item.node, attribute), arguments, names);
    }
    return names;
}

} // namespace

void addListAttrCommand(CommandTable &table)
{
    Command command{
        "listAttr", {{"st", "string", "s", Flag::multiUse}, {"sn", "shortNames"}}, listAttr};
    for (const Filter &filter : kFilters)
        command.flags.push_back(filter.flag);
    table.add(std::move(command));
}

} // namespace host::mel
