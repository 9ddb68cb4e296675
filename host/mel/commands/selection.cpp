// SPDX-License-Identifier: Apache-2.0
// select, hilite and selectPref: what is picked, and which objects show their components.
#include <algorithm>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/selectType.h"
#include "scene/setMembers.h"

namespace host::mel
{

namespace
{

using Adjustment = Session::Adjustment;
using Items = std::vector<SelectionItem>;

const std::vector<Flag> kSelectFlags = {
    {"r", "replace"},   {"add", "add"},           {"af", "addFirst"},
    {"d", "deselect"},  {"tgl", "toggle"},        {"cl", "clear"},
    {"all", "all"},     {"ado", "allDagObjects"}, {"adn", "allDependencyNodes"},
    {"ne", "noExpand"}, {"hi", "hierarchy"},      {"vis", "visible"}};

struct AdjustmentFlag {
    const char *flag;
    Adjustment adjustment;
};
const AdjustmentFlag kAdjustmentFlags[] = {{"replace", Adjustment::replace},
                                           {"add", Adjustment::add},
                                           {"addFirst", Adjustment::addToHead},
                                           {"deselect", Adjustment::remove},
                                           {"toggle", Adjustment::toggle}};

SelectionItem wholeNode(const NodePtr &node)
{
    SelectionItem item;
    item.node = node;
    if (node->isDag())
        item.path = DagPath::first(node);
    return item;
}

SelectionItem wholePath(const DagPath &path)
{
    SelectionItem item;
    item.node = path.node();
    item.path = path;
    return item;
}

// The default cameras are left out, which would take them along in "select -all; delete".
Items topObjects(const Scene &scene)
{
    Items items;
    for (const NodePtr &node : scene.world()->children()) {
        if (!node->isShared())
            items.push_back(wholePath(DagPath({node})));
    }
    return items;
}

Items dependencyNodes(const Scene &scene, bool withDagObjects)
{
    Items items;
    for (const NodePtr &node : scene.nodes()) {
        if (!node->isDefault() && !node->isShared() && (withDagObjects || !node->isDag()))
            items.push_back(wholeNode(node));
    }
    return items;
}

// What the call names before it is expanded or narrowed down.
Items namedItems(Context &context, const Arguments &arguments)
{
    const Scene &scene = context.scene();
    Items items;
    if (arguments.has("all") || arguments.has("allDagObjects"))
        items = topObjects(scene);
    if (arguments.has("all") || arguments.has("allDependencyNodes")) {
        const Items more = dependencyNodes(scene, arguments.has("allDependencyNodes"));
        items.insert(items.end(), more.begin(), more.end());
    }
    if (arguments.objects.empty() && !items.empty())
        return items;
    const Items objects = objectsOrSelection(context, arguments);
    items.insert(items.end(), objects.begin(), objects.end());
    return items;
}

Items withSetsExpanded(const Items &items)
{
    Items expanded;
    for (const SelectionItem &item : items) {
        if (item.isPlug() || item.component || !item.node->isA("objectSet")) {
            expanded.push_back(item);
            continue;
        }
        const Items members = setMembers(*item.node);
        expanded.insert(expanded.end(), members.begin(), members.end());
    }
    return expanded;
}

// Everything below `path`, each parent before its children.
void addBelow(const DagPath &path, Items &items)
{
    for (const NodePtr &child : path.node()->children()) {
        items.push_back(wholePath(path.child(child)));
        addBelow(path.child(child), items);
    }
}

Items withHierarchy(const Items &items)
{
    Items all;
    for (const SelectionItem &item : items) {
        all.push_back(item);
        if (!item.path.isNull() && !item.component && !item.isPlug())
            addBelow(item.path, all);
    }
    return all;
}

bool isHidden(const SelectionItem &item)
{
    const std::vector<NodePtr> &nodes = item.path.nodes();
    return std::any_of(nodes.begin(), nodes.end(), [](const NodePtr &node) {
        return evaluateNumber(node->plug("visibility")) == 0;
    });
}

MelValue select(Context &context, const Arguments &arguments)
{
    if (arguments.has("clear")) {
        context.session.adjustSelection({}, Adjustment::replace);
        return {};
    }
    Items items = namedItems(context, arguments);
    if (!arguments.has("noExpand"))
        items = withSetsExpanded(items);
    if (arguments.has("hierarchy"))
        items = withHierarchy(items);
    if (arguments.has("visible"))
        items.erase(std::remove_if(items.begin(), items.end(), isHidden), items.end());
    Adjustment adjustment = Adjustment::replace;
    for (const AdjustmentFlag &row : kAdjustmentFlags) {
        if (arguments.has(row.flag))
            adjustment = row.adjustment;
    }
    context.session.adjustSelection(items, adjustment);
    return {};
}

// The list knows an object as its transform or, once its components were selected, as its shape:
// both go when one of them is named.
void removeObject(SelectionList &list, const SelectionItem &item)
{
    list.remove(item);
    if (item.path.isNull())
        return;
    if (isShape(*item.node) && !item.path.parent().isNull())
        list.remove(wholePath(item.path.parent()));
    for (const NodePtr &child : item.node->children()) {
        if (isShape(*child))
            list.remove(wholePath(item.path.child(child)));
    }
}

MelValue hilite(Context &context, const Arguments &arguments)
{
    SelectionList list = context.session.hilited();
    const Items items = objectsOrSelection(context, arguments);
    const bool toggles = arguments.has("toggle");
    const bool removes = arguments.has("unHilite");
    if (arguments.has("replace"))
        list.clear();
    for (SelectionItem item : items) {
        item.component.reset();
        if (toggles)
            list.toggle(item);
        else if (removes)
            removeObject(list, item);
        else
            list.merge(item);
    }
    context.session.setHilited(list);
    return {};
}

MelValue selectPref(Context &context, const Arguments &arguments)
{
    if (arguments.isQuery())
        return static_cast<long long>(context.session.isSelectionOrderTracked());
    if (arguments.has("trackSelectionOrder"))
        context.session.setSelectionOrderTracked(arguments.boolean("trackSelectionOrder", false));
    return {};
}

} // namespace

void addSelectionCommands(CommandTable &table)
{
    table.add({"select", kSelectFlags, select});
    table.add({"hilite", {{"r", "replace"}, {"tgl", "toggle"}, {"u", "unHilite"}}, hilite});
    table.add({"selectPref",
               {{"tso", "trackSelectionOrder", "b"}},
               selectPref,
               {0, 0},
               Modes::create | Modes::query});
    addSelectTypeCommands(table);
}

} // namespace host::mel
