// SPDX-License-Identifier: Apache-2.0
// Maya's own lock of an influence, an attribute of the joint. Read and set by MEL, on Maya's undo
// queue.
#pragma once

#include <maya/MString.h>

// `joint` is a name or a path that Maya finds. False also for what has no such attribute; Maya then
// shows an error.
bool isInfluenceLocked(const MString &joint);
void setInfluenceLocked(const MString &joint, bool isLocked);
