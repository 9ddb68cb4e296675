// SPDX-License-Identifier: Apache-2.0
#include "ma/sceneDifference.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <set>

#include "ma/nodeWriter.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

const FileStyle kComparedStyle = {FlagNames(), WeightForm::packed, false};

bool areSameBits(const NumberRun &first, const NumberRun &second)
{
    return first.size() == second.size() &&
           (first.empty() ||
            std::memcmp(first.data(), second.data(), first.size() * sizeof(double)) == 0);
}

bool areSame(const PackedNumbers *first, const PackedNumbers *second)
{
    if (!first || !second)
        return first == second;
    return std::equal(first->runs().begin(), first->runs().end(), second->runs().begin(),
                      second->runs().end(), [](const auto &a, const auto &b) {
                          return a.first == b.first && areSameBits(a.second, b.second);
                      });
}

// The very same data. Data that differs can still be written with the same words.
bool areSame(const Datum &first, const Datum &second)
{
    return first.value == second.value && first.rangeLast == second.rangeLast &&
           areSame(first.packed.get(), second.packed.get()) &&
           first.children.size() == second.children.size() &&
           first.elements.size() == second.elements.size() &&
           std::equal(first.children.begin(), first.children.end(), second.children.begin(),
                      [](const Datum &a, const Datum &b) { return areSame(a, b); }) &&
           std::equal(first.elements.begin(), first.elements.end(), second.elements.begin(),
                      [](const auto &a, const auto &b) {
                          return a.first == b.first && areSame(a.second, b.second);
                      });
}

// Data lies in the order of the children, which learned attributes get from the file.
bool haveSameShape(const Attribute &first, const Attribute &second)
{
    return first.longName == second.longName && first.kind == second.kind &&
           first.isArray == second.isArray &&
           std::equal(first.children.begin(), first.children.end(), second.children.begin(),
                      second.children.end(),
                      [](const auto &a, const auto &b) { return haveSameShape(*a, *b); });
}

std::string valueText(const NodePtr &node, const AttributePtr &attribute)
{
    std::string text;
    StatementWriter out([&text](std::string_view piece) { text += piece; });
    ValueWriter(out, kComparedStyle, node).writeAttribute(attribute);
    out.finish();
    return text;
}

std::string definitionText(const Attribute &dynamicAttribute)
{
    std::string text;
    StatementWriter out([&text](std::string_view piece) { text += piece; });
    NodeWriter(out, kComparedStyle).writeAddAttr(dynamicAttribute);
    out.finish();
    return text;
}

using StatesByAttribute = std::map<std::string, std::vector<std::pair<std::string, PlugState>>>;

bool areSame(const PlugState &first, const PlugState &second)
{
    return first.isLocked == second.isLocked && first.isKeyable == second.isKeyable &&
           first.isChannelBox == second.isChannelBox && first.isAltered == second.isAltered;
}

StatesByAttribute statesOf(const Node &node)
{
    StatesByAttribute states;
    for (const auto &[key, state] : node.states()) {
        if (!state.isDefault())
            states[AttributeChain(*key.attribute)[0]->longName].emplace_back(
                node.plugOf(key).path(), state);
    }
    for (auto &entry : states)
        std::sort(entry.second.begin(), entry.second.end(),
                  [](const auto &a, const auto &b) { return a.first < b.first; });
    return states;
}

bool areSameStates(const StatesByAttribute &first, const StatesByAttribute &second,
                   const std::string &attribute)
{
    const auto a = first.find(attribute);
    const auto b = second.find(attribute);
    if (a == first.end() || b == second.end())
        return (a == first.end()) == (b == second.end());
    return std::equal(a->second.begin(), a->second.end(), b->second.begin(), b->second.end(),
                      [](const auto &x, const auto &y) {
                          return x.first == y.first && areSame(x.second, y.second);
                      });
}

std::vector<AttributePair> attributePairs(const Node &before, const Node &now)
{
    std::vector<AttributePair> pairs;
    const std::vector<AttributePtr> declared(now.type().attributes.begin(),
                                             now.type().attributes.end());
    for (std::size_t i = 0; i < declared.size(); ++i) {
        const bool isAligned = i < before.type().attributes.size() &&
                               before.type().attributes[i]->longName == declared[i]->longName;
        pairs.push_back({isAligned ? AttributePtr(before.type().attributes[i])
                                   : before.findAttribute(declared[i]->longName),
                         declared[i]});
    }
    std::set<const Attribute *> found;
    for (const AttributePtr &attribute : now.ownAttributes()) {
        pairs.push_back({before.findAttribute(attribute->longName), attribute});
        if (pairs.back().before && pairs.back().before->parent)
            pairs.back().before = nullptr;
        found.insert(pairs.back().before.get());
    }
    for (const AttributePtr &attribute : before.ownAttributes()) {
        if (found.count(attribute.get()) == 0)
            pairs.push_back({attribute, nullptr});
    }
    return pairs;
}

bool areSameValues(const NodePtr &before, const NodePtr &now, const AttributePair &pair,
                   bool haveSameConnections)
{
    const Datum *first = pair.before ? before->datum(Plug(before, pair.before)) : nullptr;
    const Datum *second = pair.now ? now->datum(Plug(now, pair.now)) : nullptr;
    if (!first && !second)
        return true;
    if (haveSameConnections && first && second && haveSameShape(*pair.before, *pair.now) &&
        areSame(*first, *second))
        return true;
    return (pair.before ? valueText(before, pair.before) : std::string()) ==
           (pair.now ? valueText(now, pair.now) : std::string());
}

bool hasSameParents(const NodePairs &pairs, const Node &before, const Node &now)
{
    return std::equal(before.parents().begin(), before.parents().end(), now.parents().begin(),
                      now.parents().end(),
                      [&pairs](const Node *a, const Node *b) { return pairs.nowOf(a) == b; });
}

// In the same order, of those nodes that hang here first.
bool hasSameChildren(const NodePairs &pairs, const Node &before, const Node &now)
{
    return std::equal(before.children().begin(), before.children().end(), now.children().begin(),
                      now.children().end(), [&pairs](const NodePtr &a, const NodePtr &b) {
                          return pairs.nowOf(a.get()) == b.get();
                      });
}

std::vector<std::string> keptTexts(const Node &node)
{
    std::vector<std::string> texts;
    for (const KeptStatement &statement : node.keptStatements())
        texts.push_back(statement.text);
    std::sort(texts.begin(), texts.end());
    return texts;
}

bool hasSameConnections(const NodePairs &pairs, const Node &before, const Node &now)
{
    if (before.sources().size() != now.sources().size())
        return false;
    // Places in lists whose order means nothing are compared by what joins the list.
    std::set<std::pair<std::string, std::string>> lists[2];
    for (const auto &[key, connection] : before.sources()) {
        const Plug destination = plugNow(pairs, before.plugOf(key));
        if (destination.isNull())
            return false;
        const Plug source = plugNow(pairs, connection.plug());
        if (destination.isElement() && !destination.attribute->indexMatters) {
            if (source.isNull())
                return false;
            lists[0].emplace(destination.array().path(), source.name());
            continue;
        }
        const Connection *other = now.source(destination);
        if (!other || !isSameConnection(pairs, connection, *other))
            return false;
    }
    for (const auto &[key, connection] : now.sources()) {
        const Plug destination = now.plugOf(key);
        if (destination.isElement() && !destination.attribute->indexMatters)
            lists[1].emplace(destination.array().path(), connection.plug().name());
    }
    return lists[0] == lists[1];
}

std::string firstDifferentFact(const FileFacts &before, const FileFacts &now)
{
    const struct {
        const char *name;
        bool isSame;
    } facts[] = {
        {"version", before.mayaVersion == now.mayaVersion},
        {"plug-ins", before.requiredPlugins == now.requiredPlugins},
        {"fileInfo", std::equal(before.fileInfo.begin(), before.fileInfo.end(),
                                now.fileInfo.begin(), now.fileInfo.end())},
        {"linear unit", before.linearUnit == now.linearUnit},
        {"angular unit", before.angularUnit == now.angularUnit},
        {"time unit", before.timeUnit == now.timeUnit},
        {"references", before.references == now.references},
        {"trailing statements", before.trailing == now.trailing},
    };
    for (const auto &fact : facts) {
        if (!fact.isSame)
            return fact.name;
    }
    return {};
}

} // namespace

bool hasSameHead(const NodePairs &pairs, const Node &before, const Node &now)
{
    const Node *parent = before.parents().empty() ? nullptr : before.parents().front();
    const Node *parentNow = now.parents().empty() ? nullptr : now.parents().front();
    return before.name() == now.name() && before.isShared() == now.isShared() &&
           before.type().name == now.type().name && pairs.nowOf(parent) == parentNow;
}

bool haveSamePlugs(const Node &before, const Node &now)
{
    const auto isSame = [](const auto &a, const auto &b) {
        return a.first.indices == b.first.indices &&
               a.first.attribute->longName == b.first.attribute->longName;
    };
    return std::equal(before.sources().begin(), before.sources().end(), now.sources().begin(),
                      now.sources().end(), isSame) &&
           std::equal(before.allDestinations().begin(), before.allDestinations().end(),
                      now.allDestinations().begin(), now.allDestinations().end(), isSame);
}

std::vector<AttributePair> differentValues(const NodePtr &before, const NodePtr &now)
{
    const StatesByAttribute statesBefore = statesOf(*before);
    const StatesByAttribute statesNow = statesOf(*now);
    const bool isLinkedAlike = haveSamePlugs(*before, *now);
    std::vector<AttributePair> different;
    for (AttributePair &pair : attributePairs(*before, *now)) {
        const AttributePtr &any = pair.now ? pair.now : pair.before;
        const bool isWeights = pair.now && isWeightList(Plug(now, pair.now));
        const bool isSame = (isWeights ? *before->weights() == *now->weights()
                                       : any->isComputed || !any->isStorable ||
                                             areSameValues(before, now, pair, isLinkedAlike)) &&
                            areSameStates(statesBefore, statesNow, any->longName);
        if (!isSame)
            different.push_back(std::move(pair));
    }
    return different;
}

std::vector<AttributePair> differentDefinitions(const Node &before, const Node &now)
{
    std::vector<AttributePair> different;
    for (AttributePair &pair : attributePairs(before, now)) {
        const bool isBefore = pair.before && pair.before->isDynamic;
        const bool isNow = pair.now && pair.now->isDynamic;
        if (!isBefore && !isNow)
            continue;
        if (!isBefore || !isNow || definitionText(*pair.before) != definitionText(*pair.now))
            different.push_back({isBefore ? pair.before : nullptr, isNow ? pair.now : nullptr});
    }
    return different;
}

AttributePtr attributeNow(const Attribute &before, const Node &now)
{
    const AttributeChain chain(before);
    AttributePtr found = now.findAttribute(chain[0]->longName);
    for (unsigned i = 1; found && i < chain.size(); ++i)
        found = found->child(chain[i]->longName);
    return found;
}

Plug plugNow(const NodePairs &pairs, const Plug &before)
{
    Node *node = pairs.nowOf(before.node.get());
    const AttributePtr attribute = node ? attributeNow(*before.attribute, *node) : nullptr;
    if (!attribute)
        return Plug();
    Plug plug(node->shared_from_this(), attribute);
    plug.indices = before.indices;
    return plug;
}

bool isSameConnection(const NodePairs &pairs, const Connection &before, const Connection &now)
{
    return before.isLocked == now.isLocked && pairs.nowOf(before.node) == now.node &&
           before.indices == now.indices && plugNow(pairs, before.plug()) == now.plug();
}

std::string firstDifference(const Scene &before, const Scene &now, DifferentValues *values)
{
    std::string fact = firstDifferentFact(before.facts, now.facts);
    if (!fact.empty())
        return fact;
    if (before.nodeCount() != now.nodeCount())
        return "the number of nodes";
    const NodePairs pairs(before, now);
    if (!hasSameChildren(pairs, *before.world(), *now.world()))
        return "the topmost nodes";
    for (const NodePtr &node : before.nodes()) {
        Node *other = pairs.nowOf(node.get());
        if (!other)
            return "no " + node->name();
        if (!hasSameHead(pairs, *node, *other) || node->uuid() != other->uuid() ||
            node->isLocked() != other->isLocked() ||
            node->isLockUnpublished() != other->isLockUnpublished() ||
            hasAliases(node) != hasAliases(other->shared_from_this()) ||
            keptTexts(*node) != keptTexts(*other))
            return "the node " + node->name();
        if (!hasSameParents(pairs, *node, *other) || !hasSameChildren(pairs, *node, *other))
            return "the place of " + node->name();
        if (!hasSameConnections(pairs, *node, *other))
            return "the connections of " + node->name();
        if (!differentDefinitions(*node, *other).empty())
            return "the attributes of " + node->name();
        for (const AttributePair &pair : differentValues(node, other->shared_from_this())) {
            if (!values || !pair.now)
                return "the values of " + node->name();
            values->emplace_back(other, pair.now.get());
        }
    }
    return {};
}

} // namespace host::ma
