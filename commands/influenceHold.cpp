// SPDX-License-Identifier: Apache-2.0
#include "commands/influenceHold.h"

#include <maya/MDagPath.h>
#include <maya/MGlobal.h>
#include <maya/MString.h>

namespace
{

void setHeld(const MDagPathArray &joints, const char *held)
{
    for (unsigned int i = 0; i < joints.length(); ++i) {
        if (joints[i].isValid())
            MGlobal::executeCommand("setAttr " + joints[i].fullPathName() +
                                    ".lockInfluenceWeights " + held);
    }
}

} // namespace

influenceHold::influenceHold(const MDagPathArray &joints) : joints_(joints)
{
    setHeld(joints_, "1");
}

influenceHold::~influenceHold()
{
    setHeld(joints_, "0");
}
