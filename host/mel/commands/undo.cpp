// SPDX-License-Identifier: Apache-2.0
// undo, redo, undoInfo, flushUndo.
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

// A script that says "setAttr ...; undo;" means the setAttr: what was recorded so far becomes an
// item, and the rest of the script another one.
class ClosedChunks
{
public:
    explicit ClosedChunks(UndoQueue &queue) : queue_(queue)
    {
        for (; queue_.isRecording(); ++count_)
            queue_.closeChunk();
    }
    ~ClosedChunks()
    {
        for (; count_ > 0; --count_)
            queue_.openChunk(name_);
    }
    ClosedChunks(const ClosedChunks &) = delete;
    ClosedChunks &operator=(const ClosedChunks &) = delete;

private:
    UndoQueue &queue_;
    std::string name_ = queue_.undoName();
    unsigned count_ = 0;
};

MelValue undo(Context &context, const Arguments &)
{
    const ClosedChunks chunks(context.session.undo());
    if (!context.session.undoOnce())
        throw Error(""); // has been shown
    return MelValue();
}

MelValue redo(Context &context, const Arguments &)
{
    const ClosedChunks chunks(context.session.undo());
    if (!context.session.redoOnce())
        throw Error("");
    return MelValue();
}

// Chunks that scripts have opened by hand and not closed yet.
struct ManualChunks {
    unsigned open = 0;
};

struct Question {
    Flag flag;
    MelValue (*answer)(const UndoQueue &queue);
};

MelValue yesOrNo(bool value)
{
    return static_cast<long long>(value);
}

const Question kQuestions[] = {
    {{"st", "state", "b"},
     [](const UndoQueue &queue) { return yesOrNo(queue.isOn() && !queue.isSuspended()); }},
    {{"swf", "stateWithoutFlush", "b"},
     [](const UndoQueue &queue) { return yesOrNo(queue.isOn() && !queue.isSuspended()); }},
    {{"in", "infinity", "b"}, [](const UndoQueue &queue) { return yesOrNo(queue.length() == 0); }},
    {{"l", "length", "i"},
     [](const UndoQueue &queue) -> MelValue { return static_cast<long long>(queue.length()); }},
    {{"un", "undoName"}, [](const UndoQueue &queue) -> MelValue { return queue.undoName(); }},
    {{"rn", "redoName"}, [](const UndoQueue &queue) -> MelValue { return queue.redoName(); }},
    {{"uqe", "undoQueueEmpty"},
     [](const UndoQueue &queue) { return yesOrNo(queue.undoCount() == 0); }},
    {{"rqe", "redoQueueEmpty"},
     [](const UndoQueue &queue) { return yesOrNo(queue.redoCount() == 0); }},
};

MelValue query(const UndoQueue &queue, const Arguments &arguments)
{
    for (const Question &question : kQuestions) {
        if (arguments.has(question.flag.longName))
            return question.answer(queue);
    }
    return static_cast<long long>(queue.undoCount());
}

constexpr std::size_t kDefaultLength = 50;

void setLength(UndoQueue &queue, const Arguments &arguments)
{
    if (arguments.has("infinity"))
        queue.setLength(arguments.boolean("infinity", true) ? 0 : kDefaultLength);
    if (arguments.has("length"))
        queue.setLength(std::size_t(std::max(0LL, arguments.integer("length", 0))));
}

MelValue undoInfo(Context &context, const Arguments &arguments, ManualChunks &chunks)
{
    UndoQueue &queue = context.session.undo();
    if (arguments.isQuery())
        return query(queue, arguments);
    if (arguments.has("openChunk")) {
        queue.openChunk(arguments.string("chunkName", "chunk"));
        ++chunks.open;
    }
    if (arguments.has("closeChunk")) {
        if (chunks.open == 0)
            throw Error("undoInfo: There is no open chunk to close.");
        queue.closeChunk();
        --chunks.open;
    }
    if (arguments.has("stateWithoutFlush"))
        queue.setOn(arguments.boolean("stateWithoutFlush", true), false);
    if (arguments.has("state"))
        queue.setOn(arguments.boolean("state", true));
    setLength(queue, arguments);
    return MelValue();
}

MelValue flushUndo(Context &context, const Arguments &)
{
    context.session.undo().flush();
    return MelValue();
}

} // namespace

void addUndoCommands(CommandTable &table)
{
    table.add({"undo", {}, undo, {0, 0}});
    table.add({"redo", {}, redo, {0, 0}});
    table.add({"flushUndo", {}, flushUndo, {0, 0}});
    const auto chunks = std::make_shared<ManualChunks>();
    Command info{"undoInfo",
                 {{"ock", "openChunk"}, {"cck", "closeChunk"}, {"cn", "chunkName", "s"}},
                 [chunks](Context &context, const Arguments &arguments) {
                     return undoInfo(context, arguments, *chunks);
                 },
                 {0, 0},
                 Modes::create | Modes::query};
    for (const Question &question : kQuestions)
        info.flags.push_back(question.flag);
    table.add(std::move(info));
}

} // namespace host::mel
