// SPDX-License-Identifier: Apache-2.0
// Named events ("SelectionChanged", "SceneOpened") and the functions that wait for them.
//
// Delivered at once, inside the call that raised them, in the order of registration. A callback may
// add and remove callbacks, itself too. Events that are deferred, as newer Maya releases may do it
// with "SelectionChanged", wait for flush() and come once however often they were raised.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace host
{

class Events
{
public:
    using Id = unsigned long; // never 0

    static const std::vector<std::string> &names();
    static bool isKnown(std::string_view name);

    // 0 if the name is no event.
    Id add(std::string_view event, std::function<void()> callback);
    bool remove(Id id);
    void raise(std::string_view event);

    // Defers these events from now on. `wake` is called when the first one waits: flush() is due
    // as soon as the program is idle.
    void defer(std::vector<std::string> events, std::function<void()> wake);
    void flush(); // delivers what waits

private:
    struct Callback {
        Id id;
        std::string event;
        std::function<void()> function;
    };
    void deliver(const std::string &event);
    std::vector<Callback> callbacks_;
    std::vector<std::string> pending_;
    Id nextId_ = 1;
    std::vector<std::string> deferred_;
    std::function<void()> wake_;
};

} // namespace host
