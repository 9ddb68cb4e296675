// SPDX-License-Identifier: Apache-2.0
// The joint command: makes a joint below what is selected, and edits or asks one.
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/jointScale.h"
#include "scene/transform.h"

namespace host::mel
{

namespace
{

const std::vector<Flag> kFlags = {{"a", "absolute"},           {"r", "relative"},
                                  {"co", "component"},         {"n", "name", "s"},
                                  {"o", "orientation", "ddd"}, {"p", "position", "ddd"},
                                  {"rad", "radius", "d"},      {"zso", "zeroScaleOrient"}};

skin::Vec3 vectorOf(const std::vector<Operand> &operands)
{
    return {operands[0].number(), operands[1].number(), operands[2].number()};
}

void setTriple(Scene &scene, const Plug &compound, const skin::Vec3 &value)
{
    const double numbers[] = {value.x, value.y, value.z};
    for (std::size_t i = 0; i < 3; ++i)
        scene.setValue(compound.child(compound.attribute->children[i]), numbers[i]);
}

std::vector<double> triple(const Plug &compound)
{
    std::vector<double> numbers;
    for (const AttributePtr &child : compound.attribute->children)
        numbers.push_back(evaluateNumber(compound.child(child)));
    return numbers;
}

// World positions of a joint's child joints, to put them back after it moved (-component).
class ChildrenInPlace
{
public:
    explicit ChildrenInPlace(const DagPath &joint)
    {
        for (const NodePtr &child : joint.node()->children()) {
            if (child->isA("transform"))
                places_.push_back(
                    {joint.child(child), translationOf(worldMatrix(joint.child(child)))});
        }
    }
    void restore(Scene &scene) const
    {
        for (const auto &[path, position] : places_)
            setWorldTranslation(scene, path, position);
    }

private:
    std::vector<std::pair<DagPath, skin::Vec3>> places_;
};

void place(Context &context, const Arguments &arguments, const DagPath &joint)
{
    const skin::Vec3 position = vectorOf(arguments.of("position"));
    if (arguments.has("relative"))
        setTriple(context.scene(), joint.node()->plug("translate"), position);
    else
        setWorldTranslation(context.scene(), joint, position);
}

void applyFlags(Context &context, const Arguments &arguments, const DagPath &joint)
{
    Scene &scene = context.scene();
    const ChildrenInPlace children(joint);
    const NodePtr &node = joint.node();
    if (arguments.has("orientation"))
        setTriple(scene, node->plug("jointOrient"), vectorOf(arguments.of("orientation")));
    if (arguments.has("zeroScaleOrient"))
        setTriple(scene, node->plug("rotateAxis"), {0, 0, 0});
    if (arguments.has("radius"))
        scene.setValue(node->plug("radius"), arguments.number("radius", 1));
    if (arguments.has("position"))
        place(context, arguments, joint);
    if (arguments.has("component"))
        children.restore(scene);
}

// What a new joint goes below: the last selected transform or joint; null for the world.
NodePtr selectedParent(const Context &context)
{
    const std::vector<SelectionItem> &items = context.session.selection().items();
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        if (!item->isPlug() && !item->component && item->node->isA("transform"))
            return item->node;
    }
    return {};
}

MelValue create(Context &context, const Arguments &arguments)
{
    Scene &scene = context.scene();
    const NodePtr parent = selectedParent(context);
    const NodePtr joint = scene.createNode("joint", arguments.string("name"), parent);
    connectInverseScale(scene, joint, parent);
    SelectionItem item;
    item.path = DagPath::first(joint);
    item.node = joint;
    applyFlags(context, arguments, item.path);
    context.session.adjustSelection({item}, Session::Adjustment::replace);
    return joint->uniqueName();
}

DagPath jointToEdit(Context &context, const Arguments &arguments)
{
    const std::vector<DagPath> paths = pathsOrSelection(context, arguments);
    if (paths.size() != 1 || !paths[0].node()->isA("joint"))
        throw Error("One joint must be named or selected.");
    return paths[0];
}

MelValue query(const Arguments &arguments, const DagPath &joint)
{
    const Node &node = *joint.node();
    if (arguments.has("orientation"))
        return triple(node.plug("jointOrient"));
    if (arguments.has("radius"))
        return evaluateNumber(node.plug("radius"));
    if (arguments.has("name"))
        return node.uniqueName();
    if (!arguments.has("position"))
        throwNoQuestion();
    if (arguments.has("relative"))
        return triple(node.plug("translate"));
    const skin::Vec3 position = translationOf(worldMatrix(joint));
    return std::vector<double>{position.x, position.y, position.z};
}

MelValue edit(Context &context, const Arguments &arguments, const DagPath &joint)
{
    applyFlags(context, arguments, joint);
    if (arguments.has("name"))
        context.scene().rename(joint.node(), arguments.string("name"));
    return {};
}

MelValue joint(Context &context, const Arguments &arguments)
{
    if (arguments.isQuery())
        return query(arguments, jointToEdit(context, arguments));
    if (arguments.isEdit())
        return edit(context, arguments, jointToEdit(context, arguments));
    return create(context, arguments);
}

} // namespace

void addJointCommands(CommandTable &table)
{
    table.add(
        {"joint", kFlags, joint, {0, 0}, Modes::create | Modes::query | Modes::edit, Objects()});
}

} // namespace host::mel
