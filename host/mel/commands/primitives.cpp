// SPDX-License-Identifier: Apache-2.0
// polyPlane, polyCube, polyCylinder and polySphere.
//
// With history a node of the command's name feeds the mesh; without, the mesh keeps the points.
#include "scene/primitives.h"

#include <optional>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

// A flag that becomes an attribute of the primitive's node.
struct PrimitiveFlag {
    Flag flag;
    const char *attribute;
    std::optional<double> byDefault = {}; // where it is not that of the attribute
};

struct PrimitiveCommand {
    const char *name;          // of the command and of the node type
    const char *transformName; // '#' stands for a number
    std::vector<PrimitiveFlag> flags;
};

const std::vector<PrimitiveCommand> &primitiveCommands()
{
    static const std::vector<PrimitiveCommand> commands = {
        {"polyPlane",
         "pPlane#",
         {{{"w", "width", "d"}, "width"},
          {{"h", "height", "d"}, "height"},
          {{"sx", "subdivisionsX", "i"}, "subdivisionsWidth"},
          {{"sy", "subdivisionsY", "i"}, "subdivisionsHeight"},
          {{"cuv", "createUVs", "i"}, "createUVs"}}},
        {"polyCube",
         "pCube#",
         {{{"w", "width", "d"}, "width"},
          {{"h", "height", "d"}, "height"},
          {{"d", "depth", "d"}, "depth"},
          {{"sx", "subdivisionsX", "i"}, "subdivisionsWidth"},
          {{"sy", "subdivisionsY", "i"}, "subdivisionsHeight"},
          {{"sz", "subdivisionsZ", "i"}, "subdivisionsDepth"},
          {{"cuv", "createUVs", "i"}, "createUVs"}}},
        {"polyCylinder",
         "pCylinder#",
         {{{"r", "radius", "d"}, "radius"},
          {{"h", "height", "d"}, "height"},
          {{"sx", "subdivisionsX", "i"}, "subdivisionsAxis"},
          {{"sy", "subdivisionsY", "i"}, "subdivisionsHeight"},
          {{"sz", "subdivisionsZ", "i"}, "subdivisionsCaps", 1.0},
          {{"cuv", "createUVs", "i"}, "createUVs"}}},
        {"polySphere",
         "pSphere#",
         {{{"r", "radius", "d"}, "radius"},
          {{"sx", "subdivisionsX", "i"}, "subdivisionsAxis"},
          {{"sy", "subdivisionsY", "i"}, "subdivisionsHeight"},
          {{"cuv", "createUVs", "i"}, "createUVs"}}},
    };
    return commands;
}

void checkFlags(Context &context, const Arguments &arguments, const PrimitiveCommand &command)
{
    const NodeType &type = *context.scene().types().find(command.name);
    for (const PrimitiveFlag &row : command.flags) {
        if (!arguments.has(row.flag.longName))
            continue;
        const double value = arguments.number(row.flag.longName, 0);
        const AttributePtr attribute = type.find(row.attribute);
        if ((attribute->minimum && value < *attribute->minimum) || !(value <= kMaxElements))
            throw Error("Invalid value for flag '" + std::string(row.flag.longName) + "'.");
    }
}

// REQUIRES: checkFlags passed.
void applyFlags(Context &context, const Arguments &arguments, const PrimitiveCommand &command,
                const NodePtr &primitive)
{
    Scene &scene = context.scene();
    for (const PrimitiveFlag &row : command.flags) {
        if (arguments.has(row.flag.longName))
            scene.setValue(primitive->plug(row.attribute), arguments.number(row.flag.longName, 0));
        else if (row.byDefault && !arguments.isEdit())
            scene.setValue(primitive->plug(row.attribute), *row.byDefault);
    }
    if (!arguments.has("axis"))
        return;
    const Plug axis = primitive->plug("axis");
    for (std::size_t i = 0; i < 3; ++i)
        scene.setValue(axis.child(axis.attribute->children[i]), arguments.of("axis")[i].number());
}

// Makes the object a member of the shading group that Maya gives to everything new.
void shadeByDefault(Scene &scene, const NodePtr &mesh)
{
    const NodePtr group = scene.findNode("initialShadingGroup");
    if (!group)
        return;
    const Plug members = group->plug("dagSetMembers");
    scene.connect(mesh->plug("instObjGroups").element(0),
                  members.element(scene.nextAvailable(members)));
}

// Not recorded: undo takes the mesh away as a whole, and redo brings it back with what it holds.
void storeNewGeometry(Scene &scene, const NodePtr &mesh, const Node &primitive)
{
    const RecordingPause pause(scene);
    storeGeometry(scene, mesh, primitiveGeometry(primitive));
}

MelValue create(Context &context, const Arguments &arguments, const PrimitiveCommand &command)
{
    Scene &scene = context.scene();
    const bool keepsHistory = arguments.boolean("constructionHistory", true);
    const NodePtr transform =
        scene.createNode("transform", arguments.string("name", command.transformName));
    const NodePtr primitive = scene.createNode(command.name, "");
    applyFlags(context, arguments, command, primitive);
    const NodePtr mesh = scene.createNode("mesh", shapeNameFor(transform->name()), transform);
    if (keepsHistory) {
        scene.connect(primitive->plug("output"), mesh->plug("inMesh"));
    } else {
        storeNewGeometry(scene, mesh, *primitive);
        scene.deleteNode(primitive);
    }
    shadeByDefault(scene, mesh);
    SelectionItem item;
    item.path = DagPath::first(transform);
    item.node = transform;
    context.session.adjustSelection({item}, Session::Adjustment::replace);
    std::vector<std::string> result = {transform->uniqueName()};
    if (keepsHistory)
        result.push_back(primitive->uniqueName());
    return result;
}

MelValue query(Context &context, const Arguments &arguments, const PrimitiveCommand &command)
{
    const NodePtr primitive = requireNodeOfType(context, arguments.objects[0].text, command.name);
    for (const PrimitiveFlag &row : command.flags) {
        if (!arguments.has(row.flag.longName))
            continue;
        const double value = evaluateNumber(primitive->plug(row.attribute));
        return row.flag.arguments[0] == 'i' ? MelValue(static_cast<long long>(value))
                                            : MelValue(value);
    }
    throwNoQuestion();
}

MelValue run(Context &context, const Arguments &arguments, const PrimitiveCommand &command)
{
    if (arguments.isQuery())
        return query(context, arguments, command);
    checkFlags(context, arguments, command);
    if (!arguments.isEdit())
        return create(context, arguments, command);
    applyFlags(context, arguments, command,
               requireNodeOfType(context, arguments.objects[0].text, command.name));
    return {};
}

} // namespace

void addPrimitiveCommands(CommandTable &table)
{
    for (const PrimitiveCommand &primitive : primitiveCommands()) {
        Command command;
        command.name = primitive.name;
        command.flags = {
            {"ax", "axis", "ddd"}, {"ch", "constructionHistory", "b"}, {"n", "name", "s"}};
        for (const PrimitiveFlag &row : primitive.flags)
            command.flags.push_back(row.flag);
        command.run = [&primitive](Context &context, const Arguments &arguments) {
            return run(context, arguments, primitive);
        };
        command.objects = {0, 0};
        command.modes = Modes::create | Modes::query | Modes::edit;
        command.targets = {1, 1};
        table.add(std::move(command));
    }
}

} // namespace host::mel
