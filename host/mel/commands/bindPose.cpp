// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/bindPose.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <unordered_set>

#include "scene/rotation.h"
#include "scene/transform.h"

namespace host::mel
{

namespace
{

constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;

std::array<double, 3> triple(const Node &node, const char *attribute)
{
    std::array<double, 3> numbers = {};
    if (!node.findAttribute(attribute))
        return numbers;
    const Plug plug = node.plug(attribute);
    for (std::size_t i = 0; i < 3; ++i)
        numbers[i] = evaluateNumber(plug.child(plug.attribute->children[i]));
    return numbers;
}

// A transform's parts as one matrix value, in the order in which Maya ASCII has them.
class XformText
{
public:
    template <typename Numbers>
    void add(const Numbers &numbers)
    {
        for (const double number : numbers)
            add(number);
    }
    void add(double number)
    {
        char digits[32];
        std::snprintf(digits, sizeof digits, " %.17g", number);
        text_ += digits;
    }
    OpaqueValue value(bool compensatesScale) const
    {
        return {"matrix", text_ + (compensatesScale ? " yes" : " no")};
    }

private:
    std::string text_ = "\"xform\"";
};

OpaqueValue xformOf(const Node &transform)
{
    const bool isJoint = transform.isA("joint");
    XformText text;
    text.add(triple(transform, "scale"));
    std::array<double, 3> rotation = triple(transform, "rotate");
    for (double &angle : rotation)
        angle *= kRadiansPerDegree;
    text.add(rotation);
    text.add(evaluateNumber(transform.plug("rotateOrder")));
    for (const char *attribute : {"translate", "shear", "scalePivot", "scalePivotTranslate",
                                  "rotatePivot", "rotatePivotTranslate"})
        text.add(triple(transform, attribute));
    for (const char *attribute : {"rotateAxis", "jointOrient"}) {
        const auto [x, y, z] = triple(transform, attribute);
        text.add(quaternionOf({x, y, z}));
    }
    text.add(isJoint ? triple(transform, "inverseScale") : std::array<double, 3>{1, 1, 1});
    return text.value(!isJoint || evaluateNumber(transform.plug("segmentScaleCompensate")) != 0);
}

// Index of `node` among the pose's members, -1 if it is none.
int memberIndex(const Node &pose, const Node &node)
{
    for (const Connection &user : node.destinations(node.plug("message"))) {
        if (user.node == &pose && user.attribute->longName == "members")
            return user.indices[0];
    }
    return -1;
}

// Whether a member of the pose stands where it stood when the pose was kept. What is no member
// does.
bool standsAt(const Node &pose, const DagPath &path)
{
    const int index = memberIndex(pose, *path.node());
    if (index < 0)
        return true;
    const Value kept = evaluate(pose.plug("worldMatrix").element(index));
    const Matrix *then = std::get_if<Matrix>(&kept);
    const Matrix now = worldMatrix(path);
    constexpr double kTolerance = 1e-6; // of file text and of chains of matrices
    return !then || std::equal(now.begin(), now.end(), then->begin(), [](double a, double b) {
        return std::abs(a - b) <= kTolerance * std::max(1.0, std::abs(b));
    });
}

// A bind pose that one of the influences belongs to; null if none will do.
NodePtr knownPose(const std::vector<DagPath> &influences, PoseChoice choice)
{
    const auto willDo = [&](const Node &pose) {
        return choice == PoseChoice::any ||
               std::all_of(influences.begin(), influences.end(),
                           [&pose](const DagPath &path) { return standsAt(pose, path); });
    };
    std::unordered_set<const Node *> refused;
    for (const DagPath &influence : influences) {
        const Node &node = *influence.node();
        for (const Connection &user : node.destinations(node.plug("message"))) {
            if (!user.node->isA("dagPose") || user.attribute->longName != "members" ||
                evaluateNumber(user.node->plug("bindPose")) == 0 || refused.count(user.node) > 0)
                continue;
            if (willDo(*user.node))
                return user.node->shared_from_this();
            refused.insert(user.node);
        }
    }
    return {};
}

// A joint's own bindPose holds for the first pose that it belongs to, and for others in which it
// stands there; the rest keep theirs.
void storeWorldMatrix(Scene &scene, const NodePtr &pose, const DagPath &path, int index)
{
    const Plug matrix = pose->plug("worldMatrix").element(index);
    const Matrix value = worldMatrix(path);
    const NodePtr &node = path.node();
    const bool isJoint = node->isA("joint");
    if (isJoint && node->destinations(node->plug("bindPose")).empty())
        scene.setValue(node->plug("bindPose"), value);
    if (isJoint && evaluate(node->plug("bindPose")) == Value(value))
        scene.connect(node->plug("bindPose"), matrix);
    else
        scene.setValue(matrix, value);
}

// Takes a transform into the pose, after those above it; returns its index. Transforms that are no
// influences are `global`.
int addMember(Scene &scene, const NodePtr &pose, const DagPath &path, bool isInfluence)
{
    const int known = memberIndex(*pose, *path.node());
    if (known >= 0)
        return known;
    DagPath above = path.parent();
    while (!above.isNull() && !above.node()->isA("transform"))
        above = above.parent(); // of a type that the host does not know
    const int parent = above.isNull() ? -1 : addMember(scene, pose, above, false);

    const int index = scene.nextAvailable(pose->plug("members"));
    scene.connect(path.node()->plug("message"), pose->plug("members").element(index));
    scene.connect(parent < 0 ? pose->plug("world") : pose->plug("members").element(parent),
                  pose->plug("parents").element(index));
    scene.setValue(pose->plug("xformMatrix").element(index), xformOf(*path.node()));
    storeWorldMatrix(scene, pose, path, index);
    if (!isInfluence && !path.node()->isA("joint"))
        scene.setValue(pose->plug("global").element(index), 1.0);
    return index;
}

} // namespace

NodePtr provideBindPose(Scene &scene, const std::vector<DagPath> &influences, PoseChoice choice)
{
    if (influences.empty())
        return {};
    NodePtr pose = knownPose(influences, choice);
    if (!pose) {
        pose = scene.createNode("dagPose", "bindPose#");
        scene.setValue(pose->plug("bindPose"), 1.0);
    }
    for (const DagPath &influence : influences)
        addMember(scene, pose, influence, true);
    return pose;
}

} // namespace host::mel
