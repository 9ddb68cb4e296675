// SPDX-License-Identifier: Apache-2.0
// Connections between plugs, and the values that flow through them.
#include <algorithm>
#include <set>

#include "scene/plugAccess.h"
#include "scene/scene.h"
#include "scene/transform.h"

namespace host
{

namespace
{

Connection endOf(const Plug &plug, bool isLocked)
{
    Connection end;
    end.node = plug.node.get();
    end.attribute = plug.attribute;
    end.indices = plug.indices;
    end.isLocked = isLocked;
    return end;
}

bool isEnd(const Connection &connection, const Plug &plug)
{
    return connection.node == plug.node.get() && connection.attribute == plug.attribute &&
           connection.indices == plug.indices;
}

// Arrays on the way to a connected plug get the elements that the connection names.
void addElementsOnTheWay(Scene &scene, const Plug &plug)
{
    Plug step(plug.node, plug.attribute);
    const AttributeChain chain(*plug.attribute);
    for (unsigned i = 0; i < chain.size(); ++i) {
        step.indices[i] = plug.indices[i];
        if (plug.indices[i] == kNoIndex || chain[i]->isComputed)
            continue;
        Plug element = step;
        element.attribute = ownerOf(*plug.node, *chain[i]);
        scene.addElement(element);
    }
}

bool isLockedHereOrAbove(const Plug &plug)
{
    for (Plug step = plug; !step.isNull(); step = step.parent()) {
        if (step.node->state(step).isLocked)
            return true;
    }
    return false;
}

bool isConnectedHereOrAbove(const Plug &plug)
{
    for (Plug step = plug; !step.isNull(); step = step.parent()) {
        if (step.node->source(step))
            return true;
    }
    return false;
}

// The plug whose value arrives at `plug`: the source of itself or, where a parent is connected, the
// matching child of the parent's source. Null if nothing is connected.
Plug sourceFor(const Plug &plug)
{
    if (const Connection *connection = plug.node->source(plug))
        return connection->plug();
    if (!plug.attribute->parent)
        return Plug();
    const Plug parent = plug.parent();
    if (parent.isNull())
        return Plug();
    const Plug parentSource = sourceFor(parent);
    if (parentSource.isNull() || plug.isElement())
        return Plug();
    const std::size_t place = placeAmongSiblings(*plug.attribute);
    const std::vector<AttributePtr> &children = parentSource.attribute->children;
    return place < children.size() ? parentSource.child(children[place]) : Plug();
}

struct DerivedMatrix {
    std::string_view attribute;
    Matrix (*compute)(const DagPath &path);
};

const DerivedMatrix kDerivedMatrices[] = {
    {"worldMatrix", worldMatrix},
    {"worldInverseMatrix", [](const DagPath &path) { return inverse(worldMatrix(path)); }},
    {"parentMatrix", parentMatrix},
    {"parentInverseMatrix", [](const DagPath &path) { return inverse(parentMatrix(path)); }},
    {"matrix", [](const DagPath &path) { return localMatrix(*path.node()); }},
    {"xformMatrix", [](const DagPath &path) { return localMatrix(*path.node()); }},
    {"inverseMatrix", [](const DagPath &path) { return inverse(localMatrix(*path.node())); }},
};

Value derivedValue(const Plug &plug)
{
    if (!plug.node->isDag())
        return Value();
    const std::vector<DagPath> paths = DagPath::all(plug.node);
    const std::size_t instance = std::size_t(std::max(0, plug.indices[0]));
    for (const DerivedMatrix &row : kDerivedMatrices) {
        if (plug.attribute->longName == row.attribute && instance < paths.size())
            return row.compute(paths[instance]);
    }
    return Value();
}

// The plugs that a value comes along, from `plug` up to where it has no source. It may be a circle,
// which Maya only warns about: it is gone round once.
std::vector<Plug> wayUpstream(const Plug &plug)
{
    std::vector<Plug> way;
    std::set<std::pair<const Node *, PlugKey>> seen;
    for (Plug step = plug; !step.isNull(); step = sourceFor(step)) {
        if (!way.empty() && !seen.emplace(step.node.get(), PlugKey(step)).second)
            break;
        way.push_back(step);
    }
    return way;
}

// Derived values are matrices, and no number. They are not even computed where a number is wanted:
// they may depend on the very plug that they feed.
Value valueOf(const Plug &plug, bool wantsNumber)
{
    if (plug.attribute->isComputed)
        return wantsNumber ? Value() : derivedValue(plug);
    return plug.node->storedValue(plug);
}

// That of the furthest plug upstream that has one.
Value evaluate(const Plug &plug, bool wantsNumber)
{
    if (sourceFor(plug).isNull())
        return valueOf(plug, wantsNumber);
    const std::vector<Plug> way = wayUpstream(plug);
    Value value;
    for (auto step = way.rbegin();
         step != way.rend() && std::holds_alternative<std::monostate>(value); ++step)
        value = valueOf(*step, wantsNumber);
    return value;
}

} // namespace

void Scene::connect(const Plug &source, const Plug &destination, bool force, bool lock)
{
    if (const Connection *existing = destination.node->source(destination)) {
        if (isEnd(*existing, source))
            return;
        if (!force)
            throw Error("'" + destination.name() + "' already has an incoming connection from '" +
                        existing->plug().name() + "'.");
        disconnect(existing->plug(), destination);
    }
    if (!force && isLockedHereOrAbove(destination))
        throw Error("The destination attribute '" + destination.name() +
                    "' cannot be connected: it is locked.");
    addElementsOnTheWay(*this, source);
    addElementsOnTheWay(*this, destination);
    perform(
        [source, destination, lock] {
            try {
                destination.node->sources_[PlugKey(destination)] = endOf(source, lock);
                source.node->destinations_[PlugKey(source)].push_back(endOf(destination, lock));
            } catch (...) {
                cut(source, destination);
                throw;
            }
        },
        [source, destination] { cut(source, destination); });
}

void Scene::cut(const Plug &source, const Plug &destination)
{
    destination.node->sources_.erase(PlugKey(destination));
    const auto ends = source.node->destinations_.find(PlugKey(source));
    if (ends == source.node->destinations_.end())
        return;
    auto &list = ends->second;
    list.erase(std::remove_if(list.begin(), list.end(),
                              [&](const Connection &end) { return isEnd(end, destination); }),
               list.end());
    if (list.empty())
        source.node->destinations_.erase(ends);
}

void Scene::disconnect(const Plug &source, const Plug &destination)
{
    const Connection *existing = destination.node->source(destination);
    if (!existing || !isEnd(*existing, source))
        throw Error("There is no connection from '" + source.name() + "' to '" +
                    destination.name() + "' to disconnect.");
    const bool isLocked = existing->isLocked;
    const std::vector<Connection> before = source.node->destinations(source);
    perform([source, destination] { cut(source, destination); },
            [source, destination, isLocked, before] {
                std::vector<Connection> ends = before;
                std::vector<Connection> &place = source.node->destinations_[PlugKey(source)];
                destination.node->sources_[PlugKey(destination)] = endOf(source, isLocked);
                place.swap(ends);
            });
}

int Scene::nextAvailable(const Plug &wholeArray) const
{
    int index = 0;
    // Elements without a gap are passed at once: sets of big scenes have thousands of members.
    const Datum *datum = wholeArray.node->datum(wholeArray);
    if (datum && !datum->elements.empty()) {
        const int behindLast = std::prev(datum->elements.end())->first + 1;
        if (datum->elements.begin()->first == 0 &&
            std::size_t(behindLast) == datum->elements.size())
            index = behindLast;
    }
    while (wholeArray.node->source(wholeArray.element(index)) ||
           wholeArray.node->hasElement(wholeArray.element(index)))
        ++index;
    return index;
}

bool isSettable(const Plug &plug)
{
    if (isLockedHereOrAbove(plug) || isConnectedHereOrAbove(plug))
        return false;
    return std::all_of(plug.attribute->children.begin(), plug.attribute->children.end(),
                       [&plug](const AttributePtr &child) {
                           const Plug below = plug.child(child);
                           return !below.node->state(below).isLocked && !below.node->source(below);
                       });
}

Value evaluate(const Plug &plug)
{
    return evaluate(plug, plug.attribute->isNumber());
}

double evaluateNumber(const Plug &plug)
{
    return toNumber(evaluate(plug), plug.attribute->defaultNumber);
}

} // namespace host
