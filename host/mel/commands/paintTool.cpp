// SPDX-License-Identifier: Apache-2.0
// The tool for painting skin weights: artAttrSkinPaintCtx and the procedures that Maya's menus and
// riggers' scripts drive it with. It is set up and flooded by script; there are no strokes.
#include <algorithm>
#include <cmath>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/paintFlood.h"

namespace host::mel
{

namespace
{

using skin::PaintOperation;

struct OperationName {
    const char *word; // of artAttrPaintOperation
    const char *flag; // of -selectedattroper
    PaintOperation operation;
};
const OperationName kOperations[] = {{"Replace", "absolute", PaintOperation::replace},
                                     {"Add", "additive", PaintOperation::add},
                                     {"Scale", "scale", PaintOperation::scale},
                                     {"Smooth", "smooth", PaintOperation::smooth}};

struct ClampName {
    const char *name;
    bool lower;
    bool upper;
};
const ClampName kClamps[] = {
    {"none", false, false}, {"lower", true, false}, {"upper", false, true}, {"both", true, true}};

[[noreturn]] void refuseValue(const Operand &operand, const char *flag)
{
    throw Error("The value " + operand.string() + " of flag '" + flag +
                "' is out of range or not supported.");
}

double numberWithin(const Operand &operand, const char *flag, double least, double most)
{
    const double number = operand.number();
    if (!(number >= least && number <= most))
        refuseValue(operand, flag);
    return number;
}

// Painting does not limit values: a clamp and the write rule do.
double anyNumber(const Operand &operand, const char *flag)
{
    constexpr double kLargest = 1e30;
    return numberWithin(operand, flag, -kLargest, kLargest);
}

// --- The settings, a row per flag ----------------------------------------------------------------

void setInfluence(Context &context, SkinPaintTool &tool, std::string_view name)
{
    const NodePtr node = requireNode(context, name);
    if (!isInfluence(*node))
        throw Error("'" + node->uniqueName() + "' is no influence of a skin cluster.");
    tool.influence = node;
}

void setOperation(Context &, SkinPaintTool &tool, const Operand &operand)
{
    for (const OperationName &row : kOperations) {
        if (operand.text == row.flag) {
            tool.brush.operation = row.operation;
            return;
        }
    }
    refuseValue(operand, "sao");
}

MelValue operationName(const SkinPaintTool &tool)
{
    const auto *found =
        std::find_if(std::begin(kOperations), std::end(kOperations), [&](const OperationName &row) {
            return row.operation == tool.brush.operation;
        });
    return std::string(found->flag);
}

void setClamp(Context &, SkinPaintTool &tool, const Operand &operand)
{
    for (const ClampName &row : kClamps) {
        if (operand.text == row.name) {
            tool.brush.clampLower = row.lower;
            tool.brush.clampUpper = row.upper;
            return;
        }
    }
    refuseValue(operand, "cla");
}

MelValue clampName(const SkinPaintTool &tool)
{
    const auto *found =
        std::find_if(std::begin(kClamps), std::end(kClamps), [&](const ClampName &row) {
            return row.lower == tool.brush.clampLower && row.upper == tool.brush.clampUpper;
        });
    return std::string(found->name);
}

MelValue influenceName(const SkinPaintTool &tool)
{
    const NodePtr influence = tool.influence.lock();
    return influence && influence->isInScene() ? influence->uniqueName() : std::string();
}

struct Setting {
    Flag flag;
    void (*set)(Context &context, SkinPaintTool &tool, const Operand &operand);
    MelValue (*value)(const SkinPaintTool &tool);
};

const Setting kSettings[] = {
    {{"op", "opacity", "d"},
     [](Context &, SkinPaintTool &tool, const Operand &operand) {
         tool.brush.opacity = numberWithin(operand, "op", 0, 1);
     },
     [](const SkinPaintTool &tool) -> MelValue { return tool.brush.opacity; }},
    {{"val", "value", "d"},
     [](Context &, SkinPaintTool &tool, const Operand &operand) {
         tool.brush.value = anyNumber(operand, "val");
     },
     [](const SkinPaintTool &tool) -> MelValue { return tool.brush.value; }},
    {{"min", "minvalue", "d"},
     [](Context &, SkinPaintTool &tool, const Operand &operand) {
         tool.brush.minValue = anyNumber(operand, "min");
     },
     [](const SkinPaintTool &tool) -> MelValue { return tool.brush.minValue; }},
    {{"max", "maxvalue", "d"},
     [](Context &, SkinPaintTool &tool, const Operand &operand) {
         tool.brush.maxValue = anyNumber(operand, "max");
     },
     [](const SkinPaintTool &tool) -> MelValue { return tool.brush.maxValue; }},
    {{"spm", "skinPaintMode", "i"},
     [](Context &, SkinPaintTool &tool, const Operand &operand) {
         tool.mode = int(numberWithin(operand, "spm", 0, 2));
     },
     [](const SkinPaintTool &tool) -> MelValue { return static_cast<long long>(tool.mode); }},
    {{"inf", "influence", "s"},
     [](Context &context, SkinPaintTool &tool, const Operand &operand) {
         setInfluence(context, tool, operand.text);
     },
     influenceName},
    {{"cla", "clamp", "s"}, setClamp, clampName},
    {{"sao", "selectedattroper", "s"}, setOperation, operationName},
};

// What a brush on the screen looks like and runs: kept for queries.
const Flag kDisplayFlags[] = {{"aco", "accopacity", "b"},
                              {"r", "radius", "d"},
                              {"lr", "lowerradius", "d"},
                              {"stP", "stampProfile", "s"},
                              {"mp", "mappressure", "s"},
                              {"cf", "colorfeedback", "b"},
                              {"tnp", "toolOnProc", "s"},
                              {"tfp", "toolOffProc", "s"},
                              {"acp", "activeListChangedProc", "s"},
                              {"asc", "afterStrokeCmd", "s"},
                              {"ucr", "useColorRamp", "b"},
                              {"xrj", "xrayJoints", "b"}};

MelValue displayValue(const SkinPaintTool &tool, const Flag &flag)
{
    const auto found = tool.display.find(flag.longName);
    const std::string text = found == tool.display.end() ? std::string() : found->second;
    const Operand operand{text};
    switch (flag.arguments[0]) {
    case 'b':
        return static_cast<long long>(!text.empty() && operand.boolean());
    case 'd':
        return text.empty() ? 0.0 : operand.number();
    default:
        return text;
    }
}

// --- The commands --------------------------------------------------------------------------------

void requirePaintContext(Context &context, const Operand &name)
{
    if (context.session.tools().contextNamed(name.text) != kSkinPaintContext)
        throw Error("Tool context '" + name.string() + "' not found.");
}

MelValue query(const SkinPaintTool &tool, const Arguments &arguments)
{
    for (const Setting &setting : kSettings) {
        if (arguments.has(setting.flag.longName))
            return setting.value(tool);
    }
    for (const Flag &flag : kDisplayFlags) {
        if (arguments.has(flag.longName))
            return displayValue(tool, flag);
    }
    throwNoQuestion();
}

// All flags are read before the first one counts.
SkinPaintTool edited(Context &context, const Arguments &arguments)
{
    SkinPaintTool tool = context.session.tools().skinPaint();
    for (const Setting &setting : kSettings) {
        if (arguments.has(setting.flag.longName))
            setting.set(context, tool, arguments.of(setting.flag.longName)[0]);
    }
    for (const Flag &flag : kDisplayFlags) {
        if (arguments.has(flag.longName))
            tool.display[flag.longName] = arguments.string(flag.longName);
    }
    return tool;
}

MelValue paintContext(Context &context, const Arguments &arguments)
{
    if (!arguments.isEdit() && !arguments.isQuery())
        throw Error("There is one context for painting skin weights: use -edit or -query.");
    requirePaintContext(context, arguments.objects[0]);
    ToolState &tools = context.session.tools();
    if (arguments.isQuery())
        return query(tools.skinPaint(), arguments);
    const bool isFlood = arguments.has("clear");
    if (isFlood && tools.current() != kSkinPaintContext)
        throw Error(std::string("'") + kSkinPaintContext + "' is not the current tool.");
    const SkinPaintTool tool = edited(context, arguments);
    if (isFlood)
        floodWeights(context, tool);
    if (arguments.order.size() > (isFlood ? 1u : 0u))
        tools.setSkinPaint(tool);
    return {};
}

MelValue enterTool(Context &context, const Arguments &)
{
    context.session.tools().enter(kSkinPaintContext);
    return {};
}

// The number says which windows to show along; there are none.
MelValue toolScript(Context &context, const Arguments &arguments)
{
    arguments.objects[0].integer(); // refuses what is no number
    context.session.tools().enter(kSkinPaintContext);
    return {};
}

// Fills a menu of the tool's window.
MelValue jointMenu(Context &, const Arguments &)
{
    return {};
}

MelValue paintOperation(Context &context, const Arguments &arguments)
{
    requirePaintContext(context, arguments.objects[0]);
    const std::string_view word = arguments.objects[1].text;
    for (const OperationName &row : kOperations) {
        if (word != row.word)
            continue;
        SkinPaintTool tool = context.session.tools().skinPaint();
        tool.brush.operation = row.operation;
        context.session.tools().setSkinPaint(tool);
        return {};
    }
    throw Error("'" + std::string(word) + "' is no paint operation.");
}

// The third operand is the text that the tool's window shows for the joint.
MelValue selectInfluence(Context &context, const Arguments &arguments)
{
    requirePaintContext(context, arguments.objects[0]);
    SkinPaintTool tool = context.session.tools().skinPaint();
    setInfluence(context, tool, arguments.objects[1].text);
    context.session.tools().setSkinPaint(tool);
    return {};
}

} // namespace

void addPaintToolCommands(CommandTable &table)
{
    Command command;
    command.name = "artAttrSkinPaintCtx";
    command.flags = {{"cl", "clear"}};
    for (const Setting &setting : kSettings)
        command.flags.push_back(setting.flag);
    command.flags.insert(command.flags.end(), std::begin(kDisplayFlags), std::end(kDisplayFlags));
    command.run = paintContext;
    command.objects = {1, 1};
    command.modes = Modes::create | Modes::query | Modes::edit;
    table.add(std::move(command));

    table.add({"ArtPaintSkinWeightsTool", {}, enterTool, {0, 0}});
    table.add({"artAttrSkinToolScript", {}, toolScript, {1, 1}});
    table.add({"artAttrSkinJointMenu", {}, jointMenu, {2, 2}});
    table.add({"artAttrPaintOperation", {}, paintOperation, {2, 2}});
    table.add({"artSkinSelectInfluence", {}, selectInfluence, {2, 3}});
}

} // namespace host::mel
