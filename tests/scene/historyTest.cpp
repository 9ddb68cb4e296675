// SPDX-License-Identifier: Apache-2.0
#include "scene/history.h"

#include <gtest/gtest.h>

#include "scene/meshGeometry.h"
#include "scene/sampleScene.h"

using namespace host;

// Edits after a skin cluster are nodes of all sorts of types, most of them unknown to the host.
TEST(geometryHistory, leadsThroughNodesOfUnknownTypes)
{
    Session session;
    buildSampleScene(session);
    Scene &scene = session.scene();
    const NodePtr edit = scene.createNode("polyWobble", "edit", {}, Scene::UnknownType::learn);
    const auto learned = [&edit](const char *path) {
        return resolvePlugPath(edit, path, UnknownAttribute::learn).plug;
    };
    const Plug shapeInput = plugNamed(scene, "bodyShape.inMesh");
    scene.connect(plugNamed(scene, "bodyCube.out"), plugNamed(scene, "skin.ip[0].ig"));
    scene.connect(plugNamed(scene, "skin.og[0]"), learned("ip"));
    scene.connect(learned("out"), shapeInput, true);

    std::string names;
    for (const NodePtr &node : geometryHistory(shapeInput))
        names += node->name() + ' ';
    EXPECT_EQ(names, "edit skin bodyCube ");
    EXPECT_EQ(deformedShape(*scene.node("skin")), scene.node("bodyShape"));
    EXPECT_EQ(skinClustersOf(*scene.node("bodyShape")).size(), 1u);
    scene.disconnect(learned("out"), shapeInput);
    EXPECT_EQ(deformedShape(*scene.node("skin")), nullptr);
}
