// SPDX-License-Identifier: Apache-2.0
// Walking over meshes and along the graph.
#include <maya/MDoubleArray.h>
#include <maya/MFnMesh.h>
#include <maya/MFnSet.h>
#include <maya/MIntArray.h>
#include <maya/MItDependencyGraph.h>
#include <maya/MItGeometry.h>
#include <maya/MItMeshVertex.h>
#include <maya/MObjectArray.h>
#include <maya/MPlug.h>
#include <maya/MPointArray.h>
#include <maya/MStringArray.h>

#include "api/boundBody.h"

namespace
{

class geometry : public BoundBody
{
protected:
    // Numbers of the vertices that belong to a component: "0 1 2 3".
    static std::string verticesIn(const char *name)
    {
        MSelectionList list;
        list.add(name);
        MDagPath path;
        MObject component;
        list.getDagPath(0, path, component);
        std::string text;
        for (MItMeshVertex it(path, component); !it.isDone(); it.next())
            text += (text.empty() ? "" : " ") + std::to_string(it.index());
        return text;
    }

    // Names of the nodes upstream of the shape's inMesh.
    static std::string upstream(MFn::Type filter, MItDependencyGraph::Traversal traversal)
    {
        MPlug inMesh = MFnDependencyNode(node("bodyShape")).findPlug("inMesh", true);
        std::string names;
        for (MItDependencyGraph it(inMesh, filter, MItDependencyGraph::kUpstream, traversal,
                                   MItDependencyGraph::kNodeLevel);
             !it.isDone(); it.next())
            names += (names.empty() ? "" : " ") +
                     std::string(MFnDependencyNode(it.currentItem()).name().asChar());
        return names;
    }
};

} // namespace

TEST_F(geometry, listsTheVerticesOfComponents)
{
    EXPECT_EQ(verticesIn("body.vtx[4:6]"), "4 5 6");
    EXPECT_EQ(verticesIn("body.f[0]"), "0 1 2 3");
    EXPECT_EQ(verticesIn("body.e[0]"), "0 1");
    MItMeshVertex all(shape_);
    EXPECT_EQ(all.count(), 20);
    MIntArray neighbours;
    EXPECT_TRUE(all.getConnectedVertices(neighbours));
    EXPECT_EQ(neighbours.length(), 3u) << "a corner";
    int previous = -1;
    EXPECT_TRUE(all.setIndex(7, previous));
    EXPECT_EQ(all.index(), 7);
    EXPECT_EQ(previous, 0);
    EXPECT_FALSE(all.setIndex(20, previous));
    MStatus status;
    MItMeshVertex onTransform(path("body"), MObject::kNullObj, &status);
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    EXPECT_TRUE(onTransform.isDone());
    MObject two = vertices({3, 1});
    MItGeometry some(shape_, two);
    EXPECT_EQ(some.index(), 1);
    EXPECT_EQ(some.exactCount(), 2);
}

TEST_F(geometry, placesPointsInTheWorld)
{
    mel("setAttr -l 0 body.tx; setAttr body.tx 10");
    MFnMesh mesh(shape_);
    MPointArray points;
    EXPECT_TRUE(mesh.getPoints(points, MSpace::kWorld));
    ASSERT_EQ(points.length(), 20u);
    EXPECT_EQ(points[0].x, 9.0);
    EXPECT_EQ(MItMeshVertex(shape_).position().x, -1.0);
    MFnMesh fromObject(shape_.node());
    EXPECT_FALSE(fromObject.getPoints(points, MSpace::kWorld)) << "which instance is meant?";
    MIntArray counts, corners;
    mesh.getTriangles(counts, corners);
    EXPECT_EQ(counts.length(), 18u);
    EXPECT_EQ(corners.length(), 36u * 3u);
}

TEST_F(geometry, isFollowedUpstreamToTheSkinCluster)
{
    EXPECT_EQ(upstream(MFn::kSkinClusterFilter, MItDependencyGraph::kDepthFirst), "skinCluster1");
    EXPECT_EQ(upstream(MFn::kJoint, MItDependencyGraph::kBreadthFirst), "joint1 joint2 joint3");
    const std::string deep = upstream(MFn::kInvalid, MItDependencyGraph::kDepthFirst);
    EXPECT_EQ(deep.rfind("bodyShape skinCluster1 skinCluster1GroupParts tweak1", 0), 0u) << deep;
    EXPECT_EQ(upstream(MFn::kTweak, MItDependencyGraph::kBreadthFirst), "tweak1");
    MObjectArray shapes;
    EXPECT_TRUE(skin_.getOutputGeometry(shapes));
    ASSERT_EQ(shapes.length(), 1u);
    EXPECT_TRUE(shapes[0] == shape_.node());
    EXPECT_TRUE(skin_.getInputGeometry(shapes));
    EXPECT_TRUE(MFnDependencyNode(shapes[0]).name() == "bodyShapeOrig");
    MFnSet set(skin_.deformerSet());
    EXPECT_TRUE(set.isMember(shape_, vertices({5})));
    MSelectionList members;
    set.getMembers(members, false);
    MStringArray names;
    members.getSelectionStrings(names);
    ASSERT_EQ(names.length(), 1u);
    EXPECT_TRUE(names[0] == "body.vtx[0:19]") << names[0];
}

// One output may feed several shapes; each of them is asked and written like the other.
TEST_F(geometry, showsTheSkinInEveryShapeBehindIt)
{
    mel("createNode mesh -n copyShape; createNode mesh -n farShape; createNode deltaMush -n mush;"
        "connectAttr skinCluster1.og[0] copyShape.inMesh;"
        "connectAttr skinCluster1.og[0] mush.ip[0].ig; connectAttr mush.og[0] farShape.inMesh;");
    MObjectArray shapes;
    EXPECT_TRUE(skin_.getOutputGeometry(shapes));
    std::string names;
    for (unsigned int i = 0; i < shapes.length(); ++i) {
        names += MFnDependencyNode(shapes[i]).name().asChar() + std::string(" ");
        EXPECT_EQ(skin_.indexForOutputShape(shapes[i]), 0u);
    }
    EXPECT_EQ(names, "bodyShape copyShape farShape ");
    MDoubleArray weights;
    EXPECT_TRUE(skin_.setWeights(path("farShape"), vertices({3}), 2, 1.0));
    EXPECT_TRUE(skin_.getWeights(path("copyShape"), vertices({3}), 2, weights));
    EXPECT_EQ(weights[0], 1.0);
    EXPECT_FALSE(skin_.getWeights(path("bodyShapeOrig"), vertices({3}), 2, weights));

    const std::string untouched = melWeights("body.vtx[12]");
    mel("select -r farShape.vtx[3]; skinCluster -e -sw 0 -swi 1 skinCluster1");
    EXPECT_EQ(melWeights("body.vtx[12]"), untouched);
    EXPECT_NE(melWeights("farShape.vtx[3]"), "0 0 1");
}
