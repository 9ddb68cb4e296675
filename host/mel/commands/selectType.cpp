// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/selectType.h"

#include <memory>
#include <set>
#include <string>

#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

struct MaskFlag {
    Flag flag;
    bool isComponent;
};

const MaskFlag kMasks[] = {
    {{"v", "vertex", "b"}, true},         {{"eg", "edge", "b"}, true},
    {{"fc", "facet", "b"}, true},         {{"pv", "polymeshVertex", "b"}, true},
    {{"pe", "polymeshEdge", "b"}, true},  {{"pf", "polymeshFace", "b"}, true},
    {{"cv", "controlVertex", "b"}, true}, {{"lp", "latticePoint", "b"}, true},
    {{"ha", "handle", "b"}, false},       {{"j", "joint", "b"}, false},
    {{"p", "polymesh", "b"}, false},      {{"nc", "nurbsCurve", "b"}, false},
    {{"ns", "nurbsSurface", "b"}, false}};

// What can be picked. Component masks exist twice: for object mode and for component mode.
struct Pickable {
    std::set<std::string> inObjectMode = {"handle", "joint", "polymesh", "nurbsCurve",
                                          "nurbsSurface"};
    std::set<std::string> inComponentMode = {"vertex", "polymeshVertex", "controlVertex"};
    bool isComponentMode = false;
};
using PickableState = std::shared_ptr<Pickable>;

// Replaces the state, as one undoable step.
void change(Context &context, const PickableState &state, const Pickable &after, const char *event)
{
    const Pickable before = *state;
    *state = after;
    if (context.session.undo().isRecording()) {
        const auto put = [state, event, &events = context.session.events()](const Pickable &value) {
            *state = value;
            events.raise(event);
            return true;
        };
        context.session.undo().record(
            {[put, before] { return put(before); }, [put, after] { return put(after); }});
    }
    context.session.events().raise(event);
}

// The mask of one call: which set of names its component flags mean.
std::set<std::string> &maskOf(Pickable &pickable, const Arguments &arguments, bool isComponent)
{
    const bool isObjectMode = !isComponent || arguments.has("objectComponent");
    return isObjectMode ? pickable.inObjectMode : pickable.inComponentMode;
}

// The rows that a flag means: one mask, or all of a kind.
bool means(const std::string &flag, const MaskFlag &row)
{
    return flag == row.flag.longName || flag == (row.isComponent ? "allComponents" : "allObjects");
}

MelValue query(Pickable pickable, const Arguments &arguments)
{
    for (const auto &[flag, use] : arguments.order) {
        bool isKnown = false;
        bool isOn = true;
        for (const MaskFlag &row : kMasks) {
            if (!means(flag, row))
                continue;
            isKnown = true;
            isOn = isOn && maskOf(pickable, arguments, row.isComponent).count(row.flag.longName);
        }
        if (isKnown)
            return static_cast<long long>(isOn);
    }
    throwNoQuestion();
}

// In the order of the call: "-allComponents false -vertex true" leaves vertices.
MelValue selectType(Context &context, const Arguments &arguments, const PickableState &state)
{
    if (arguments.isQuery())
        return query(*state, arguments);
    Pickable after = *state;
    for (const auto &[flag, use] : arguments.order) {
        for (const MaskFlag &row : kMasks) {
            if (!means(flag, row))
                continue;
            std::set<std::string> &mask = maskOf(after, arguments, row.isComponent);
            if (arguments.of(flag, use)[0].boolean())
                mask.insert(row.flag.longName);
            else
                mask.erase(row.flag.longName);
        }
    }
    change(context, state, after, "SelectTypeChanged");
    return {};
}

MelValue selectMode(Context &context, const Arguments &arguments, const PickableState &state)
{
    if (arguments.isQuery())
        return static_cast<long long>(arguments.has("component") == state->isComponentMode);
    Pickable after = *state;
    if (arguments.has("component"))
        after.isComponentMode = true;
    else if (arguments.has("object"))
        after.isComponentMode = false;
    change(context, state, after, "SelectModeChanged");
    return {};
}

} // namespace

void addSelectTypeCommands(CommandTable &table)
{
    const PickableState state = std::make_shared<Pickable>();
    Command command;
    command.name = "selectType";
    command.objects = {0, 0};
    command.modes = Modes::create | Modes::query;
    command.flags = {
        {"ocm", "objectComponent"}, {"alc", "allComponents", "b"}, {"alo", "allObjects", "b"}};
    for (const MaskFlag &row : kMasks)
        command.flags.push_back(row.flag);
    command.run = [state](Context &context, const Arguments &arguments) {
        return selectType(context, arguments, state);
    };
    table.add(command);

    command.name = "selectMode";
    command.flags = {{"o", "object"}, {"co", "component"}};
    command.run = [state](Context &context, const Arguments &arguments) {
        return selectMode(context, arguments, state);
    };
    table.add(command);
}

} // namespace host::mel
