// SPDX-License-Identifier: Apache-2.0
// Named events ("SelectionChanged", "SceneOpened") and the functions that wait for them.
//
// Delivered at once, inside the call that raised them, in the order of registration. A callback may
// add and remove callbacks, itself too. Deferred delivery, which newer Maya releases may use, keeps
// them until flush() and delivers repeats once.
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

    void setDeferred(bool deferred) { isDeferred_ = deferred; }
    void flush(); // delivers what was deferred
    std::size_t callbackCount() const { return callbacks_.size(); }

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
    bool isDeferred_ = false;
};

} // namespace host
