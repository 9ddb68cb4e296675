// SPDX-License-Identifier: Apache-2.0
// connectionInfo: one question about the connections or the lock of one plug.
#include <algorithm>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

bool isSource(const Plug &plug)
{
    return !plug.node->destinations(plug).empty();
}

bool isDestination(const Plug &plug)
{
    return plug.node->source(plug) != nullptr;
}

bool isLocked(const Plug &plug)
{
    return plug.node->state(plug).isLocked;
}

// The plug itself or the nearest one above it that the condition holds for; a null plug for none.
Plug nearest(const Plug &plug, bool (*condition)(const Plug &plug))
{
    Plug step = plug;
    while (!step.isNull() && !condition(step))
        step = step.parent();
    return step;
}

MelValue found(const Plug &plug)
{
    return static_cast<long long>(!plug.isNull());
}

std::string nameOf(const Plug &plug)
{
    return plug.isNull() ? std::string() : plug.name();
}

MelValue sourceOf(const Plug &plug)
{
    const Plug destination = nearest(plug, isDestination);
    return destination.isNull() ? std::string()
                                : destination.node->source(destination)->plug().name();
}

MelValue destinationsOf(const Plug &plug)
{
    std::vector<std::string> names;
    const Plug source = nearest(plug, isSource);
    if (source.isNull())
        return names;
    for (const Connection &end : source.node->destinations(source))
        names.push_back(end.plug().name());
    return names;
}

struct Question {
    Flag flag;
    MelValue (*answer)(const Plug &plug);
};

// What is asked exactly is asked of the plug alone, all else of the compounds around it too.
const Question kQuestions[] = {
    {{"is", "isSource"}, [](const Plug &plug) { return found(nearest(plug, isSource)); }},
    {{"id", "isDestination"}, [](const Plug &plug) { return found(nearest(plug, isDestination)); }},
    {{"ies", "isExactSource"}, [](const Plug &plug) -> MelValue { return 1LL * isSource(plug); }},
    {{"ied", "isExactDestination"},
     [](const Plug &plug) -> MelValue { return 1LL * isDestination(plug); }},
    {{"il", "isLocked"}, [](const Plug &plug) { return found(nearest(plug, isLocked)); }},
    {{"gla", "getLockedAncestor"},
     [](const Plug &plug) -> MelValue { return nameOf(nearest(plug, isLocked)); }},
    {{"ges", "getExactSource"},
     [](const Plug &plug) -> MelValue { return nameOf(nearest(plug, isSource)); }},
    {{"ged", "getExactDestination"},
     [](const Plug &plug) -> MelValue { return nameOf(nearest(plug, isDestination)); }},
    {{"sfd", "sourceFromDestination"}, sourceOf},
    {{"dfs", "destinationFromSource"}, destinationsOf},
};

MelValue connectionInfo(Context &context, const Arguments &arguments)
{
    const Question *asked = nullptr;
    for (const Question &question : kQuestions) {
        if (!arguments.has(question.flag.longName))
            continue;
        if (asked)
            throw Error("connectionInfo: Only one question can be asked at a time.");
        asked = &question;
    }
    if (!asked)
        throw Error("connectionInfo: A flag has to say what is asked.");
    return asked->answer(requireConnectionEnd(context, arguments.objects.front().text));
}

} // namespace

void addConnectionInfoCommand(CommandTable &table)
{
    Command command{"connectionInfo", {}, connectionInfo, {1, 1}};
    for (const Question &question : kQuestions)
        command.flags.push_back(question.flag);
    table.add(std::move(command));
}

} // namespace host::mel
