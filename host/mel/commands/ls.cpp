// SPDX-License-Identifier: Apache-2.0
// ls: names of nodes, of what is selected, of what matches a pattern.
#include <algorithm>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"

namespace host::mel
{

namespace
{

using Items = std::vector<SelectionItem>;

const std::vector<Flag> kFlags = {{"sl", "selection"},
                                  {"l", "long"},
                                  {"fl", "flatten"},
                                  {"typ", "type", "s", Flag::multiUse},
                                  {"ext", "excludeType", "s", Flag::multiUse},
                                  {"et", "exactType", "s", Flag::multiUse},
                                  {"dag", "dagObjects"},
                                  {"s", "shapes"},
                                  {"tr", "transforms"},
                                  {"as", "assemblies"},
                                  {"hl", "hilite"},
                                  {"os", "orderedSelection"},
                                  {"o", "objectsOnly"},
                                  {"hd", "head", "i"},
                                  {"tl", "tail", "i"},
                                  {"ap", "allPaths"},
                                  {"ni", "noIntermediate"},
                                  {"io", "intermediateObjects"},
                                  {"dn", "defaultNodes"},
                                  {"ln", "lockedNodes"},
                                  {"r", "recursive", "b"},
                                  {"st", "showType"},
                                  {"uid", "uuid"}};

void append(Items &items, const Items &more)
{
    items.insert(items.end(), more.begin(), more.end());
}

Items allNodes(const Scene &scene)
{
    Items items;
    for (const NodePtr &node : scene.nodes())
        items.push_back(itemOf(node));
    return items;
}

// Unlike other commands, ls takes a name that several nodes have for all of them.
Items named(const Scene &scene, std::string_view name)
{
    if (name.find_first_of("*?.") != std::string_view::npos)
        return matchName(scene, name);
    Items items;
    for (const DagPath &path : scene.pathsMatching(name))
        items.push_back(itemOf(path));
    if (!items.empty() || name.find('|') != std::string_view::npos)
        return items;
    for (const NodePtr &node : scene.nodesNamed(name))
        items.push_back(itemOf(node));
    return items;
}

// Of a node with instances the first path that was found stands for all; -allPaths adds the others.
Items oncePerNode(const Items &items)
{
    Items once;
    std::unordered_set<const Node *> seen;
    for (const SelectionItem &item : items) {
        if (item.component || item.isPlug() || seen.insert(item.node.get()).second)
            once.push_back(item);
    }
    return once;
}

// With -recursive a plain name or pattern is looked for in every namespace.
Items matches(const Scene &scene, std::string_view pattern, bool isRecursive)
{
    Items items = named(scene, pattern);
    if (!isRecursive || pattern.find_first_of("|:.") != std::string_view::npos)
        return items;
    for (const std::string &nameSpace : scene.namespaces())
        append(items, named(scene, nameSpace + ':' + std::string(pattern)));
    return items;
}

Items selectedOf(const Items &items, const SelectionList &selection)
{
    std::unordered_map<const Node *, SelectionList> ofNode;
    for (const SelectionItem &item : selection.items())
        ofNode[item.node.get()].append(item);
    Items selected;
    for (const SelectionItem &item : items) {
        const auto found = ofNode.find(item.node.get());
        if (found != ofNode.end() && found->second.has(item))
            selected.push_back(item);
    }
    return selected;
}

Items listed(Context &context, const Arguments &arguments)
{
    const Session &session = context.session;
    Items items;
    if (arguments.has("orderedSelection"))
        return session.orderedSelection().items();
    if (arguments.has("hilite"))
        return session.hilited().items();
    for (const Operand &object : arguments.objects)
        append(items, matches(context.scene(), object.text, arguments.boolean("recursive", false)));
    items = oncePerNode(items);
    if (arguments.has("selection")) {
        if (arguments.objects.empty())
            return session.selection().items();
        return selectedOf(items, session.selection());
    }
    return arguments.objects.empty() ? allNodes(context.scene()) : items;
}

void appendHierarchy(const DagPath &path, Items &items)
{
    items.push_back(itemOf(path));
    for (const NodePtr &child : path.node()->children())
        appendHierarchy(path.child(child), items);
}

// -dag lists what is below the objects too; without objects the whole DAG from the top.
Items withHierarchy(Context &context, const Items &items, bool isEverything)
{
    Items all;
    if (isEverything) {
        for (const NodePtr &node : context.scene().world()->children())
            appendHierarchy(DagPath({node}), all);
        return all;
    }
    for (const SelectionItem &item : items) {
        if (!item.path.isNull())
            appendHierarchy(item.path, all);
    }
    return all;
}

bool isAnyOf(const Node &node, const Arguments &arguments, const char *flag, bool exactly)
{
    for (std::size_t use = 0; use < arguments.uses(flag); ++use) {
        const std::string_view type = arguments.of(flag, use).front().text;
        if (exactly ? node.type().name == type : node.isA(type))
            return true;
    }
    return false;
}

bool isAssembly(const SelectionItem &item)
{
    return item.path.nodes().size() == 1;
}

struct Filter {
    const char *flag;
    bool (*keeps)(const SelectionItem &item);
};
// Each flag that is given keeps what its function accepts.
const Filter kFilters[] = {
    {"shapes", [](const SelectionItem &item) { return isShape(*item.node); }},
    {"transforms", [](const SelectionItem &item) { return item.node->isA("transform"); }},
    {"assemblies", isAssembly},
    {"noIntermediate",
     [](const SelectionItem &item) {
         return !isShape(*item.node) || !item.node->isIntermediate();
     }},
    {"intermediateObjects",
     [](const SelectionItem &item) { return isShape(*item.node) && item.node->isIntermediate(); }},
    {"defaultNodes",
     [](const SelectionItem &item) { return item.node->isDefault() || item.node->isShared(); }},
    {"lockedNodes", [](const SelectionItem &item) { return item.node->isLocked(); }},
};

bool isKept(const SelectionItem &item, const Arguments &arguments)
{
    const Node &node = *item.node;
    if (arguments.has("type") && !isAnyOf(node, arguments, "type", false))
        return false;
    if (arguments.has("exactType") && !isAnyOf(node, arguments, "exactType", true))
        return false;
    if (isAnyOf(node, arguments, "excludeType", false))
        return false;
    return std::all_of(std::begin(kFilters), std::end(kFilters), [&](const Filter &filter) {
        return !arguments.has(filter.flag) || filter.keeps(item);
    });
}

// Each path of a node once, where the node comes first.
Items withAllPaths(const Items &items)
{
    Items all;
    for (const SelectionItem &item : oncePerNode(items)) {
        if (item.path.isNull() || item.component || item.isPlug()) {
            all.push_back(item);
            continue;
        }
        for (const DagPath &path : DagPath::all(item.node))
            all.push_back(itemOf(path));
    }
    return all;
}

Items objectsOnly(const Items &items)
{
    Items objects;
    std::set<std::pair<const Node *, std::vector<NodePtr>>> seen;
    for (const SelectionItem &item : items) {
        if (seen.emplace(item.node.get(), item.path.nodes()).second)
            objects.push_back(item.path.isNull() ? itemOf(item.node) : itemOf(item.path));
    }
    return objects;
}

// One name of the answer.
struct Entry {
    std::string name;
    const Node *node;
};

std::vector<Entry> entriesOf(const Items &items, const Arguments &arguments)
{
    std::vector<Entry> entries;
    for (const SelectionItem &item : items) {
        if (arguments.has("uuid")) {
            entries.push_back({item.node->uuid(), item.node.get()});
            continue;
        }
        for (std::string &name : item.names(arguments.has("long"), arguments.has("flatten")))
            entries.push_back({std::move(name), item.node.get()});
    }
    return entries;
}

void cutEnds(std::vector<Entry> &entries, const Arguments &arguments)
{
    const auto limit = [&entries, &arguments](const char *flag) {
        const auto count = std::size_t(std::max(0LL, arguments.integer(flag, 0)));
        return long(std::min(count, entries.size()));
    };
    if (arguments.has("head"))
        entries.erase(entries.begin() + limit("head"), entries.end());
    if (arguments.has("tail"))
        entries.erase(entries.begin(), entries.end() - limit("tail"));
}

std::vector<std::string> namesOf(std::vector<Entry> entries, bool showsType)
{
    std::vector<std::string> names;
    names.reserve(entries.size());
    for (Entry &entry : entries) {
        names.push_back(std::move(entry.name));
        if (showsType)
            names.push_back(entry.node->type().name);
    }
    return names;
}

MelValue ls(Context &context, const Arguments &arguments)
{
    Items items = listed(context, arguments);
    if (arguments.has("dagObjects")) {
        const bool isEverything = arguments.objects.empty() && !arguments.has("selection") &&
                                  !arguments.has("orderedSelection") && !arguments.has("hilite");
        items = withHierarchy(context, items, isEverything);
    }
    const auto isDropped = [&arguments](const SelectionItem &item) {
        return !isKept(item, arguments);
    };
    items.erase(std::remove_if(items.begin(), items.end(), isDropped), items.end());
    if (arguments.has("objectsOnly"))
        items = objectsOnly(items);
    if (arguments.has("allPaths"))
        items = withAllPaths(items);
    else if (arguments.has("dagObjects"))
        items = oncePerNode(items);
    std::vector<Entry> entries = entriesOf(items, arguments);
    cutEnds(entries, arguments);
    return namesOf(std::move(entries), arguments.has("showType"));
}

} // namespace

void addListCommand(CommandTable &table)
{
    table.add({"ls", kFlags, ls});
}

} // namespace host::mel
