// SPDX-License-Identifier: Apache-2.0
// What passes from the scene to the undo queue.
#pragma once

#include <functional>

namespace host
{

// One change that has been made: `undo` takes it back, `redo` makes it again. Either throws when it
// can not, and has then done nothing or as good as nothing.
struct Change {
    std::function<void()> undo;
    std::function<void()> redo;
};

class ChangeRecorder
{
public:
    virtual ~ChangeRecorder() = default;
    // While false, the scene does not even gather what an undo would need.
    virtual bool isRecording() const = 0;
    // Moves from `change`, unless it throws: the caller can still take the change back then.
    virtual void recordChange(Change &&change) = 0;
};

} // namespace host
