// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/xform.h"

#include "mel/commands/commandSupport.h"
#include "mel/commands/matrixParts.h"
#include "scene/meshGeometry.h"

namespace host::mel
{

namespace
{

using skin::Vec3;

std::vector<double> toVector(const Vec3 &v)
{
    return {v.x, v.y, v.z};
}

Vec3 threeNumbers(const Arguments &arguments, const char *flag)
{
    const std::vector<Operand> &operands = arguments.of(flag);
    return {operands[0].number(), operands[1].number(), operands[2].number()};
}

// One property of a transform that xform reads and writes; both know whether world space is meant.
struct Property {
    Flag flag;
    std::vector<double> (*read)(const DagPath &path, bool isWorld);
    void (*write)(Scene &scene, const DagPath &path, const Arguments &arguments, bool isWorld);
};

// The new value, or what -relative makes of it.
Vec3 wanted(const Arguments &arguments, const char *flag, const Vec3 &before)
{
    const Vec3 given = threeNumbers(arguments, flag);
    return arguments.has("relative") ? before + given : given;
}

std::vector<double> readTranslation(const DagPath &path, bool isWorld)
{
    return toVector(isWorld ? worldPosition(path) : vectorOf(*path.node(), "translate"));
}

void writeTranslation(Scene &scene, const DagPath &path, const Arguments &arguments, bool isWorld)
{
    if (isWorld)
        setWorldPosition(scene, path, wanted(arguments, "translation", worldPosition(path)));
    else
        setVector(scene, path.node(), "translate",
                  wanted(arguments, "translation", vectorOf(*path.node(), "translate")));
}

std::vector<double> readRotation(const DagPath &path, bool isWorld)
{
    return toVector(isWorld ? worldRotation(path) : vectorOf(*path.node(), "rotate"));
}

void writeRotation(Scene &scene, const DagPath &path, const Arguments &arguments, bool isWorld)
{
    if (isWorld)
        setWorldRotation(scene, path, wanted(arguments, "rotation", worldRotation(path)));
    else
        setVector(scene, path.node(), "rotate",
                  wanted(arguments, "rotation", vectorOf(*path.node(), "rotate")));
}

std::vector<double> readScale(const DagPath &path, bool)
{
    return toVector(vectorOf(*path.node(), "scale"));
}

void writeScale(Scene &scene, const DagPath &path, const Arguments &arguments, bool)
{
    const Vec3 given = threeNumbers(arguments, "scale");
    const Vec3 before = vectorOf(*path.node(), "scale");
    setVector(scene, path.node(), "scale",
              arguments.has("relative")
                  ? Vec3{given.x * before.x, given.y * before.y, given.z * before.z}
                  : given);
}

std::vector<double> readMatrix(const DagPath &path, bool isWorld)
{
    const Matrix matrix = isWorld ? worldMatrix(path) : localMatrix(*path.node());
    return {matrix.begin(), matrix.end()};
}

void writeMatrix(Scene &scene, const DagPath &path, const Arguments &arguments, bool isWorld)
{
    Matrix matrix;
    for (std::size_t i = 0; i < matrix.size(); ++i)
        matrix[i] = arguments.of("matrix")[i].number();
    if (isWorld)
        setWorldMatrix(scene, path, matrix);
    else
        setLocalMatrix(scene, path.node(), matrix);
}

template <const char *const &attribute>
std::vector<double> readPivot(const DagPath &path, bool isWorld)
{
    const Vec3 pivot = vectorOf(*path.node(), attribute);
    return toVector(isWorld ? transformPoint(pivot, worldMatrix(path)) : pivot);
}

constexpr const char *kRotatePivot = "rotatePivot";
constexpr const char *kScalePivot = "scalePivot";

// Pivots are set in object space; the object stays where it is, rotatePivotTranslate and
// scalePivotTranslate make up for it.
void setPivot(Scene &scene, const DagPath &path, const char *attribute, Vec3 pivot, bool isWorld)
{
    if (isWorld)
        pivot = transformPoint(pivot, inverse(worldMatrix(path)));
    const Vec3 before = translationOf(localMatrix(*path.node()));
    setVector(scene, path.node(), attribute, pivot);
    const Vec3 shift = before - translationOf(localMatrix(*path.node()));
    const std::string makeUp = std::string(attribute) + "Translate";
    setVector(scene, path.node(), makeUp, vectorOf(*path.node(), makeUp) + shift);
}

void writePivots(Scene &scene, const DagPath &path, const Arguments &arguments, bool isWorld)
{
    for (const char *flag : {"pivots", "rotatePivot", "scalePivot"}) {
        if (!arguments.has(flag))
            continue;
        const std::string_view name = flag;
        if (name != "scalePivot")
            setPivot(scene, path, kRotatePivot, threeNumbers(arguments, flag), isWorld);
        if (name != "rotatePivot")
            setPivot(scene, path, kScalePivot, threeNumbers(arguments, flag), isWorld);
    }
}

std::vector<double> readPivots(const DagPath &path, bool isWorld)
{
    std::vector<double> pivots = readPivot<kRotatePivot>(path, isWorld);
    const std::vector<double> second = readPivot<kScalePivot>(path, isWorld);
    pivots.insert(pivots.end(), second.begin(), second.end());
    return pivots;
}

const Property kProperties[] = {
    {{"m", "matrix", "dddddddddddddddd"}, readMatrix, writeMatrix},
    {{"piv", "pivots", "ddd"}, readPivots, writePivots},
    {{"rp", "rotatePivot", "ddd"}, readPivot<kRotatePivot>, writePivots},
    {{"sp", "scalePivot", "ddd"}, readPivot<kScalePivot>, writePivots},
    {{"ro", "rotation", "ddd"}, readRotation, writeRotation},
    {{"s", "scale", "ddd"}, readScale, writeScale},
    {{"t", "translation", "ddd"}, readTranslation, writeTranslation},
};

// The positions of vertices: the mesh's points, not deformed.
std::vector<double> positionsOf(const SelectionItem &item, bool isWorld)
{
    const MeshGeometry geometry = meshGeometry(*item.node);
    const Matrix matrix = isWorld ? worldMatrix(item.path) : kIdentityMatrix;
    std::vector<double> numbers;
    for (const int vertex : item.component->elements) {
        if (std::size_t(vertex) >= geometry.points.size())
            throw Error("xform: The points of '" + item.node->uniqueName() + "' are not known.");
        const std::vector<double> point =
            toVector(transformPoint(geometry.points[std::size_t(vertex)], matrix));
        numbers.insert(numbers.end(), point.begin(), point.end());
    }
    return numbers;
}

MelValue query(Context &context, const Arguments &arguments, bool isWorld)
{
    const std::vector<SelectionItem> items = objectsOrSelection(context, arguments);
    std::vector<double> numbers;
    for (const SelectionItem &item : items) {
        const bool isVertices = item.component && item.component->kind == ComponentKind::vertex;
        if (isVertices && arguments.has("translation")) {
            const std::vector<double> positions = positionsOf(item, isWorld);
            numbers.insert(numbers.end(), positions.begin(), positions.end());
            continue;
        }
        const bool isTransform = !item.component && item.node->isA("transform");
        if (!isTransform)
            throw Error("xform: '" + item.names().front() + "' is no transform.");
        for (const Property &property : kProperties) {
            if (arguments.has(property.flag.longName))
                return property.read(item.path, isWorld);
        }
    }
    if (numbers.empty())
        throwNoQuestion();
    return numbers;
}

MelValue xform(Context &context, const Arguments &arguments)
{
    const bool isWorld = arguments.has("worldSpace");
    if (arguments.isQuery())
        return query(context, arguments, isWorld);
    const std::vector<DagPath> paths = pathsOrSelection(context, arguments);
    if (paths.empty())
        throw Error("xform: No objects were specified and none is selected.");
    for (const DagPath &path : paths) {
        if (!path.node()->isA("transform"))
            throw Error("xform: '" + path.partialName() + "' is no transform.");
        for (const Property &property : kProperties) {
            if (arguments.has(property.flag.longName))
                property.write(context.scene(), path, arguments, isWorld);
        }
    }
    return MelValue();
}

} // namespace

Vec3 worldPosition(const DagPath &transform)
{
    return transformPoint(vectorOf(*transform.node(), kRotatePivot), worldMatrix(transform));
}

void setWorldPosition(Scene &scene, const DagPath &transform, const Vec3 &position)
{
    const Matrix above = inverse(parentMatrix(transform));
    const Vec3 step =
        transformPoint(position, above) - transformPoint(worldPosition(transform), above);
    setVector(scene, transform.node(), "translate",
              vectorOf(*transform.node(), "translate") + step);
}

Turns turnsOf(const DagPath &transform)
{
    const Node &node = *transform.node();
    Turns turns;
    turns.axis = rotationOf(vectorOf(node, "rotateAxis"), 0);
    turns.own = rotationOf(vectorOf(node, "rotate"), rotateOrderOf(node));
    turns.after = partsOf(parentMatrix(transform)).rotation;
    if (node.isA("joint"))
        turns.after = multiply(rotationOf(vectorOf(node, "jointOrient"), 0), turns.after);
    return turns;
}

void setOwnTurn(Scene &scene, const DagPath &transform, const Matrix &own)
{
    const NodePtr &node = transform.node();
    setVector(scene, node, "rotate", anglesOf(own, rotateOrderOf(*node)));
}

Vec3 worldRotation(const DagPath &transform)
{
    const Turns turns = turnsOf(transform);
    return anglesOf(multiply(multiply(turns.axis, turns.own), turns.after),
                    rotateOrderOf(*transform.node()));
}

void setWorldRotation(Scene &scene, const DagPath &transform, const Vec3 &degrees)
{
    const Turns turns = turnsOf(transform);
    const Matrix wantedTurn = rotationOf(degrees, rotateOrderOf(*transform.node()));
    setOwnTurn(scene, transform,
               multiply(multiply(inverse(turns.axis), wantedTurn), inverse(turns.after)));
}

void addXformCommand(CommandTable &table)
{
    Command command{
        "xform",
        {{"ws", "worldSpace"}, {"os", "objectSpace"}, {"r", "relative"}, {"a", "absolute"}},
        xform,
        {},
        Modes::create | Modes::query};
    for (const Property &property : kProperties)
        command.flags.push_back(property.flag);
    table.add(std::move(command));
}

} // namespace host::mel
