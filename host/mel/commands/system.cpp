// SPDX-License-Identifier: Apache-2.0
// print, warning, error, quit, about, refresh.
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/interpreter.h"

namespace host::mel
{

namespace
{

// MAYA_API_VERSION of the headers that plug-ins are built with: release and update.
constexpr int kApiVersion = 201700;

// An array is printed line by line, nothing if it is empty; a single text as it is.
MelValue print(Context &context, const Arguments &arguments)
{
    if (arguments.objects.empty())
        return MelValue();
    std::string text;
    const bool isArray = arguments.objects.size() > 1;
    for (const Operand &object : arguments.objects)
        text += object.string() + (isArray ? "\n" : "");
    context.session.output().send(MessageKind::display, text);
    return MelValue();
}

MelValue warning(Context &context, const Arguments &arguments)
{
    context.session.output().warning(arguments.objects.front().string());
    return MelValue();
}

MelValue error(Context &, const Arguments &arguments)
{
    throw Error(arguments.objects.front().string());
}

// The program ends when the text that runs now has stopped; see Interpreter::quitRequested.
MelValue quit(Context &context, const Arguments &arguments)
{
    context.interpreter.quitRequested = true;
    context.interpreter.exitCode = int(arguments.integer("exitCode", 0));
    return MelValue();
}

MelValue about(Context &context, const Arguments &arguments)
{
    if (arguments.has("batch"))
        return static_cast<long long>(context.session.mode() == Session::Mode::batch);
    if (arguments.has("apiVersion"))
        return static_cast<long long>(kApiVersion);
    if (arguments.has("version"))
        return std::to_string(kApiVersion / 100);
    throwNoQuestion();
}

// There is no picture that could be out of date: views draw themselves after every event.
MelValue refresh(Context &, const Arguments &)
{
    return MelValue();
}

} // namespace

void addSystemCommands(CommandTable &table)
{
    table.add({"print", {}, print});
    table.add({"warning", {}, warning, {1, 1}});
    table.add({"error", {}, error, {1, 1}});
    table.add({"quit", {{"f", "force"}, {"a", "abort"}, {"ec", "exitCode", "i"}}, quit, {0, 0}});
    table.add({"about", {{"b", "batch"}, {"v", "version"}, {"api", "apiVersion"}}, about, {0, 0}});
    table.add({"refresh",
               {{"f", "force"}, {"cv", "currentView"}, {"su", "suspend", "b"}},
               refresh,
               {0, 0}});
}

} // namespace host::mel
