// SPDX-License-Identifier: Apache-2.0
// Everything that Maya would show in its Script Editor, by kind.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace host
{

// The order is that of MCommandMessage::MessageType.
enum class MessageKind { history, display, info, warning, error, result, stackTrace };

class Output
{
public:
    using Id = unsigned long;
    // `text` without the Script Editor's frame of slashes; see framed().
    using Listener = std::function<void(const std::string &text, MessageKind kind)>;

    Id addListener(Listener listener); // called in order of registration
    bool removeListener(Id id);
    void send(MessageKind kind, const std::string &text);
    void info(const std::string &text) { send(MessageKind::info, text); }
    void warning(const std::string &text) { send(MessageKind::warning, text); }
    void error(const std::string &text) { send(MessageKind::error, text); }
    unsigned errorCount() const { return errorCount_; } // errors sent so far

private:
    struct Entry {
        Id id;
        Listener listener;
    };
    std::vector<Entry> listeners_;
    Id nextId_ = 1;
    unsigned errorCount_ = 0;
};

// As the Script Editor shows it: "// Warning: text // ", "// Error: text // ", "// Result: text //
// ",
// "// text" for info; history and display text as they are.
std::string framed(const std::string &text, MessageKind kind);
// As batch mode prints it: "Warning: text", "Error: text", "Result: text", info bare.
std::string plain(const std::string &text, MessageKind kind);

} // namespace host
