// SPDX-License-Identifier: Apache-2.0
// Callbacks that were added through MMessage and its relatives, by the id that Maya gave for them.
#pragma once

#include <functional>
#include <map>
#include <string>

#include <maya/MCommandMessage.h>
#include <maya/MMessage.h>

#include "scene/session.h"

namespace host
{

class Callbacks
{
public:
    explicit Callbacks(Session &session) : session_(session) {}

    // 0 if `event` is no event.
    MCallbackId addEvent(const std::string &event, MMessage::MBasicFunction function,
                         void *clientData);
    MCallbackId addCommand(MMessage::MStringFunction function, void *clientData);
    MCallbackId addOutput(MCommandMessage::MMessageFunction function, void *clientData);
    bool remove(MCallbackId id); // false for an id that is not known, or not any more
    MCallbackId current() const { return current_; } // that of the running callback, else 0
    // Removes callbacks whose function satisfies `isGone`; how many there were.
    unsigned removeIf(const std::function<bool(const void *function)> &isGone);

private:
    struct Entry {
        const void *function;
        std::function<void()> remove;
    };
    // Marks a callback as the running one for as long as it runs.
    class Running
    {
    public:
        Running(Callbacks &callbacks, MCallbackId id) : callbacks_(callbacks), outer_(id)
        {
            std::swap(callbacks_.current_, outer_);
        }
        ~Running() { callbacks_.current_ = outer_; }
        Running(const Running &) = delete;
        Running &operator=(const Running &) = delete;

    private:
        Callbacks &callbacks_;
        MCallbackId outer_;
    };

    Session &session_;
    std::map<MCallbackId, Entry> entries_;
    MCallbackId nextId_ = 1;
    MCallbackId current_ = 0;
};

} // namespace host
