// SPDX-License-Identifier: Apache-2.0
// Runs MEL in a scene of its own and collects what Maya shows meanwhile.
#pragma once

#include <maya/MCommandMessage.h>
#include <maya/MGlobal.h>
#include <maya/MLibrary.h>

#include <string>

// Starts Maya, and ends it. One at a time.
class melRecorder
{
public:
    melRecorder()
    {
        MLibrary::initialize(const_cast<char *>("melTests"), true);
        id_ = MCommandMessage::addCommandOutputCallback(record, this);
    }
    ~melRecorder()
    {
        MMessage::removeCallback(id_);
        MLibrary::cleanup(0, false);
    }
    melRecorder(const melRecorder &) = delete;
    melRecorder &operator=(const melRecorder &) = delete;

    // What was shown since the last call: "text | Warning: text | Error: text".
    std::string taken()
    {
        std::string all;
        all.swap(shown_);
        return all;
    }

    // Runs `command` so that it can be undone and gives what it showed.
    std::string run(const std::string &command, bool display = false, bool undo = true)
    {
        taken();
        status = MGlobal::executeCommand(MString(command.c_str()), display, undo);
        return taken();
    }

    MStatus status; // of the last run

private:
    static void record(const MString &message, MCommandMessage::MessageType kind, void *self)
    {
        const char *prefix = kind == MCommandMessage::kError     ? "Error: "
                             : kind == MCommandMessage::kWarning ? "Warning: "
                                                                 : "";
        std::string text = message.asChar();
        while (!text.empty() && text.back() == '\n')
            text.pop_back();
        std::string &shown = static_cast<melRecorder *>(self)->shown_;
        shown += (shown.empty() ? "" : " | ") + (prefix + text);
    }

    MCallbackId id_ = 0;
    std::string shown_;
};
