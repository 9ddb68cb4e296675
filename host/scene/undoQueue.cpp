// SPDX-License-Identifier: Apache-2.0
#include "scene/undoQueue.h"

#include <algorithm>
#include <iterator>

namespace host
{

namespace
{

// A flag that is up as long as this lives.
class FlagScope
{
public:
    explicit FlagScope(bool &flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~FlagScope() { flag_ = before_; }
    FlagScope(const FlagScope &) = delete;
    FlagScope &operator=(const FlagScope &) = delete;

private:
    bool &flag_;
    bool before_;
};

} // namespace

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

void UndoQueue::openChunk(const std::string &name)
{
    if (openChunks_ == 0) {
        open_.clear();
        open_.push_back({name, {}});
    }
    ++openChunks_;
}

void UndoQueue::closeChunk()
{
    if (openChunks_ == 0 || --openChunks_ > 0)
        return;
    if (openSteps() == 0)
        open_.clear();
    done_.splice(done_.end(), open_);
    setLength(length_);
}

void UndoQueue::record(Change &&step)
{
    recordAt(openSteps(), std::move(step));
}

void UndoQueue::recordAt(std::size_t place, Change &&step)
{
    if (!isRecording())
        return;
    std::vector<Change> &steps = open_.front().steps;
    // A flush may have taken the steps before the place.
    const std::size_t offset = std::min(place, steps.size());
    steps.insert(steps.begin() + std::ptrdiff_t(offset), std::move(step));
    undone_.clear();
}

void UndoQueue::rollback(std::size_t steps)
{
    const FlagScope undoing(isUndoing_);
    while (openSteps() > steps) {
        try {
            open_.front().steps.back().undo();
        } catch (...) {
            // The others are taken back all the same.
        }
        open_.front().steps.pop_back();
    }
}

UndoQueue::Outcome UndoQueue::replay(Chunks &from, Chunks &to, bool &isReplaying,
                                     void (*run)(std::vector<Change> &steps))
{
    if (from.empty())
        return Outcome::nothingLeft;
    // Out of both lists meanwhile: a step may run commands, and these may flush.
    Chunks chunk;
    chunk.splice(chunk.end(), from, std::prev(from.end()));
    try {
        const FlagScope replaying(isReplaying);
        run(chunk.front().steps);
    } catch (...) {
        flush();
        return Outcome::failed;
    }
    to.splice(to.end(), chunk);
    return Outcome::done;
}

UndoQueue::Outcome UndoQueue::undo()
{
    return replay(done_, undone_, isUndoing_, [](std::vector<Change> &steps) {
        for (auto step = steps.rbegin(); step != steps.rend(); ++step)
            step->undo();
    });
}

UndoQueue::Outcome UndoQueue::redo()
{
    return replay(undone_, done_, isRedoing_, [](std::vector<Change> &steps) {
        for (Change &step : steps)
            step.redo();
    });
}

void UndoQueue::flush()
{
    done_.clear();
    undone_.clear();
    if (!open_.empty()) // of a scene or plug-in that is about to go, like the others
        open_.front().steps.clear();
}

void UndoQueue::setLength(std::size_t length)
{
    length_ = length;
    while (length_ > 0 && done_.size() > length_)
        done_.pop_front();
}

} // namespace host
