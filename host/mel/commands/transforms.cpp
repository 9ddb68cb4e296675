// SPDX-License-Identifier: Apache-2.0
// move, rotate and scale: placing what is named or selected.
#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/matrixParts.h"
#include "mel/commands/xform.h"

namespace host::mel
{

namespace
{

using skin::Vec3;

const std::vector<Flag> kFlags = {{"r", "relative"},    {"a", "absolute"},    {"os", "objectSpace"},
                                  {"ls", "localSpace"}, {"ws", "worldSpace"}, {"x", "moveX"},
                                  {"y", "moveY"},       {"z", "moveZ"}};

std::vector<Flag> flagsNamed(const char *x, const char *y, const char *z)
{
    std::vector<Flag> flags = kFlags;
    flags[5].longName = x;
    flags[6].longName = y;
    flags[7].longName = z;
    return flags;
}

// The numbers in front of the objects, and which axes they are for.
struct Amount {
    double values[3] = {0, 0, 0};
    bool isGiven[3] = {true, true, true};
    Arguments objects; // the rest of the call

    Vec3 over(const Vec3 &before) const
    {
        return {isGiven[0] ? values[0] : before.x, isGiven[1] ? values[1] : before.y,
                isGiven[2] ? values[2] : before.z};
    }
};

Amount amountOf(const Arguments &arguments, const char *const (&axisFlags)[3], double neutral)
{
    Amount amount;
    amount.objects = arguments;
    bool anyAxis = false;
    for (const char *flag : axisFlags)
        anyAxis = anyAxis || arguments.has(flag);
    std::vector<Operand> &operands = amount.objects.objects;
    for (std::size_t i = 0; i < 3; ++i) {
        amount.isGiven[i] = !anyAxis || arguments.has(axisFlags[i]);
        amount.values[i] = neutral;
    }
    // With axis flags one number serves all of them: "move -x -z 5".
    const std::size_t count = anyAxis ? 1 : 3;
    if (operands.size() < count)
        throw Error("Wrong number of arguments: " + std::to_string(count) +
                    " numbers are expected.");
    for (std::size_t i = 0; i < 3; ++i) {
        if (amount.isGiven[i])
            amount.values[i] = operands[anyAxis ? 0 : i].number();
    }
    operands.erase(operands.begin(), operands.begin() + long(count));
    return amount;
}

std::vector<DagPath> transformsOf(Context &context, const Arguments &arguments, const char *command)
{
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (item.component)
            throw Error(std::string(command) + ": Components cannot be transformed here.");
    }
    std::vector<DagPath> paths = pathsOrSelection(context, arguments);
    if (paths.empty())
        throw Error(std::string(command) + ": No objects were specified and none is selected.");
    for (DagPath &path : paths) {
        if (isShape(*path.node()))
            path = path.parent();
        if (!path.node()->isA("transform"))
            throw Error(std::string(command) + ": '" + path.partialName() + "' is no transform.");
    }
    return paths;
}

bool isInParentSpace(const Arguments &arguments)
{
    return arguments.has("objectSpace") || arguments.has("localSpace");
}

constexpr const char *kMoveAxes[] = {"moveX", "moveY", "moveZ"};
constexpr const char *kRotateAxes[] = {"rotateX", "rotateY", "rotateZ"};
constexpr const char *kScaleAxes[] = {"scaleX", "scaleY", "scaleZ"};

// Absolute and in world space unless the flags say otherwise.
MelValue move(Context &context, const Arguments &arguments)
{
    const Amount amount = amountOf(arguments, kMoveAxes, 0.0);
    for (const DagPath &path : transformsOf(context, amount.objects, "move")) {
        const bool isLocal = isInParentSpace(arguments);
        const Vec3 before = isLocal ? vectorOf(*path.node(), "translate") : worldPosition(path);
        const Vec3 after =
            arguments.has("relative") ? before + amount.over({0, 0, 0}) : amount.over(before);
        if (isLocal)
            setVector(context.scene(), path.node(), "translate", after);
        else
            setWorldPosition(context.scene(), path, after);
    }
    return MelValue();
}

// Turns by `degrees` around the axes of the world or, otherwise, the object's own.
void turn(Scene &scene, const DagPath &path, const Vec3 &degrees, bool aroundWorldAxes)
{
    const Matrix delta = rotationOf(degrees, 0);
    const auto [axis, own, after] = turnsOf(path);
    const Matrix turned = aroundWorldAxes
                              ? multiply(own, multiply(after, multiply(delta, inverse(after))))
                              : multiply(inverse(axis), multiply(delta, multiply(axis, own)));
    setOwnTurn(scene, path, turned);
}

MelValue rotate(Context &context, const Arguments &arguments)
{
    const Amount amount = amountOf(arguments, kRotateAxes, 0.0);
    for (const DagPath &path : transformsOf(context, amount.objects, "rotate")) {
        if (arguments.has("relative")) {
            turn(context.scene(), path, amount.over({0, 0, 0}), arguments.has("worldSpace"));
        } else if (arguments.has("worldSpace")) {
            setWorldRotation(context.scene(), path, amount.over(worldRotation(path)));
        } else {
            setVector(context.scene(), path.node(), "rotate",
                      amount.over(vectorOf(*path.node(), "rotate")));
        }
    }
    return MelValue();
}

MelValue scale(Context &context, const Arguments &arguments)
{
    const Amount amount = amountOf(arguments, kScaleAxes, 1.0);
    for (const DagPath &path : transformsOf(context, amount.objects, "scale")) {
        const Vec3 before = vectorOf(*path.node(), "scale");
        const Vec3 factor = amount.over({1, 1, 1});
        const Vec3 after = arguments.has("relative")
                               ? Vec3{before.x * factor.x, before.y * factor.y, before.z * factor.z}
                               : amount.over(before);
        setVector(context.scene(), path.node(), "scale", after);
    }
    return MelValue();
}

} // namespace

void addTransformCommands(CommandTable &table)
{
    table.add({"move", flagsNamed("moveX", "moveY", "moveZ"), move});
    table.add({"rotate", flagsNamed("rotateX", "rotateY", "rotateZ"), rotate});
    table.add({"scale", flagsNamed("scaleX", "scaleY", "scaleZ"), scale});
    addXformCommand(table);
}

} // namespace host::mel
