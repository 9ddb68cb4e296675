// SPDX-License-Identifier: Apache-2.0
// sets: makes sets, changes and asks what belongs to them.
#include <map>
#include <unordered_set>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/setEditor.h"
#include "scene/setMembers.h"

namespace host::mel
{

namespace
{

// What the call means. Components of one shape are joined, however many operands name them.
std::vector<SelectionItem> itemsOf(Context &context, const Arguments &arguments)
{
    std::vector<SelectionItem> items;
    std::map<std::pair<std::vector<NodePtr>, ComponentKind>, std::size_t> places;
    for (SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (!item.component) {
            items.push_back(std::move(item));
            continue;
        }
        const std::pair key(item.path.nodes(), item.component->kind);
        const auto [place, isNew] = places.emplace(key, items.size());
        if (isNew) {
            items.push_back(std::move(item));
            continue;
        }
        std::vector<int> &elements = items[place->second].component->elements;
        elements.insert(elements.end(), item.component->elements.begin(),
                        item.component->elements.end());
    }
    for (const auto &entry : places)
        items[entry.second].component->normalize();
    return items;
}

// The other sets of the set's partitions: an object belongs to one of all these at most.
std::unordered_set<const Node *> rivalsOf(const Node &set)
{
    std::unordered_set<const Node *> rivals;
    for (const Connection &end : set.destinations(set.plug("partition"))) {
        if (!end.node->isA("partition"))
            continue;
        const Plug sets = end.node->plug("sets");
        for (const int index : end.node->elementIndices(sets)) {
            const Connection *source = end.node->source(sets.element(index));
            if (source && source->node != &set)
                rivals.insert(source->node);
        }
    }
    return rivals;
}

// Sets of the partition that hold the item or, where a shading group takes its shapes, one of them.
std::vector<NodePtr> rivalsHolding(const SelectionItem &item,
                                   const std::unordered_set<const Node *> &rivals)
{
    std::vector<NodePtr> holding;
    const auto take = [&](const SelectionItem &one) {
        for (const NodePtr &set : setsOf(one)) {
            if (rivals.count(set.get()) > 0)
                holding.push_back(set);
        }
    };
    take(item);
    if (!item.component && !item.path.isNull()) {
        for (const NodePtr &child : item.node->children()) {
            if (isShape(*child))
                take(itemOf(item.path.child(child)));
        }
    }
    return holding;
}

enum class Rivals { refuse, leave };

void addItems(Context &context, const Arguments &arguments, const NodePtr &set, Rivals meaning)
{
    const std::unordered_set<const Node *> rivals = rivalsOf(*set);
    SetEditor editor(context.scene(), set);
    for (const SelectionItem &item : itemsOf(context, arguments)) {
        for (const NodePtr &rival : rivalsHolding(item, rivals)) {
            if (meaning == Rivals::refuse)
                throw Error("sets: '" + item.names().front() + "' belongs to '" +
                            rival->uniqueName() + "', a set of the same partition.");
            SetEditor(context.scene(), rival).remove(item);
        }
        editor.add(item);
    }
}

MelValue add(Context &context, const Arguments &arguments, const NodePtr &set)
{
    addItems(context, arguments, set, Rivals::refuse);
    return set->uniqueName();
}

MelValue forceElement(Context &context, const Arguments &arguments, const NodePtr &set)
{
    addItems(context, arguments, set, Rivals::leave);
    return set->uniqueName();
}

MelValue remove(Context &context, const Arguments &arguments, const NodePtr &set)
{
    SetEditor editor(context.scene(), set);
    for (const SelectionItem &item : itemsOf(context, arguments))
        editor.remove(item);
    return set->uniqueName();
}

MelValue clear(Context &context, const Arguments &, const NodePtr &set)
{
    SetEditor(context.scene(), set).clear();
    return set->uniqueName();
}

MelValue isMember(Context &context, const Arguments &arguments, const NodePtr &set)
{
    const SetEditor editor(context.scene(), set);
    const std::vector<SelectionItem> items = itemsOf(context, arguments);
    for (const SelectionItem &item : items) {
        if (!editor.has(item))
            return 0LL;
    }
    return static_cast<long long>(!items.empty());
}

struct Operation {
    Flag flag; // names the set
    MelValue (*run)(Context &context, const Arguments &arguments, const NodePtr &set);
};
const Operation kOperations[] = {{{"add", "addElement", "s"}, add},
                                 {{"fe", "forceElement", "s"}, forceElement},
                                 {{"rm", "remove", "s"}, remove},
                                 {{"cl", "clear", "s"}, clear},
                                 {{"im", "isMember", "s"}, isMember}};

const Operation *operationOf(const Arguments &arguments)
{
    const Operation *found = nullptr;
    for (const Operation &operation : kOperations) {
        if (!arguments.has(operation.flag.longName))
            continue;
        if (found)
            throw Error("sets: Only one operation can be done at a time.");
        found = &operation;
    }
    return found;
}

MelValue create(Context &context, const Arguments &arguments)
{
    Scene &scene = context.scene();
    const NodePtr set = scene.createNode("objectSet", arguments.string("name", "set#"));
    if (arguments.has("vertices"))
        scene.setValue(set->plug("verticesOnlySet"), 1.0);
    if (!arguments.has("empty"))
        addItems(context, arguments, set, Rivals::refuse);
    return set->uniqueName();
}

MelValue query(Context &context, const Arguments &arguments)
{
    requireObjectCount("sets", arguments.objects.size(), {1, Objects::kAny});
    std::vector<std::string> names;
    for (const Operand &object : arguments.objects) {
        const NodePtr set = requireNodeOfType(context, object.text, "objectSet");
        for (const SelectionItem &member : setMembers(*set)) {
            for (std::string &name : member.names())
                names.push_back(std::move(name));
        }
    }
    return names;
}

MelValue sets(Context &context, const Arguments &arguments)
{
    if (arguments.isQuery())
        return query(context, arguments);
    const Operation *operation = operationOf(arguments);
    if (!operation && arguments.isEdit())
        throw Error("sets: A flag has to say what is edited.");
    if (!operation)
        return create(context, arguments);
    const std::string name = arguments.string(operation->flag.longName);
    return operation->run(context, arguments, requireNodeOfType(context, name, "objectSet"));
}

} // namespace

void addSetCommand(CommandTable &table)
{
    Command command{"sets",
                    {{"n", "name", "s"}, {"em", "empty"}, {"v", "vertices"}},
                    sets,
                    {},
                    Modes::create | Modes::query | Modes::edit};
    for (const Operation &operation : kOperations)
        command.flags.push_back(operation.flag);
    table.add(std::move(command));
}

} // namespace host::mel
