// SPDX-License-Identifier: Apache-2.0
#include "scene/sceneChanges.h"

#include "scene/sampleScene.h"

using namespace host;

namespace
{

const std::vector<SceneChange> kChanges = {
    {"create a transform", [](Scene &s) { s.createNode("transform", "", s.node("left")); }},
    {"create a shape without parent", [](Scene &s) { s.createNode("mesh", "loose"); }},
    {"create a node of a type learned",
     [](Scene &s) { s.createNode("furBall", "f", {}, Scene::UnknownType::learn); }},
    {"create a shared node", [](Scene &s) { s.createSharedNode("objectSet", "sharedSet", {}); }},
    {"meet a default node", [](Scene &s) { s.defaultNode(":defaultArnoldFilter"); }},
    {"delete a node with connections", [](Scene &s) { s.deleteNode(s.node("skin")); }},
    {"delete a parent of an instance", [](Scene &s) { s.deleteNode(s.node("left")); }},
    {"delete an instanced node", [](Scene &s) { s.deleteNode(s.node("hand")); }},
    {"delete the source of a mesh", [](Scene &s) { s.deleteNode(s.node("bodyCube")); }},
    {"rename with its shape", [](Scene &s) { s.rename(s.node("body"), "torso"); }},
    {"rename to a name that is taken", [](Scene &s) { s.rename(s.node("body"), "hip"); }},
    {"set an identifier", [](Scene &s) { s.setUuid(s.node("hip"), "4A1C"); }},
    {"lock a node", [](Scene &s) { s.setNodeLock(s.node("hip"), true, true); }},
    {"keep a statement",
     [](Scene &s) {
         s.keepStatement(s.node("hip"), {"instanceable -a 0;", ""});
     }},
    {"reparent", [](Scene &s) { s.reparent(s.node("knee"), s.node("hip"), s.node("left")); }},
    {"reparent to the world", [](Scene &s) { s.reparent(s.node("knee"), s.node("hip"), {}); }},
    {"reparent the first instance",
     [](Scene &s) { s.reparent(s.node("hand"), s.node("left"), s.node("body")); }},
    {"add an instance", [](Scene &s) { s.addInstance(s.node("hand"), s.node("hip")); }},
    {"remove the first instance",
     [](Scene &s) { s.removeInstance(s.node("hand"), s.node("left")); }},
    {"add an attribute",
     [](Scene &s) { s.addAttribute(s.node("skin"), makeAttribute("offset", "of", "double3")); }},
    {"remove an attribute with its values",
     [](Scene &s) { s.removeAttribute(s.node("hip"), plugNamed(s, "hip.colour").attribute); }},
    {"remove an attribute that is connected",
     [](Scene &s) { s.removeAttribute(s.node("hip"), plugNamed(s, "hip.gain").attribute); }},
    {"set a number", [](Scene &s) { s.setValue(plugNamed(s, "hip.translateX"), 1.5); }},
    {"set a text", [](Scene &s) { s.setValue(plugNamed(s, "hip.note"), std::string("right")); }},
    {"set an element that is new",
     [](Scene &s) { s.setValue(plugNamed(s, "skin.bindPreMatrix[7]"), kIdentityMatrix); }},
    {"set one packed number",
     [](Scene &s) { s.setValue(plugNamed(s, "handShape.vt[1].vx"), 9.0); }},
    {"set a weight", [](Scene &s) { s.setValue(plugNamed(s, "skin.wl[3].w[0]"), 0.5); }},
    {"set a weight to zero", [](Scene &s) { s.setValue(plugNamed(s, "skin.wl[3].w[2]"), 0.0); }},
    {"set a weight far away", [](Scene &s) { s.setValue(plugNamed(s, "skin.wl[900].w[5]"), 1.0); }},
    {"set a run of numbers",
     [](Scene &s) {
         s.setNumbers(plugNamed(s, "handShape.vt"), 2, {1, 2, 3, 4, 5, 6});
     }},
    {"keep an opaque range",
     [](Scene &s) {
         s.setOpaqueRange(plugNamed(s, "handShape.fc"), 0, 4, {"polyFaces", "f 3"});
     }},
    {"move data", [](Scene &s) { s.moveData(s.node("handShape"), s.node("bodyShape"), "vrts"); }},
    {"add a row of weights", [](Scene &s) { s.addElement(plugNamed(s, "skin.wl[8]")); }},
    {"add a packed element", [](Scene &s) { s.addElement(plugNamed(s, "handShape.vt[9]")); }},
    {"remove a row of weights", [](Scene &s) { s.removeElement(plugNamed(s, "skin.wl[3]")); }},
    {"remove a packed element", [](Scene &s) { s.removeElement(plugNamed(s, "hip.colour[4]")); }},
    {"unlock a plug", [](Scene &s) { s.setState(plugNamed(s, "rig:control.tx"), PlugState()); }},
    {"replace rows of weights",
     [](Scene &s) {
         s.setWeightRows(s.node("skin"), {4, 5}, {{{2, 1.0}}, {{0, 1.0}}});
     }},
    {"connect into a new element",
     [](Scene &s) { s.connect(plugNamed(s, "foot.wm[0]"), plugNamed(s, "skin.matrix[5]")); }},
    {"connect in place of another, locked",
     [](Scene &s) {
         s.connect(plugNamed(s, "foot.scale"), plugNamed(s, "knee.inverseScale"), true, true);
     }},
    {"disconnect the first of two",
     [](Scene &s) { s.disconnect(plugNamed(s, "hip.msg"), plugNamed(s, "skin.paintTrans")); }},
    {"disconnect",
     [](Scene &s) { s.disconnect(plugNamed(s, "knee.wm[0]"), plugNamed(s, "skin.matrix[2]")); }},
};

} // namespace

const std::vector<SceneChange> &sceneChanges()
{
    return kChanges;
}
