// SPDX-License-Identifier: Apache-2.0
// Meshes bound as Maya does it since component tags have replaced deformer sets.
#pragma once

#include <gtest/gtest.h>

#include <maya/MGlobal.h>

// Takes the set away by which MESHSkin deforms a mesh; what it moves are all of the vertices, now
// by the connections of the geometry alone.
inline void removeDeformerSet(const MString &mesh)
{
    const MString skin = mesh + "Skin";
    EXPECT_TRUE(MGlobal::executeCommand(
        "connectAttr -f " + mesh + "ShapeOrig.worldMesh[0] " + skin +
        ".input[0].inputGeometry; connectAttr " + mesh + "ShapeOrig.outMesh " + skin +
        ".originalGeometry[0]; delete " + skin + "Set " + skin + "GroupId " + skin + "GroupParts"));
}
