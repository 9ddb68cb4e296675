// SPDX-License-Identifier: Apache-2.0
#include "commands/maximumSwitch.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MPlug.h>

namespace
{

MPlug maximumSwitchOf(const editedShape &shape)
{
    return MFnDependencyNode(shape.skinCluster.object()).findPlug("maintainMaxInfluences", true);
}

} // namespace

void noteMaximumSwitches(preparedEdit &edit)
{
    for (int i = 0; i < edit.shapes.size(); ++i) {
        bool isOn = true;
        maximumSwitchOf(edit.shapes.at(i)).getValue(isOn);
        edit.shapes[i].switchesMaximumOn = !isOn;
    }
}

void switchMaximumsBack(const preparedEdit &edit)
{
    for (int i = 0; i < edit.shapes.size(); ++i) {
        if (edit.shapes.at(i).switchesMaximumOn)
            maximumSwitchOf(edit.shapes.at(i)).setBool(false);
    }
}
