// SPDX-License-Identifier: Apache-2.0
// The attributes that single nodes have: added, removed, learned.
#include <algorithm>
#include <utility>

#include "scene/sceneEdit.h"

namespace host
{

namespace
{

void refuseTakenNames(const Node &node, const Attribute &attribute)
{
    for (const std::string &name : {attribute.longName, attribute.shortName}) {
        if (node.findAttribute(name))
            throw Error("Found an attribute named '" + name + "' on '" + node.uniqueName() +
                        "' already.");
    }
    for (const AttributePtr &child : attribute.children)
        refuseTakenNames(node, *child);
}

bool isBelow(const Attribute *attribute, const Attribute &top)
{
    while (attribute && attribute != &top)
        attribute = attribute->parent;
    return attribute != nullptr;
}

struct Link {
    Plug source;
    Plug destination;
    bool isLocked;
};

// Each connection of the attribute and its children; one between two of them is listed once.
std::vector<Link> linksBelow(const Node &node, const Attribute &top)
{
    std::vector<Link> links;
    for (const auto &[key, source] : node.sources()) {
        if (isBelow(key.attribute, top))
            links.push_back({source.plug(), node.plugOf(key), source.isLocked});
    }
    for (const auto &[key, ends] : node.allDestinations()) {
        for (const Connection &end : ends) {
            const bool isListed = end.node == &node && isBelow(end.attribute.get(), top);
            if (isBelow(key.attribute, top) && !isListed)
                links.push_back({node.plugOf(key), end.plug(), end.isLocked});
        }
    }
    return links;
}

std::vector<Plug> plugsWithStateBelow(const Node &node, const Attribute &top)
{
    std::vector<Plug> plugs;
    for (const auto &entry : node.states()) {
        if (isBelow(entry.first.attribute, top))
            plugs.push_back(node.plugOf(entry.first));
    }
    return plugs;
}

// Calls `visit` with the data of the chain's last attribute, in each element of what is above it.
template <typename SomeDatum, typename Visit>
void visitData(SomeDatum &datum, const AttributeChain &chain, const Visit &visit,
               unsigned depth = 0)
{
    if (depth + 1 == chain.size()) {
        visit(datum);
        return;
    }
    const std::size_t place = placeAmongSiblings(*chain[depth + 1]);
    const auto goBelow = [&](SomeDatum &item) {
        if (place < item.children.size())
            visitData(item.children[place], chain, visit, depth + 1);
    };
    if (!chain[depth]->isArray)
        goBelow(datum);
    for (auto &element : datum.elements)
        goBelow(element.second);
}

bool hasData(const Node &node, const Attribute &attribute)
{
    const AttributeChain chain(attribute);
    const Datum *top = node.datum(Plug(nullptr, ownerOf(node, *chain[0])));
    bool isFound = false;
    if (top)
        visitData(*top, chain, [&](const Datum &datum) { isFound |= !datum.isEmpty(); });
    return isFound;
}

void moveIntoFirstElement(Datum &datum)
{
    if (datum.isEmpty())
        return;
    Datum first = std::move(datum);
    datum = Datum();
    datum.elements[0] = std::move(first);
}

// The plug with index 0 on `attribute`, if it is that or below it.
Plug inFirstElement(Plug plug, const Node &node, const Attribute &attribute)
{
    if (plug.node.get() == &node && isBelow(plug.attribute.get(), attribute))
        plug.indices[attribute.depth() - 1] = 0;
    return plug;
}

void shapeAs(LearnedShape shape, Attribute &attribute)
{
    attribute.isArray = true;
    if (shape == LearnedShape::unorderedArray)
        attribute.indexMatters = false;
    if (shape == LearnedShape::numbers) {
        attribute.kind = AttributeKind::real;
        attribute.typeName = "double";
    }
}

} // namespace

void Scene::addAttribute(const NodePtr &node, const NewAttributePtr &attribute)
{
    if (node->isLocked())
        throw Error("Can not add attributes to the locked node '" + node->uniqueName() + "'.");
    refuseTakenNames(*node, *attribute);
    SceneEdit::number(*node, *attribute);
    perform(
        [node, attribute] { SceneEdit::addOwn(*node, attribute, node->ownAttributes().size()); },
        [node, attribute] { SceneEdit::removeOwn(*node, attribute); });
}

void Scene::removeAttribute(const NodePtr &node, const AttributePtr &attribute)
{
    const std::vector<AttributePtr> &own = node->ownAttributes();
    const auto found = std::find(own.begin(), own.end(), attribute);
    if (found == own.end())
        throw Error("'" + attribute->longName + "' is no dynamic attribute of '" +
                    node->uniqueName() + "'.");
    const std::size_t place = std::size_t(found - own.begin());
    for (const Link &link : linksBelow(*node, *attribute))
        disconnect(link.source, link.destination);
    for (const Plug &plug : plugsWithStateBelow(*node, *attribute))
        setState(plug, PlugState());
    SceneEdit::run(*this, Plug(node, attribute), [&] { node->data_.erase(attribute.get()); });
    dropKeptStatements(node, *attribute);
    perform([node, attribute] { SceneEdit::removeOwn(*node, attribute); },
            [node, attribute, place] { SceneEdit::addOwn(*node, attribute, place); });
}

// What a file said about an attribute makes no sense without it.
void Scene::dropKeptStatements(const NodePtr &node, const Attribute &attribute)
{
    const std::vector<KeptStatement> before = node->keptStatements_;
    std::vector<KeptStatement> after;
    for (const KeptStatement &statement : before) {
        if (!attribute.hasName(statement.attribute))
            after.push_back(statement);
    }
    if (after.size() != before.size())
        perform([node, after] { node->keptStatements_ = after; },
                [node, before] { node->keptStatements_ = before; });
}

AttributePtr Scene::learnAttribute(const NodePtr &node, const AttributePtr &above,
                                   std::string_view name, bool isArray)
{
    const auto attribute = std::make_shared<Attribute>();
    attribute->longName = name;
    attribute->shortName = name;
    attribute->kind = AttributeKind::learned;
    attribute->typeName.clear();
    attribute->isArray = isArray;
    SceneEdit::number(*node, *attribute);
    if (above)
        perform([above, attribute] { SceneEdit::learned(above).addChild(attribute); },
                [above] { SceneEdit::learned(above).children.pop_back(); });
    else
        perform(
            [node, attribute] { SceneEdit::addOwn(*node, attribute, node->ownAttributes_.size()); },
            [node, attribute] { SceneEdit::removeOwn(*node, attribute); });
    return attribute;
}

void Scene::learn(const NodePtr &node, const AttributePtr &attribute, LearnedShape shape)
{
    std::vector<Link> links;
    std::vector<std::pair<Plug, PlugState>> states;
    if (!attribute->isArray) {
        links = linksBelow(*node, *attribute);
        for (const Plug &plug : plugsWithStateBelow(*node, *attribute))
            states.emplace_back(plug, node->state(plug));
    }
    for (const Link &link : links)
        disconnect(link.source, link.destination);
    for (const auto &entry : states)
        setState(entry.first, PlugState());
    if (!attribute->isArray && hasData(*node, *attribute)) {
        const AttributeChain chain(*attribute);
        SceneEdit::run(*this, Plug(node, ownerOf(*node, *chain[0])),
                       [&] { visitData(node->data_.at(chain[0]), chain, moveIntoFirstElement); });
    }
    perform([attribute, shape] { shapeAs(shape, SceneEdit::learned(attribute)); },
            [attribute, before = *attribute] { SceneEdit::learned(attribute) = before; });
    const auto moved = [&](const Plug &plug) { return inFirstElement(plug, *node, *attribute); };
    for (const Link &link : links)
        connect(moved(link.source), moved(link.destination), true, link.isLocked);
    for (const auto &[plug, state] : states)
        setState(moved(plug), state);
}

bool holdsAnything(const Node &node, const Attribute &attribute)
{
    return hasData(node, attribute) || !linksBelow(node, attribute).empty();
}

} // namespace host
