// SPDX-License-Identifier: Apache-2.0
#include "scene/events.h"

#include <algorithm>

namespace host
{

const std::vector<std::string> &Events::names()
{
    static const std::vector<std::string> kNames = {
        "SelectionChanged",
        "SelectTypeChanged",
        "SelectModeChanged",
        "SceneOpened",
        "NewSceneOpened",
        "PostSceneRead",
        "SceneSaved",
        "SceneImported",
        "deleteAll",
        "Undo",
        "Redo",
        "idle",
        "idleHigh",
        "quitApplication",
        "ToolChanged",
        "PostToolChanged",
        "NameChanged",
        "DagObjectCreated",
        "linearUnitChanged",
        "angularUnitChanged",
        "timeUnitChanged",
    };
    return kNames;
}

bool Events::isKnown(std::string_view name)
{
    return std::find(names().begin(), names().end(), name) != names().end();
}

Events::Id Events::add(std::string_view event, std::function<void()> callback)
{
    if (!isKnown(event))
        return 0;
    callbacks_.push_back({nextId_, std::string(event), std::move(callback)});
    return nextId_++;
}

bool Events::remove(Id id)
{
    const auto found = std::find_if(callbacks_.begin(), callbacks_.end(),
                                    [id](const Callback &callback) { return callback.id == id; });
    if (found == callbacks_.end())
        return false;
    callbacks_.erase(found);
    return true;
}

void Events::raise(std::string_view event)
{
    const std::string name(event);
    const auto has = [&name](const std::vector<std::string> &names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    if (!has(deferred_)) {
        deliver(name);
    } else if (!has(pending_)) {
        pending_.push_back(name);
        if (pending_.size() == 1)
            wake_();
    }
}

void Events::defer(std::vector<std::string> events, std::function<void()> wake)
{
    deferred_ = std::move(events);
    wake_ = std::move(wake);
}

void Events::flush()
{
    std::vector<std::string> events;
    events.swap(pending_);
    for (const std::string &event : events)
        deliver(event);
}

void Events::deliver(const std::string &event)
{
    std::vector<Id> waiting;
    for (const Callback &callback : callbacks_) {
        if (callback.event == event)
            waiting.push_back(callback.id);
    }
    for (const Id id : waiting) {
        // Looked up anew each time: a callback before it may have removed it.
        const auto found = std::find_if(callbacks_.begin(), callbacks_.end(),
                                        [id](const Callback &c) { return c.id == id; });
        if (found == callbacks_.end())
            continue;
        const std::function<void()> function = found->function;
        function();
    }
}

} // namespace host
