// SPDX-License-Identifier: Apache-2.0
// Keeps the infos that Maya shows: a line each, without Maya's frame.
#pragma once

#include <string>

#include <maya/MCommandMessage.h>
#include <maya/MString.h>

class InfoRecorder
{
public:
    InfoRecorder() { callback_ = MCommandMessage::addCommandOutputCallback(keep, this); }
    ~InfoRecorder() { MMessage::removeCallback(callback_); }
    InfoRecorder(const InfoRecorder &) = delete;
    InfoRecorder &operator=(const InfoRecorder &) = delete;

    // Since the last call.
    std::string take()
    {
        std::string taken;
        taken.swap(infos_);
        return taken;
    }

private:
    static void keep(const MString &message, MCommandMessage::MessageType type, void *self)
    {
        std::string &infos = static_cast<InfoRecorder *>(self)->infos_;
        if (type == MCommandMessage::kInfo)
            infos += (infos.empty() ? "" : "\n") + std::string(message.asUTF8());
    }

    std::string infos_;
    MCallbackId callback_;
};
