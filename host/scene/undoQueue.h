// SPDX-License-Identifier: Apache-2.0
// Maya's undo queue: chunks of steps, each taken back in reverse order.
//
// A step is a recorded change of the scene or of the selection, or a plug-in command. What runs
// between openChunk and closeChunk is one item; chunks nest, the outermost one counts.
#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <utility>
#include <vector>

#include "scene/change.h"

namespace host
{

class UndoQueue : public ChangeRecorder
{
public:
    bool isOn() const { return isOn_; }
    // Switching off flushes unless `flush` is false.
    void setOn(bool on, bool flush = true);
    // True while a step would be kept: on, a chunk open, not suspended, not undoing.
    bool isRecording() const override;
    void recordChange(Change &&change) override { record(std::move(change)); }
    // Nothing is recorded while suspended; calls nest (executeCommand without undo).
    void suspend() { ++suspended_; }
    void resume() { --suspended_; }
    bool isSuspended() const { return suspended_ > 0; }

    void openChunk(const std::string &name);
    // Drops the chunk if nothing was recorded in it.
    void closeChunk();
    // Inside a chunk only; clears the redo side.
    void record(Change &&step);
    // The same, in front of the steps that were recorded after the first `place` ones: a command's
    // own step goes before those of the commands that it ran, and is thus undone after them.
    void recordAt(std::size_t place, Change &&step);
    // How many steps the open chunk holds; rollback(n) undoes and drops those after the first n.
    std::size_t openSteps() const { return open_.empty() ? 0 : open_.front().steps.size(); }
    void rollback(std::size_t steps);

    enum class Outcome { done, nothingLeft, failed };
    // A step that throws empties the queue.
    Outcome undo();
    Outcome redo();
    bool isUndoing() const { return isUndoing_; }
    bool isRedoing() const { return isRedoing_; }

    void flush();
    std::string undoName() const { return done_.empty() ? std::string() : done_.back().name; }
    std::string redoName() const { return undone_.empty() ? std::string() : undone_.back().name; }
    std::size_t undoCount() const { return done_.size(); }
    std::size_t redoCount() const { return undone_.size(); }
    // Items kept at most; 0 for any number.
    void setLength(std::size_t length);
    std::size_t length() const { return length_; }

private:
    struct Chunk {
        std::string name;
        std::vector<Change> steps;
    };
    // Lists: chunks pass between them without a call for memory.
    using Chunks = std::list<Chunk>;
    Outcome replay(Chunks &from, Chunks &to, bool &isReplaying,
                   void (*run)(std::vector<Change> &steps));

    bool isOn_ = true;
    bool isUndoing_ = false;
    bool isRedoing_ = false;
    int suspended_ = 0;
    int openChunks_ = 0;
    std::size_t length_ = 0;
    Chunks open_; // one, or none
    Chunks done_;
    Chunks undone_;
};

} // namespace host
