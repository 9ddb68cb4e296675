// SPDX-License-Identifier: Apache-2.0
#include "commands/toolHold.h"

#include <maya/MGlobal.h>

toolHold::toolHold() : context_(MGlobal::executeCommandStringResult("currentCtx"))
{
    MGlobal::executeCommand("selectType -q -ocm -alc", areComponentsPickable_);
    MGlobal::executeCommand("selectType -q -ocm -vertex", areVerticesPickable_);
}

toolHold::~toolHold()
{
    if (context_ != "artAttrSkinContext")
        MGlobal::executeCommand("setToolTo " + context_ + ";\n");
    MString pickable("selectType -ocm -alc ");
    pickable += areComponentsPickable_;
    pickable += ";\nselectType -ocm -vertex ";
    pickable += areVerticesPickable_;
    pickable += ";\n";
    MGlobal::executeCommand(pickable);
}
