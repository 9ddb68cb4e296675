// SPDX-License-Identifier: Apache-2.0
//
// What the scene refuses, in the words that a user reads, and that a refusal changes nothing.

#include <functional>

#include <gtest/gtest.h>

#include "scene/sampleScene.h"
#include "scene/sceneText.h"

using namespace host;

namespace
{

struct RefusedChange {
    const char *message;
    std::function<void(Scene &)> make;
};

const RefusedChange kRefused[] = {
    {"Unrecognized node type 'potato'.", [](Scene &s) { s.createNode("potato", "p"); }},
    {"New name has no legal characters.", [](Scene &s) { s.createNode("transform", "a b"); }},
    {"New name has no legal characters.", [](Scene &s) { s.createNode("transform", "1a"); }},
    {"New name has no legal characters.", [](Scene &s) { s.rename(s.node("hip"), "rig:"); }},
    {"A shape can not be a parent: bodyShape",
     [](Scene &s) { s.createNode("transform", "t", s.node("bodyShape")); }},
    {"A skinCluster node can not have a parent.",
     [](Scene &s) { s.createNode("skinCluster", "t", s.node("body")); }},
    {"Can not delete a default node: persp", [](Scene &s) { s.deleteNode(s.node("persp")); }},
    {"Can not delete a locked node: foot", [](Scene &s) { s.deleteNode(s.node("foot")); }},
    {"Can not delete a locked node: foot", [](Scene &s) { s.deleteNode(s.node("hip")); }},
    {"Can not rename a locked or default node: foot",
     [](Scene &s) { s.rename(s.node("foot"), "f"); }},
    {"Can not parent 'hip' below itself.",
     [](Scene &s) { s.reparent(s.node("hip"), {}, s.node("foot")); }},
    {"A shape can not be a parent: handShape",
     [](Scene &s) { s.reparent(s.node("hip"), {}, s.node("handShape")); }},
    {"'hand' is already a child of 'right'.",
     [](Scene &s) { s.addInstance(s.node("hand"), s.node("right")); }},
    {"'hip' has no such instance.", [](Scene &s) { s.removeInstance(s.node("hip"), {}); }},
    {"Can not add attributes to the locked node 'foot'.",
     [](Scene &s) { s.addAttribute(s.node("foot"), makeAttribute("x1", "x1", "double")); }},
    {"Found an attribute named 'tx' on 'hip' already.",
     [](Scene &s) { s.addAttribute(s.node("hip"), makeAttribute("way", "tx", "double")); }},
    {"'translate' is no dynamic attribute of 'hip'.",
     [](Scene &s) { s.removeAttribute(s.node("hip"), s.node("hip")->findAttribute("translate")); }},
    {"'skin.matrix[0]' already has an incoming connection from 'hip.worldMatrix[0]'.",
     [](Scene &s) { s.connect(plugNamed(s, "knee.wm[0]"), plugNamed(s, "skin.matrix[0]")); }},
    {"The destination attribute 'rig:control.translateX' cannot be connected: it is locked.",
     [](Scene &s) { s.connect(plugNamed(s, "hip.tx"), plugNamed(s, "rig:control.tx")); }},
    {"There is no connection from 'hip.translateX' to 'knee.translateX' to disconnect.",
     [](Scene &s) { s.disconnect(plugNamed(s, "hip.tx"), plugNamed(s, "knee.tx")); }},
    {"No object matches name: nobody", [](Scene &s) { s.node("nobody"); }},
    {"No object matches name: hip.tx[0]", [](Scene &s) { plugNamed(s, "hip.tx[0]"); }},
    {"No object matches name: skin.wl[0:1].w[0:1]",
     [](Scene &s) { plugNamed(s, "skin.wl[0:1].w[0:1]"); }},
    {"No object matches name: body.vtx[8]", [](Scene &s) { requireName(s, "body.vtx[8]"); }},
    {"No object matches name: nob*", [](Scene &s) { requireName(s, "nob*"); }},
};

std::string messageOf(const RefusedChange &change, Scene &scene)
{
    try {
        change.make(scene);
    } catch (const Error &error) {
        return error.what();
    }
    return "accepted";
}

} // namespace

TEST(refusals, nameTheReasonAndChangeNothing)
{
    Session session;
    buildSampleScene(session);
    const std::string before = sceneText(session.scene());
    for (const RefusedChange &change : kRefused) {
        EXPECT_EQ(messageOf(change, session.scene()), change.message);
        ASSERT_EQ(sceneText(session.scene()), before) << change.message;
    }
}

// A file may say so; the walks up and down the hierarchy recurse.
TEST(refusals, endAHierarchyWithoutEnd)
{
    Scene scene;
    NodePtr parent;
    EXPECT_THROW(for (int depth = 0; depth < 5000; ++depth) parent =
                     scene.createNode("transform", "t", parent),
                 Error);
}
