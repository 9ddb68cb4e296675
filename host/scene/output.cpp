// SPDX-License-Identifier: Apache-2.0
#include "scene/output.h"

#include <algorithm>

namespace host
{

namespace
{

const char *prefixOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::warning:
        return "Warning: ";
    case MessageKind::error:
        return "Error: ";
    case MessageKind::result:
        return "Result: ";
    default:
        return "";
    }
}

} // namespace

Output::Id Output::addListener(Listener listener)
{
    listeners_.push_back({nextId_, std::move(listener)});
    return nextId_++;
}

bool Output::removeListener(Id id)
{
    const auto found = std::find_if(listeners_.begin(), listeners_.end(),
                                    [id](const Entry &entry) { return entry.id == id; });
    if (found == listeners_.end())
        return false;
    listeners_.erase(found);
    return true;
}

void Output::send(MessageKind kind, const std::string &text)
{
    if (kind == MessageKind::error)
        ++errorCount_;
    // A copy: a listener may add or remove listeners.
    const std::vector<Entry> listeners = listeners_;
    for (const Entry &entry : listeners)
        entry.listener(text, kind);
}

std::string framed(const std::string &text, MessageKind kind)
{
    if (kind == MessageKind::history || kind == MessageKind::display)
        return text;
    const std::string line = "// " + (prefixOf(kind) + text);
    return kind == MessageKind::info ? line : line + " // ";
}

std::string plain(const std::string &text, MessageKind kind)
{
    return prefixOf(kind) + text;
}

} // namespace host
