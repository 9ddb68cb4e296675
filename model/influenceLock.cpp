// SPDX-License-Identifier: Apache-2.0
#include "model/influenceLock.h"

#include <maya/MGlobal.h>

namespace
{

const char kLockAttribute[] = ".lockInfluenceWeights";

} // namespace

bool isInfluenceLocked(const MString &joint)
{
    int value = 0;
    MGlobal::executeCommand(MString("getAttr ") + joint + kLockAttribute, value, false, true);
    return value == 1;
}

void setInfluenceLocked(const MString &joint, bool isLocked)
{
    MGlobal::executeCommand(MString("setAttr ") + joint + kLockAttribute + (isLocked ? " 1" : " 0"),
                            false, true);
}
