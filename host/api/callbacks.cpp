// SPDX-License-Identifier: Apache-2.0
#include "api/callbacks.h"

#include <maya/MString.h>

#include "api/text.h"

namespace host
{

MCallbackId Callbacks::addEvent(const std::string &event, MMessage::MBasicFunction function,
                                void *clientData)
{
    const MCallbackId id = nextId_;
    const Events::Id eventId = session_.events().add(event, [this, id, function, clientData] {
        const Running running(*this, id);
        function(clientData);
    });
    if (eventId == 0)
        return 0;
    Events &events = session_.events();
    entries_[id] = {reinterpret_cast<const void *>(function),
                    [&events, eventId] { events.remove(eventId); }};
    return nextId_++;
}

MCallbackId Callbacks::addCommand(MMessage::MStringFunction function, void *clientData)
{
    const MCallbackId id = nextId_++;
    Output &output = session_.output();
    const Output::Id listener = output.addListener(
        [this, id, function, clientData](const std::string &text, MessageKind kind) {
            if (kind != MessageKind::history)
                return;
            const Running running(*this, id);
            function(toMString(text), clientData);
        });
    entries_[id] = {reinterpret_cast<const void *>(function),
                    [&output, listener] { output.removeListener(listener); }};
    return id;
}

MCallbackId Callbacks::addOutput(MCommandMessage::MMessageFunction function, void *clientData)
{
    const MCallbackId id = nextId_++;
    Output &output = session_.output();
    const Output::Id listener = output.addListener(
        [this, id, function, clientData](const std::string &text, MessageKind kind) {
            const Running running(*this, id);
            function(toMString(text), static_cast<MCommandMessage::MessageType>(kind), clientData);
        });
    entries_[id] = {reinterpret_cast<const void *>(function),
                    [&output, listener] { output.removeListener(listener); }};
    return id;
}

bool Callbacks::remove(MCallbackId id)
{
    const auto place = entries_.find(id);
    if (place == entries_.end())
        return false;
    const std::function<void()> removeIt = std::move(place->second.remove);
    entries_.erase(place);
    removeIt();
    return true;
}

unsigned Callbacks::removeIf(const std::function<bool(const void *function)> &isGone)
{
    std::vector<MCallbackId> gone;
    for (const auto &entry : entries_)
        if (isGone(entry.second.function))
            gone.push_back(entry.first);
    for (const MCallbackId id : gone)
        remove(id);
    return static_cast<unsigned>(gone.size());
}

} // namespace host
