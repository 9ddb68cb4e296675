// SPDX-License-Identifier: Apache-2.0
// The one running Maya of this process: everything behind the API's static functions.
//
// It exists between MLibrary::initialize and MLibrary::cleanup; nothing outlives it. The program
// with a window starts it itself, to say that it is interactive.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <variant>

#include "api/callbacks.h"
#include "api/plugins.h"
#include "mel/interpreter.h"
#include "mel/melValue.h"
#include "scene/session.h"

class QWidget;

namespace host
{

class Process
{
public:
    // Null before initialize and after cleanup.
    static Process *current();
    // Starts a session. REQUIRES: none is running. With `printsOutput` every message goes to the
    // standard streams, as batch mode does it.
    static Process &start(Session::Mode mode, bool printsOutput);
    // Ends it: the undo queue is flushed and the plug-ins are unloaded.
    static void stop();
    ~Process();

    Session &session() { return session_; }
    mel::Interpreter &interpreter() { return interpreter_; }
    Callbacks &callbacks() { return callbacks_; }
    Plugins &plugins() { return plugins_; }

    // The result of the plug-in command that is running.
    mel::MelValue commandResult;
    using OptionValue = std::variant<int, double, std::string>;
    std::map<std::string, OptionValue> optionVariables;
    // What MQtUtil::mainWindow gives: null but in the program with a window. Not owned.
    QWidget *mainWindow = nullptr;

    void runWhenIdle(std::string command) { idleCommands_.push_back(std::move(command)); }
    // Runs what is waiting; for programs with an event loop. Commands queued meanwhile wait.
    void runIdleCommands();

private:
    Process(Session::Mode mode, bool printsOutput);
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    Session session_;
    mel::Interpreter interpreter_;
    Callbacks callbacks_;
    Plugins plugins_;
    std::deque<std::string> idleCommands_;
};

// The events of what a call of the API changed, if a session runs; see Session::announceChanges.
void announceChanges();

} // namespace host
