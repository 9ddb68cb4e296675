// SPDX-License-Identifier: Apache-2.0
// Plugs, nodes and paths, also of things that are gone.
#include <maya/MColor.h>
#include <maya/MFnDagNode.h>
#include <maya/MGlobal.h>
#include <maya/MObjectHandle.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

#include "api/boundBody.h"

using plug = BoundBody;
using dagPath = BoundBody;
using deletedNode = BoundBody;

TEST_F(plug, isNullForAnUnknownName)
{
    MStatus status;
    const MPlug none = skin_.findPlug("nothing", false, &status);
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    EXPECT_TRUE(!none);
    EXPECT_EQ(none.asInt(), 0);
    double untouched = 4.0;
    EXPECT_FALSE(none.getValue(untouched));
    EXPECT_EQ(untouched, 4.0);
}

TEST_F(plug, convertsNumbers)
{
    MPlug scale = MFnDependencyNode(node("joint1")).findPlug("sx", true);
    EXPECT_TRUE(scale.setValue(2.75));
    EXPECT_EQ(scale.asInt(), 2);
    EXPECT_TRUE(scale.asBool());
    EXPECT_EQ(scale.asFloat(), 2.75f);
    EXPECT_TRUE(scale.asString() == "");
    EXPECT_FALSE(scale.setString("3"));
    EXPECT_EQ(melNumbers("getAttr joint1.sx"), std::vector<double>{2.75});
}

TEST_F(plug, refusesToWriteWhatIsLockedOrConnected)
{
    MPlug lock = skin_.findPlug("lockWeights", false).elementByLogicalIndex(0);
    takeErrors();
    EXPECT_FALSE(lock.setBool(true));
    EXPECT_NE(takeErrors().find("skinCluster1.lockWeights[0]"), std::string::npos);
    MPlug translate = MFnDependencyNode(node("joint2")).findPlug("tx", false);
    EXPECT_TRUE(translate.setLocked(true));
    EXPECT_TRUE(translate.isLocked());
    EXPECT_FALSE(translate.setDouble(5.0));
    EXPECT_NE(translate.asDouble(), 5.0);
}

TEST_F(plug, makesElementsThatAreReadAndListsThemInOrder)
{
    MPlug dropoff = skin_.findPlug("dropoff", false);
    const unsigned int before = dropoff.numElements();
    EXPECT_EQ(dropoff.elementByLogicalIndex(40).asDouble(), 4.0) << "the default";
    dropoff.elementByLogicalIndex(30);
    EXPECT_EQ(dropoff.numElements(), before + 2);
    EXPECT_EQ(dropoff[before].logicalIndex(), 30u);
    EXPECT_EQ(dropoff[before + 1].logicalIndex(), 40u);
    MStatus status;
    EXPECT_TRUE(dropoff.elementByPhysicalIndex(before + 2, &status).isNull());
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    EXPECT_FALSE(dropoff.isElement());
    EXPECT_TRUE(dropoff[before].array() == dropoff);
}

TEST_F(plug, seesWeightsAsAMulti)
{
    const MPlug list = skin_.findPlug("weightList", true);
    EXPECT_EQ(list.numElements(), 20u);
    MPlug row = list[3].child(0);
    EXPECT_TRUE(row.elementByLogicalIndex(1).setDouble(0.125));
    EXPECT_EQ(melNumbers("getAttr skinCluster1.wl[3].w[1]"), std::vector<double>{0.125});
    EXPECT_TRUE(row.elementByLogicalIndex(1).partialName() == "wl[3].w[1]");
}

TEST_F(plug, writesAreNotUndone)
{
    const std::string before = melString("undoInfo -q");
    MFnDependencyNode(node("joint1")).findPlug("sx", false).setDouble(3.0);
    EXPECT_EQ(melString("undoInfo -q"), before);
}

// From the shape through its sets to the skin cluster, as plug-ins of the deformer-set era walk.
TEST_F(plug, leadsFromTheShapeToItsSkinCluster)
{
    const MPlug groups =
        MFnDependencyNode(node("bodyShape")).findPlug("instObjGroups", true)[0].child(0);
    std::string found;
    for (unsigned int i = 0; i < groups.numElements(); ++i) {
        MPlugArray sets;
        const bool isConnected = groups[i].child(2).connectedTo(sets, true, false);
        ASSERT_EQ(isConnected, sets.length() == 1);
        if (sets.length() == 0 || sets[0].node().apiType() != MFn::kSet)
            continue;
        const MPlug usedBy = MFnDependencyNode(sets[0].node()).findPlug("usedBy", true);
        MPlugArray users;
        EXPECT_EQ(usedBy.numElements(), 1u);
        usedBy[0].connectedTo(users, true, false);
        if (users[0].node().hasFn(MFn::kSkinClusterFilter))
            found += MFnDependencyNode(users[0].node()).name().asChar();
    }
    EXPECT_EQ(found, "skinCluster1");
    MObject shape = node("bodyShape");
    EXPECT_EQ(skin_.findPlug("outputGeometry", true).numElements(), 1u) << "connected, not stored";
}

TEST_F(dagPath, extendsToTheFirstShape)
{
    MDagPath body = path("body");
    EXPECT_TRUE(body.hasFn(MFn::kTransform));
    unsigned int shapes = 0;
    EXPECT_TRUE(body.numberOfShapesDirectlyBelow(shapes));
    EXPECT_EQ(shapes, 2u) << "the intermediate one counts";
    EXPECT_TRUE(body.extendToShape());
    EXPECT_TRUE(body.fullPathName() == "|body|bodyShape");
    EXPECT_TRUE(body.extendToShape()) << "it ends in a shape already";
    EXPECT_TRUE(body.pop());
    EXPECT_FALSE(body.extendToShapeDirectlyBelow(2));
    EXPECT_FALSE(path("joint3").extendToShape());
    MDagPath joint = path("joint3");
    EXPECT_TRUE(joint.hasFn(MFn::kTransform));
    EXPECT_EQ(joint.apiType(), MFn::kJoint);
    EXPECT_EQ(joint.length(), 3u);
}

TEST_F(dagPath, tellsInstancesApart)
{
    mel("group -em -n other; parent -add -s bodyShape other");
    MFnDagNode shape(node("bodyShape"));
    EXPECT_EQ(shape.instanceCount(false), 2u);
    EXPECT_FALSE(shape.dagPath().isValid()) << "made from an object: no path is meant";
    MDagPath second = path("|other|bodyShape");
    EXPECT_EQ(second.instanceNumber(), 1u);
    EXPECT_FALSE(second == shape_);
    EXPECT_TRUE(MFnDagNode(second).fullPathName() == "|other|bodyShape");
    EXPECT_TRUE(second.node() == shape_.node());
}

TEST_F(dagPath, coloursHilitedJoints)
{
    MFnDagNode joint(node("joint2"));
    const MColor before = joint.dormantColor();
    MSelectionList list;
    list.add("joint2");
    MGlobal::setHiliteList(list);
    EXPECT_TRUE(joint.dormantColor() != before);
    mel("hilite -u joint2; setAttr joint2.useObjectColor 1; setAttr joint2.objectColor 4");
    const MColor four = joint.dormantColor();
    mel("setAttr joint2.objectColor 5");
    EXPECT_TRUE(joint.dormantColor() != four);
}

TEST_F(deletedNode, failsAndComesBackWithUndo)
{
    const MObject joint = node("joint3");
    const MObjectHandle handle(joint);
    const MDagPath jointPath = path("joint3");
    const MPlug translate = MFnDependencyNode(joint).findPlug("ty", false);
    mel("delete joint3");
    EXPECT_FALSE(handle.isValid());
    EXPECT_TRUE(handle.isAlive()) << "undo keeps it";
    EXPECT_FALSE(jointPath.isValid());
    EXPECT_TRUE(translate.isNull());
    EXPECT_TRUE(MFnDependencyNode(joint).name() == "");
    mel("undo");
    EXPECT_TRUE(handle.isValid());
    EXPECT_TRUE(jointPath.fullPathName() == "|joint1|joint2|joint3");
    EXPECT_EQ(translate.asDouble(), 2.0);
}

TEST_F(deletedNode, isSafeToAskAfterItsSceneIsGone)
{
    const MObject joint = node("joint3");
    const MObjectHandle handle(joint);
    const MPlug weight = skin_.findPlug("weightList", false)[0].child(0)[0];
    mel("file -f -new");
    EXPECT_FALSE(handle.isValid());
    EXPECT_EQ(joint.apiType(), MFn::kJoint);
    EXPECT_TRUE(weight.isNull());
    EXPECT_EQ(weight.asDouble(), 0.0);
    MDagPathArray paths;
    MStatus status;
    EXPECT_EQ(skin_.influenceObjects(paths, &status), 0u);
    EXPECT_FALSE(status);
    EXPECT_TRUE(shape_.node().isNull());
}
