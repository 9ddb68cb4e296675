// SPDX-License-Identifier: Apache-2.0
#include "scene/sampleScene.h"

using namespace host;

namespace
{

void addMeshes(Scene &scene)
{
    const NodePtr body = scene.createNode("transform", "body");
    scene.createNode("mesh", "bodyShape", body);
    scene.createNode("polyCube", "bodyCube");
    scene.connect(plugNamed(scene, "bodyCube.out"), plugNamed(scene, "bodyShape.inMesh"));
    const NodePtr left = scene.createNode("transform", "left");
    const NodePtr right = scene.createNode("transform", "right");
    const NodePtr hand = scene.createNode("transform", "hand", left);
    const NodePtr handShape = scene.createNode("mesh", "handShape", hand);
    scene.addInstance(hand, right);
    scene.setNumbers(handShape->plug("vrts"), 0, {0, 0, 0, 1, 0, 0, 1, 1, 0});
    scene.setNumbers(handShape->plug("pnts"), 2, {0, 0, 0.5});
}

void addJoints(Scene &scene)
{
    const NodePtr hip = scene.createNode("joint", "hip");
    const NodePtr knee = scene.createNode("joint", "knee", hip);
    scene.createNode("joint", "shin", knee);
    const NodePtr foot = scene.createNode("joint", "foot", knee);
    scene.connect(hip->plug("scale"), knee->plug("inverseScale"));
    scene.setNodeLock(foot, true, false);
    const NewAttributePtr note = makeAttribute("note", "nt", "string");
    const NewAttributePtr colour = makeAttribute("colour", "cl", "float3");
    const NewAttributePtr gain = makeAttribute("gain", "ga", "double");
    for (const NewAttributePtr &attribute : {note, colour, gain})
        attribute->isDynamic = true;
    colour->isArray = true;
    scene.addAttribute(hip, note);
    scene.addAttribute(hip, colour);
    scene.addAttribute(hip, gain);
    scene.connect(hip->plug("gain"), scene.node("body")->plug("scaleX"));
    scene.setValue(hip->plug("note"), std::string("left"));
    scene.setNumbers(hip->plug("colour"), 4, {0.25, 0.5, 0.75});
}

void addSkin(Scene &scene)
{
    const NodePtr skin = scene.createNode("skinCluster", "skin");
    scene.connect(plugNamed(scene, "hip.worldMatrix[0]"), plugNamed(scene, "skin.matrix[0]"));
    scene.connect(plugNamed(scene, "knee.worldMatrix[0]"), plugNamed(scene, "skin.matrix[2]"));
    scene.connect(plugNamed(scene, "hip.message"), plugNamed(scene, "skin.paintTrans"));
    scene.connect(plugNamed(scene, "hip.message"), plugNamed(scene, "skin.bindPose"));
    scene.setWeightRows(skin, {0, 3, 4}, {{{0, 1.0}}, {{0, 0.25}, {2, 0.75}}, {}});
}

} // namespace

void buildSampleScene(Session &session)
{
    Scene &scene = session.scene();
    addMeshes(scene);
    addJoints(scene);
    addSkin(scene);
    const NodePtr control = scene.createNode("transform", "rig:control");
    PlugState locked;
    locked.isLocked = true;
    scene.setState(control->plug("translateX"), locked);
}

Plug plugNamed(Scene &scene, const std::string &name)
{
    const std::size_t dot = name.find('.');
    return resolvePlugPath(scene.node(name.substr(0, dot)), name.substr(dot + 1),
                           UnknownAttribute::refuse)
        .plug;
}
