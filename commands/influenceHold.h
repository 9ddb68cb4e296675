// SPDX-License-Identifier: Apache-2.0
// Has Maya hold the weights of joints while it lives, so that normalizing moves weight among the
// other influences only.
//
// Deliberate: afterwards each of the joints is not held, whatever it was before. Pinned by the test
// editCells.endsWithTheHeldJointsFree and, for the paint tool, by
// paintSmooth.endsWithLockedJointsFreeInMaya. Nothing of it is on the undo queue; a joint whose
// attribute cannot be set is not held.
#pragma once

#include <maya/MDagPathArray.h>

class influenceHold
{
public:
    // The paths must outlive it.
    explicit influenceHold(const MDagPathArray &joints);
    ~influenceHold();

private:
    influenceHold(const influenceHold &);            // not copied
    influenceHold &operator=(const influenceHold &); // not assigned

    const MDagPathArray &joints_;
};
