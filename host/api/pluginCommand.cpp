// SPDX-License-Identifier: Apache-2.0
#include "api/pluginCommand.h"

#include <maya/MArgList.h>
#include <maya/MPxCommand.h>

#include "api/apiAccess.h"
#include "api/arguments.h"
#include "api/process.h"
#include "api/text.h"

namespace host
{

namespace
{

// A command object and what keeps its code loaded.
class CommandObject
{
public:
    CommandObject(const PluginCommand &registration, const MSyntax &syntax)
        : plugin_(registration.plugin), command_(static_cast<MPxCommand *>(registration.creator()))
    {
        if (!command_)
            throw Error("Plug-in command '" + registration.name + "' could not be created");
        ++plugin_->commandObjects;
        auto &context = ApiAccess::context(*command_);
        context->syntax = syntax;
        context->commandString = toMString(registration.name);
    }
    ~CommandObject()
    {
        command_.reset();
        --plugin_->commandObjects;
    }
    CommandObject(const CommandObject &) = delete;
    CommandObject &operator=(const CommandObject &) = delete;

    MPxCommand &command() { return *command_; }
    Plugin &plugin() { return *plugin_; }

private:
    std::shared_ptr<Plugin> plugin_;
    std::unique_ptr<MPxCommand> command_;
};

// While it lives the plug-in's code is running, with a result of its own.
class Execution
{
public:
    Execution(Process &process, Plugin &plugin) : process_(process), plugin_(plugin)
    {
        std::swap(outerResult_, process_.commandResult);
        ++plugin_.runningCommands;
    }
    ~Execution()
    {
        --plugin_.runningCommands;
        process_.commandResult = std::move(outerResult_);
    }
    Execution(const Execution &) = delete;
    Execution &operator=(const Execution &) = delete;

private:
    Process &process_;
    Plugin &plugin_;
    mel::MelValue outerResult_;
};

MArgList toArgList(const mel::Arguments &arguments)
{
    auto values = std::make_shared<ArgumentValues>();
    values->isFunctionForm = arguments.isFunctionForm;
    for (const mel::Operand &operand : arguments.objects)
        values->list.push_back({operand.string(), operand.isQuoted});
    MArgList list;
    ApiAccess::values(list) = std::move(values);
    return list;
}

Change makeStep(Process &process, const std::shared_ptr<CommandObject> &object)
{
    const auto run = [&process, object](MStatus (MPxCommand::*replay)()) {
        const Execution execution(process, object->plugin());
        if (!(object->command().*replay)())
            throw Error(std::string()); // the command has said why
    };
    return {[run] { run(&MPxCommand::undoIt); }, [run] { run(&MPxCommand::redoIt); }};
}

// The syntax with the command's name, for error texts.
MSyntax syntaxOf(const PluginCommand &registration)
{
    MSyntax syntax = registration.createSyntax ? registration.createSyntax() : MSyntax();
    auto &table = ApiAccess::table(syntax);
    table = std::make_shared<SyntaxTable>(tableOf(syntax));
    table->command.name = registration.name;
    return syntax;
}

mel::MelValue call(Process &process, const PluginCommand &registration, const MSyntax &syntax,
                   const mel::Arguments &operands)
{
    const MArgList arguments = toArgList(operands);
    if (registration.createSyntax) // refuses bad arguments before there is an object
        ParsedArguments(tableOf(syntax), valuesOf(arguments), selectedNames());
    const auto object = std::make_shared<CommandObject>(registration, syntax);
    const Execution execution(process, object->plugin());
    UndoQueue &queue = process.session().undo();
    const std::size_t place = queue.openSteps();
    Change step = makeStep(process, object);
    if (!object->command().doIt(arguments))
        throw Error(std::string()); // the command has said why, or wants nothing said
    if (!object->command().isUndoable())
        return process.commandResult;
    try {
        queue.recordAt(place, std::move(step));
    } catch (...) {
        step.undo();
        throw;
    }
    return process.commandResult;
}

} // namespace

mel::Command makePluginCommand(Process &process, const PluginCommand &registration)
{
    mel::Command command;
    command.name = registration.name;
    command.takesRawArguments = true;
    const MSyntax syntax = syntaxOf(registration);
    command.run = [&process, registration, syntax](mel::Context &,
                                                   const mel::Arguments &arguments) {
        return call(process, registration, syntax, arguments);
    };
    return command;
}

} // namespace host
