// SPDX-License-Identifier: Apache-2.0
// What holds while a MEL text runs and ends with it, however it ends.
#pragma once

#include "scene/error.h"
#include "scene/undoQueue.h"

namespace host::mel
{

// Counts how deep calls are inside each other. Throws Error where that exceeds the limit, long
// before the stack is full.
class DepthScope
{
public:
    DepthScope(unsigned &depth, unsigned limit) : depth_(depth)
    {
        if (depth >= limit)
            throw Error("Commands call each other too deeply.");
        ++depth_;
    }
    ~DepthScope() { --depth_; }
    DepthScope(const DepthScope &) = delete;
    DepthScope &operator=(const DepthScope &) = delete;

private:
    unsigned &depth_;
};

// Nothing is recorded for undo, if `isSuspended`.
class SuspendScope
{
public:
    SuspendScope(UndoQueue &undo, bool isSuspended) : undo_(isSuspended ? &undo : nullptr)
    {
        if (undo_)
            undo_->suspend();
    }
    ~SuspendScope()
    {
        if (undo_)
            undo_->resume();
    }
    SuspendScope(const SuspendScope &) = delete;
    SuspendScope &operator=(const SuspendScope &) = delete;

private:
    UndoQueue *undo_;
};

// What is recorded becomes one item of the undo queue, or part of the one that is open already.
class ChunkScope
{
public:
    ChunkScope(UndoQueue &undo, const std::string &name) : undo_(undo) { undo_.openChunk(name); }
    ~ChunkScope() { undo_.closeChunk(); }
    ChunkScope(const ChunkScope &) = delete;
    ChunkScope &operator=(const ChunkScope &) = delete;

private:
    UndoQueue &undo_;
};

} // namespace host::mel
