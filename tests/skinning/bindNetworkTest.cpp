// SPDX-License-Identifier: Apache-2.0
#include <maya/MGlobal.h>
#include <maya/MStringArray.h>

#include "support/componentTags.h"
#include "support/sceneFile.h"

namespace
{

class bindNetwork : public SceneFileTest
{
protected:
    void makeBodyAndJoints(const std::string &history)
    {
        mel("polyCube -h 2 -sy 2 -n body" + history +
            "; select -cl; group -em -n rig;"
            "joint -p 0 -1 0 -n hip; joint -p 0 1 0 -n knee; select -cl");
    }

    // What goes into a node: "source -> plug" by line, shapes' shading left out.
    static std::string inputs(const std::string &node)
    {
        MStringArray plugs;
        MGlobal::executeCommand(("listConnections -s 1 -d 0 -p 1 -c 1 " + node).c_str(), plugs);
        std::string text;
        for (unsigned i = 0; i + 1 < plugs.length(); i += 2)
            text += std::string(plugs[i + 1].asChar()) + " -> " + plugs[i].asChar() + "\n";
        return text;
    }
};

} // namespace

TEST_F(bindNetwork, isWhatMayaBuilds)
{
    makeBodyAndJoints("");
    EXPECT_EQ(melStrings("skinCluster -tsb hip knee body"), "skinCluster1");
    const struct {
        const char *node, *inputs;
    } cases[] = {
        {"bodyShape", "skinCluster1GroupId.groupId -> bodyShape.instObjGroups[0].objectGroups[0]."
                      "objectGroupId\n"
                      "groupId2.groupId -> bodyShape.instObjGroups[0].objectGroups[1]."
                      "objectGroupId\n"
                      "skinCluster1Set.memberWireframeColor -> bodyShape.instObjGroups[0]."
                      "objectGroups[0].objectGrpColor\n"
                      "tweakSet1.memberWireframeColor -> bodyShape.instObjGroups[0]."
                      "objectGroups[1].objectGrpColor\n"
                      "tweak1.vlist[0].vertex[0] -> bodyShape.tweakLocation\n"
                      "skinCluster1.outputGeometry[0] -> bodyShape.inMesh\n"},
        {"bodyShapeOrig", "polyCube1.output -> bodyShapeOrig.inMesh\n"},
        {"skinCluster1", "skinCluster1GroupParts.outputGeometry -> "
                         "skinCluster1.input[0].inputGeometry\n"
                         "skinCluster1GroupId.groupId -> skinCluster1.input[0].groupId\n"
                         "hip.worldMatrix[0] -> skinCluster1.matrix[0]\n"
                         "knee.worldMatrix[0] -> skinCluster1.matrix[1]\n"
                         "hip.lockInfluenceWeights -> skinCluster1.lockWeights[0]\n"
                         "knee.lockInfluenceWeights -> skinCluster1.lockWeights[1]\n"
                         "bindPose1.message -> skinCluster1.bindPose\n"
                         "hip.objectColorRGB -> skinCluster1.influenceColor[0]\n"
                         "knee.objectColorRGB -> skinCluster1.influenceColor[1]\n"},
        {"skinCluster1GroupParts", "tweak1.outputGeometry[0] -> "
                                   "skinCluster1GroupParts.inputGeometry\n"
                                   "skinCluster1GroupId.groupId -> "
                                   "skinCluster1GroupParts.groupId\n"},
        {"skinCluster1Set", "bodyShape.instObjGroups[0].objectGroups[0] -> "
                            "skinCluster1Set.dagSetMembers[0]\n"
                            "skinCluster1GroupId.message -> skinCluster1Set.groupNodes[0]\n"
                            "skinCluster1.message -> skinCluster1Set.usedBy[0]\n"},
        {"tweak1", "groupParts2.outputGeometry -> tweak1.input[0].inputGeometry\n"
                   "groupId2.groupId -> tweak1.input[0].groupId\n"},
        {"groupParts2", "bodyShapeOrig.worldMesh[0] -> groupParts2.inputGeometry\n"
                        "groupId2.groupId -> groupParts2.groupId\n"},
        {"tweakSet1", "bodyShape.instObjGroups[0].objectGroups[1] -> tweakSet1.dagSetMembers[0]\n"
                      "groupId2.message -> tweakSet1.groupNodes[0]\n"
                      "tweak1.message -> tweakSet1.usedBy[0]\n"},
        {"bindPose1", "rig.message -> bindPose1.members[0]\n"
                      "hip.message -> bindPose1.members[1]\n"
                      "knee.message -> bindPose1.members[2]\n"
                      "bindPose1.world -> bindPose1.parents[0]\n"
                      "bindPose1.members[0] -> bindPose1.parents[1]\n"
                      "bindPose1.members[1] -> bindPose1.parents[2]\n"
                      "hip.bindPose -> bindPose1.worldMatrix[1]\n"
                      "knee.bindPose -> bindPose1.worldMatrix[2]\n"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(inputs(c.node), c.inputs);
    EXPECT_EQ(melString("getAttr bodyShapeOrig.intermediateObject"), "1");
    EXPECT_EQ(melStrings("ls -type mesh -ni"), "bodyShape");
    EXPECT_EQ(melNumbers("getAttr skinCluster1.bindPreMatrix[1]")[13], -1.0);
    EXPECT_NE(savedText().find("setAttr \".xm[2]\" -type \"matrix\" \"xform\" 1 1 1 0 0 0 0 0 2 0"),
              std::string::npos);
}

TEST_F(bindNetwork, comesAndGoesWithUndoAndUnbind)
{
    for (const char *history : {"", " -ch 0"}) {
        SCOPED_TRACE(history);
        mel("file -f -new");
        makeBodyAndJoints(history);
        const std::string before = savedText();
        mel("skinCluster -tsb -mi 2 hip knee body; skinPercent -tv hip 0.25 skinCluster1 "
            "body.vtx[0]");
        const std::string bound = savedText();
        mel("undo");
        EXPECT_EQ(savedText(), before);
        mel("redo");
        EXPECT_EQ(savedText(), bound);

        mel("skinCluster -e -ub body");
        EXPECT_EQ(melStrings("ls -type geometryFilter -type dagPose -type groupId -type groupParts "
                             "-type mesh"),
                  "bodyShape");
        EXPECT_EQ(inputs("bodyShape"), *history ? "" : "polyCube1.output -> bodyShape.inMesh\n");
        mel("undo");
        EXPECT_EQ(savedText(), bound);
    }
}

// As scenes of today come: neither a set nor a tweak.
TEST_F(bindNetwork, isTakenApartWithoutADeformerSet)
{
    for (const char *history : {"", " -ch 0"}) {
        SCOPED_TRACE(history);
        mel("file -f -new");
        makeBodyAndJoints(history);
        mel("skinCluster -tsb -n bodySkin hip knee body");
        removeDeformerSet("body");
        mel("delete tweak1 tweakSet1 groupId2 groupParts2; skinCluster -e -ub bodySkin");
        EXPECT_EQ(melStrings("ls -type mesh"), "bodyShape");
        EXPECT_EQ(inputs("bodyShape"), *history ? "" : "polyCube1.output -> bodyShape.inMesh\n");
        mel("skinCluster -tsb hip knee body");
        EXPECT_EQ(melStrings("ls -type mesh"), "bodyShape bodyShapeOrig");
    }
}

TEST_F(bindNetwork, sharesTheBindPoseOfASkeleton)
{
    makeBodyAndJoints("");
    mel("polyCube -n coat; select -cl; skinCluster -tsb hip body; skinCluster hip coat");
    EXPECT_EQ(melStrings("ls -type dagPose"), "bindPose1");
    EXPECT_EQ(melStrings("skinCluster -q -inf coat"), "hip knee");
    EXPECT_EQ(inputs("bindPose1").find("knee.message -> bindPose1.members[2]") != std::string::npos,
              true);
    mel("skinCluster -e -ub body");
    EXPECT_EQ(melStrings("ls -type dagPose"), "bindPose1");
    mel("skinCluster -e -ub coat");
    EXPECT_EQ(melStrings("ls -type dagPose"), "");
}

// Joints that have left their pose keep it for the first mesh; the second one gets its own.
TEST_F(bindNetwork, keepsAnotherBindPoseOnRequest)
{
    makeBodyAndJoints("");
    mel("polyCube -n coat; polyCube -n hat; select -cl; skinCluster hip body;"
        "skinCluster -ibp hip coat");
    EXPECT_EQ(melStrings("ls -type dagPose"), "bindPose1");
    mel("setAttr knee.tx 5; skinCluster -ibp hip hat");
    EXPECT_EQ(inputs("skinCluster3").find("bindPose2.message -> skinCluster3.bindPose") !=
                  std::string::npos,
              true);
    EXPECT_EQ(melNumbers("getAttr bindPose1.worldMatrix[2]")[12], 0.0);
    EXPECT_EQ(melNumbers("getAttr bindPose2.worldMatrix[2]")[12], 5.0);
    EXPECT_EQ(melNumbers("getAttr skinCluster3.bindPreMatrix[1]")[12], -5.0);
}

// A deformer that is there already stays in front; no second intermediate shape is made.
TEST_F(bindNetwork, continuesAChainOfDeformers)
{
    makeBodyAndJoints("");
    mel("skinCluster -tsb -n first hip body; createNode -ss blendShape -n morph;"
        "connectAttr first.outputGeometry[0] morph.input[0].inputGeometry;"
        "connectAttr -f morph.outputGeometry[0] bodyShape.inMesh;"
        "polyCube -n other; select -cl");
    EXPECT_EQ(melError("skinCluster -tsb knee body"),
              "bodyShape is already connected to a skinCluster.");
    EXPECT_EQ(melStrings("ls -type mesh body*"), "bodyShape bodyShapeOrig");
    mel("skinCluster -e -ub first");
    EXPECT_EQ(inputs("morph"), "tweak1.outputGeometry[0] -> morph.input[0].inputGeometry\n");
    mel("skinCluster -tsb -n second knee body");
    EXPECT_EQ(inputs("secondGroupParts"),
              "morph.outputGeometry[0] -> secondGroupParts.inputGeometry\n"
              "secondGroupId.groupId -> secondGroupParts.groupId\n");
    EXPECT_EQ(melStrings("ls -type mesh body*"), "bodyShape bodyShapeOrig");
}
