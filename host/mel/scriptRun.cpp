// SPDX-License-Identifier: Apache-2.0
#include "mel/scriptRun.h"

#include <new>
#include <optional>

#include "mel/characters.h"
#include "mel/scopes.h"

namespace host::mel
{

namespace
{

// Enough for the Edit menu, and whole for what people type.
constexpr std::size_t kMaxNameLength = 256;

// The text as the undo queue calls it: without blanks around it and its last semicolon.
std::string itemName(std::string_view text)
{
    while (!text.empty() && isOf(text.front(), kBlank))
        text.remove_prefix(1);
    while (!text.empty() && (isOf(text.back(), kBlank) || text.back() == ';'))
        text.remove_suffix(1);
    if (text.size() <= kMaxNameLength)
        return std::string(text);
    std::size_t length = kMaxNameLength;
    const auto isContinuation = [](char byte) { return (byte & 0xC0) == 0x80; };
    while (length > 0 && isContinuation(text[length])) // not in the middle of a UTF-8 letter
        --length;
    return std::string(text.substr(0, length));
}

// Whether a result line is shown: not for no result, nor for an array without elements.
struct IsShown {
    bool operator()(std::monostate) const { return false; }
    template <typename Element>
    bool operator()(const std::vector<Element> &elements) const
    {
        return !elements.empty();
    }
    template <typename Single>
    bool operator()(const Single &) const
    {
        return true;
    }
};

} // namespace

Outcome Interpreter::run(std::string_view text, const RunOptions &options)
{
    return ScriptRun(*this, text, options).run();
}

ScriptRun::ScriptRun(Interpreter &interpreter, std::string_view text, const RunOptions &options)
    : interpreter_(interpreter), session_(interpreter.session()), text_(text),
      options_(options), context_{session_, interpreter}
{
}

Outcome ScriptRun::run()
{
    if (options_.echo)
        session_.output().send(MessageKind::history, std::string(text_));
    Outcome outcome;
    outcome.succeeded = guarded([this] {
        constexpr unsigned kMaxRuns = 100;
        const DepthScope depth(interpreter_.runDepth_, kMaxRuns);
        return parse() && runStatements();
    });
    if (outcome.succeeded) {
        if (options_.echo)
            showResult();
        outcome.value = std::move(value_);
    }
    return outcome;
}

bool ScriptRun::parse()
{
    const SyntaxError error = parseScript(text_, script_);
    if (error && options_.file.empty())
        session_.output().error(toText(error));
    else if (error)
        session_.output().error("file: " + options_.file + " " + toText(error));
    return !error;
}

bool ScriptRun::runStatements()
{
    const SuspendScope suspension(session_.undo(), !options_.undo);
    std::optional<ChunkScope> chunk;
    if (options_.undo && options_.oneItem)
        chunk.emplace(session_.undo(), itemName(text_));
    for (const Statement &statement : script_.statements) {
        if (!runStatement(statement))
            return false;
        if (interpreter_.quitRequested)
            break;
    }
    return true;
}

bool ScriptRun::runStatement(const Statement &statement)
{
    line_ = statement.line;
    std::optional<ChunkScope> chunk;
    if (options_.undo && !options_.oneItem)
        chunk.emplace(session_.undo(), itemName(statement.text));
    return guarded([&] {
        value_ = interpreter_.call(context_, statement);
        return true;
    });
}

template <typename Work>
bool ScriptRun::guarded(Work work)
{
    try {
        return work();
    } catch (const std::bad_alloc &) {
        showError("Out of memory.");
    } catch (const std::exception &error) {
        showError(error.what());
    }
    return false;
}

void ScriptRun::showError(const std::string &text)
{
    if (text.empty()) // has been shown by whoever failed
        return;
    const std::string place = "line " + std::to_string(line_) + ": ";
    const std::string file = options_.file.empty() ? "" : "file: " + options_.file + " ";
    session_.output().error(file + place + text);
}

void ScriptRun::showResult()
{
    if (!std::visit(IsShown{}, value_))
        return;
    const std::string text = toText(value_);
    if (options_.resultPrefix)
        session_.output().send(MessageKind::result, text);
    else
        session_.output().send(MessageKind::display, "// " + text + " // ");
}

} // namespace host::mel
