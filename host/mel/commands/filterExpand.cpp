// SPDX-License-Identifier: Apache-2.0
// filterExpand: of the selection or of what is named, the objects and components of certain kinds.
#include <algorithm>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/skinClusterCommand.h"

namespace host::mel
{

namespace
{

struct ObjectMask {
    long long number;
    const char *shape;
};
constexpr ObjectMask kObjects[] = {{9, "nurbsCurve"}, {10, "nurbsSurface"}, {12, "mesh"}};

struct ComponentMask {
    long long number;
    ComponentKind kind;
};
constexpr ComponentMask kComponents[] = {{31, ComponentKind::vertex},
                                         {32, ComponentKind::edge},
                                         {34, ComponentKind::face},
                                         {35, ComponentKind::uv}};

// The numbers of Maya's list go from handles to subdivision UVs. Of those that stand in neither
// table the host can not select anything.
constexpr long long kLastMask = 73;

std::vector<long long> masksOf(const Arguments &arguments)
{
    std::vector<long long> masks;
    for (std::size_t use = 0; use < arguments.uses("selectionMask"); ++use) {
        masks.push_back(arguments.of("selectionMask", use)[0].integer());
        if (masks.back() > kLastMask)
            throw Error("filterExpand: There is no selection mask " + std::to_string(masks.back()) +
                        '.');
    }
    if (masks.empty())
        throw Error("filterExpand: A selection mask (-sm) is needed.");
    return masks;
}

long long maskOf(const SelectionItem &item)
{
    if (item.component) {
        for (const ComponentMask &row : kComponents) {
            if (row.kind == item.component->kind)
                return row.number;
        }
        return -1;
    }
    const DagPath shape = visibleShape(item);
    for (const ObjectMask &row : kObjects) {
        if (!shape.isNull() && shape.node()->isA(row.shape))
            return row.number;
    }
    return -1;
}

MelValue filterExpand(Context &context, const Arguments &arguments)
{
    const std::vector<long long> masks = masksOf(arguments);
    const bool expands = arguments.boolean("expand", true);
    const bool fullPath = arguments.boolean("fullPath", false);
    std::vector<std::string> names;
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (std::find(masks.begin(), masks.end(), maskOf(item)) == masks.end())
            continue;
        for (std::string &name : item.names(fullPath, expands))
            names.push_back(std::move(name));
    }
    return names;
}

} // namespace

void addFilterExpandCommand(CommandTable &table)
{
    table.add({"filterExpand",
               {{"sm", "selectionMask", "u", Flag::multiUse},
                {"ex", "expand", "b"},
                {"fp", "fullPath", "b"}},
               filterExpand});
}

} // namespace host::mel
