// SPDX-License-Identifier: Apache-2.0
// currentCtx, setToolTo, contextInfo: the tool that the user holds.
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "scene/toolState.h"

namespace host::mel
{

namespace
{

MelValue currentContext(Context &context, const Arguments &)
{
    return context.session.tools().current();
}

MelValue setTool(Context &context, const Arguments &arguments)
{
    ToolState &tools = context.session.tools();
    const std::string name = arguments.objects[0].string();
    const std::string known = tools.contextNamed(name);
    if (known.empty())
        throw Error("Tool context '" + name + "' not found.");
    tools.enter(known);
    return {};
}

MelValue contextInfo(Context &context, const Arguments &arguments)
{
    if (!arguments.has("exists"))
        throwNoQuestion();
    const std::string known = context.session.tools().contextNamed(arguments.objects[0].text);
    return static_cast<long long>(!known.empty());
}

} // namespace

void addToolCommands(CommandTable &table)
{
    table.add({"currentCtx", {}, currentContext, {0, 0}});
    table.add({"setToolTo", {}, setTool, {1, 1}});
    table.add({"contextInfo", {{"ex", "exists"}}, contextInfo, {1, 1}});
}

} // namespace host::mel
