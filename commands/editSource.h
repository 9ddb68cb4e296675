// SPDX-License-Identifier: Apache-2.0
// What the preparers read: the table as it is, and what its operation has left.
#pragma once

#include "model/editHandOver.h"
#include "model/lockState.h"
#include "model/weightList.h"

struct editSource {
    const weightList &weights;
    const lockState &locks;
    const editHandOver &handOver;
    int maxInfluences;
};

// The joints of the locked columns, as Maya is to hold them.
MDagPathArray lockedJoints(const editSource &source);
