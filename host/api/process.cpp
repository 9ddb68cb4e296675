// SPDX-License-Identifier: Apache-2.0
#include "api/process.h"

#include <iostream>

#include <QCoreApplication>
#include <QStringList>
#include <QTimer>

#include "api/status.h"

namespace host
{

namespace
{

std::unique_ptr<Process> theProcess;

// Errors and warnings to the error stream, all else to the other one.
void printMessage(const std::string &text, MessageKind kind)
{
    const bool isComplaint = kind == MessageKind::warning || kind == MessageKind::error;
    std::ostream &stream = isComplaint ? std::cerr : std::cout;
    const std::string line = plain(text, kind);
    stream << line;
    if (line.empty() || line.back() != '\n')
        stream << '\n';
    stream.flush();
}

// Maya's releases differ in when they deliver an event, and a plug-in has to stand both. The events
// that the environment variable KORVEX_DEFERRED_EVENTS names ("SelectionChanged") come when Qt's
// event loop runs next, all others inside the call that raises them.
void deferEvents(Events &events)
{
    const QStringList names =
        qEnvironmentVariable("KORVEX_DEFERRED_EVENTS").split(' ', Qt::SkipEmptyParts);
    if (names.isEmpty())
        return;
    std::vector<std::string> deferred;
    for (const QString &name : names)
        deferred.push_back(name.toStdString());
    events.defer(std::move(deferred), [] {
        QTimer::singleShot(0, QCoreApplication::instance(), [] {
            if (Process *process = Process::current())
                process->session().events().flush();
        });
    });
}

} // namespace

Process *Process::current()
{
    return theProcess.get();
}

Process &Process::start(Session::Mode mode, bool printsOutput)
{
    theProcess.reset(new Process(mode, printsOutput));
    return *theProcess;
}

void Process::stop()
{
    if (!theProcess)
        return;
    theProcess->session_.events().raise("quitApplication");
    theProcess->session_.undo().flush(); // command objects go before the code of their plug-ins
    theProcess->plugins_.unloadAll();
    theProcess.reset();
}

Process::Process(Session::Mode mode, bool printsOutput)
    : session_(mode), interpreter_(session_), callbacks_(session_), plugins_(*this)
{
    interpreter_.pluginLoader = &plugins_;
    if (printsOutput)
        session_.output().addListener(printMessage);
    deferEvents(session_.events());
}

Process::~Process() = default;

void Process::runIdleCommands()
{
    session_.events().raise("idleHigh");
    session_.events().raise("idle");
    std::deque<std::string> commands;
    commands.swap(idleCommands_);
    mel::RunOptions options;
    options.undo = true;
    for (const std::string &command : commands)
        interpreter_.run(command, options);
}

void announceChanges()
{
    if (Process *process = Process::current())
        process->session().announceChanges();
}

void showInfo(const std::string &text)
{
    if (Process *process = Process::current())
        process->session().output().info(text);
}

void showWarning(const std::string &text)
{
    if (Process *process = Process::current())
        process->session().output().warning(text);
}

void showError(const std::string &text)
{
    if (Process *process = Process::current())
        process->session().output().error(text);
}

} // namespace host
