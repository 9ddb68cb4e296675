// SPDX-License-Identifier: Apache-2.0
#include "scene/undoQueue.h"

#include <algorithm>

namespace host
{

void UndoQueue::setOn(bool on, bool flushToo)
{
    isOn_ = on;
    if (!on && flushToo)
        flush();
}

bool UndoQueue::isRecording() const
{
    return isOn_ && openChunks_ > 0 && suspended_ == 0 && !isUndoing_ && !isRedoing_;
}

void UndoQueue::recordChange(Change change)
{
    record({[undo = std::move(change.undo)] {
                undo();
                return true;
            },
            [redo = std::move(change.redo)] {
                redo();
                return true;
            }});
}

void UndoQueue::openChunk(const std::string &name)
{
    if (openChunks_++ == 0) {
        open_.name = name;
        open_.steps.clear();
    }
}

void UndoQueue::closeChunk()
{
    if (openChunks_ == 0 || --openChunks_ > 0 || open_.steps.empty())
        return;
    done_.push_back(std::move(open_));
    open_ = Chunk();
    if (length_ > 0 && done_.size() > length_)
        done_.pop_front();
}

void UndoQueue::record(UndoStep step)
{
    recordAt(open_.steps.size(), std::move(step));
}

void UndoQueue::recordAt(std::size_t place, UndoStep step)
{
    if (!isRecording())
        return;
    undone_.clear();
    // A flush may have taken the steps before the place.
    const std::size_t offset = std::min(place, open_.steps.size());
    open_.steps.insert(open_.steps.begin() + std::ptrdiff_t(offset), std::move(step));
}

void UndoQueue::rollback(std::size_t steps)
{
    isUndoing_ = true;
    while (open_.steps.size() > steps) {
        open_.steps.back().undo();
        open_.steps.pop_back();
    }
    isUndoing_ = false;
}

UndoQueue::Outcome UndoQueue::undo()
{
    if (done_.empty())
        return Outcome::nothingLeft;
    Chunk chunk = std::move(done_.back());
    done_.pop_back();
    isUndoing_ = true;
    bool succeeded = true;
    for (auto step = chunk.steps.rbegin(); succeeded && step != chunk.steps.rend(); ++step)
        succeeded = step->undo();
    isUndoing_ = false;
    if (!succeeded) {
        flush();
        return Outcome::failed;
    }
    undone_.push_back(std::move(chunk));
    return Outcome::done;
}

UndoQueue::Outcome UndoQueue::redo()
{
    if (undone_.empty())
        return Outcome::nothingLeft;
    Chunk chunk = std::move(undone_.back());
    undone_.pop_back();
    isRedoing_ = true;
    bool succeeded = true;
    for (auto step = chunk.steps.begin(); succeeded && step != chunk.steps.end(); ++step)
        succeeded = step->redo();
    isRedoing_ = false;
    if (!succeeded) {
        flush();
        return Outcome::failed;
    }
    done_.push_back(std::move(chunk));
    return Outcome::done;
}

void UndoQueue::flush()
{
    done_.clear();
    undone_.clear();
    open_.steps.clear(); // of a scene or plug-in that is about to go, like the others
}

void UndoQueue::setLength(std::size_t length)
{
    length_ = length;
    while (length_ > 0 && done_.size() > length_)
        done_.pop_front();
}

} // namespace host
