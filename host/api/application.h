// SPDX-License-Identifier: Apache-2.0
// The running Maya of this process: what MLibrary::initialize makes and MLibrary::cleanup ends.
//
// Everything behind the statics of the API hangs here, so nothing outlives cleanup. The program
// `korvex` reaches the session and the interpreter through it; plug-ins never see it.
#pragma once

#include <memory>

#include "mel/interpreter.h"
#include "scene/session.h"

class QWidget;

namespace host
{

class Application
{
public:
    // Null before MLibrary::initialize and after MLibrary::cleanup.
    static Application *current();
    // Starts one in the given mode. REQUIRES: none is running. MLibrary::initialize starts one in
    // library mode; the program starts its own in interactive or batch mode.
    static Application &start(Session::Mode mode);
    // Unloads the plug-ins, raises "quitApplication", and ends it. Does nothing if none is running.
    static void end();

    Session &session() { return session_; }
    mel::Interpreter &interpreter() { return interpreter_; }

    // What MQtUtil::mainWindow gives; null unless the program has set its window. Not owned.
    QWidget *mainWindow() const { return mainWindow_; }
    void setMainWindow(QWidget *window) { mainWindow_ = window; }

    ~Application();
    Application(const Application &) = delete;
    Application &operator=(const Application &) = delete;

private:
    explicit Application(Session::Mode mode);

    Session session_;
    mel::Interpreter interpreter_;
    std::unique_ptr<mel::PluginLoader> pluginLoader_;
    QWidget *mainWindow_ = nullptr;
};

} // namespace host
