// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "mel/commands/commandSupport.h"
#include "mel/commands/plugValues.h"
#include "mel/pendingWeights.h"
#include "scene/error.h"
#include "scene/plugAccess.h"

namespace host::mel
{

namespace
{

// The rows of "2 0 0.75 1 0.25  1 3 1", one per array of the range, in order.
std::vector<skin::Entry> takeEntries(ValueTokens &tokens)
{
    std::vector<skin::Entry> entries(tokens.arrayCount(2));
    for (skin::Entry &entry : entries) {
        const double index = tokens.number();
        if (!(index >= 0.0) || index > double(kMaxElements))
            throw Error("setAttr: The index " + std::to_string(static_cast<long long>(index)) +
                        " is out of range.");
        entry.influence = std::uint32_t(index);
        entry.weight = tokens.number();
    }
    return entries;
}

using Rows = std::vector<std::vector<skin::Entry>>;

Rows takeRows(const PlugRange &range, ValueTokens &tokens)
{
    Rows rows;
    for (unsigned i = 0; i < range.count() && (i == 0 || !tokens.atEnd()); ++i)
        rows.push_back(takeEntries(tokens));
    return rows;
}

// Single weights: `.wl[3].w[1:2]` fills one row, `.wl[0:2].w[1]` one weight of each.
Rows takeSingleWeights(const PlugRange &range, ValueTokens &tokens)
{
    const bool runsOverVertices = range.rangeDepth == 0;
    Rows rows(1);
    for (unsigned i = 0; i < range.count(); ++i) {
        if (runsOverVertices && i > 0)
            rows.emplace_back();
        rows.back().push_back({std::uint32_t(range.at(i).indices[1]), tokens.number()});
    }
    return rows;
}

void writeWeights(Scene &scene, const PlugRange &range, ValueTokens &tokens,
                  PendingWeights *pending)
{
    const NodePtr &node = range.plug.node;
    const auto first = std::size_t(range.plug.indices[0]);
    Rows rows =
        range.plug.isWholeArray() ? takeRows(range, tokens) : takeSingleWeights(range, tokens);
    tokens.requireEnd();
    if (!scene.isRecording()) {
        if (pending && rows.size() == 1) {
            pending->add(scene, node, first, rows.front());
            return;
        }
        if (pending)
            pending->write(scene);
        skin::WeightStore &weights = scene.editWeights(node);
        for (std::size_t i = 0; i < rows.size(); ++i)
            weights.mergeRow(first + i, rows[i]);
        return;
    }
    std::vector<std::size_t> vertices;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        // Old entries go in front: of equal influences the store keeps the last.
        const skin::RowView before = node->weights()->row(first + i);
        rows[i].insert(rows[i].begin(), before.begin(), before.end());
        vertices.push_back(first + i);
    }
    scene.setWeightRows(node, vertices, rows);
}

// Index and value pairs for each array of the range.
void writePairs(Scene &scene, const PlugRange &range, ValueTokens &tokens)
{
    const Rows rows = takeRows(range, tokens);
    tokens.requireEnd();
    for (unsigned i = 0; i < rows.size(); ++i) {
        const Plug array = range.at(i);
        for (const skin::Entry &entry : rows[i])
            scene.setNumbers(array, int(entry.influence), {entry.weight});
    }
}

[[noreturn]] void refuseMulti(const Plug &plug)
{
    throw Error("setAttr: '" + plug.name() + "' is a multi; an index or a range has to be given.");
}

void writePacked(Scene &scene, const PlugRange &range, ValueTokens &tokens)
{
    const Attribute &attribute = *range.plug.attribute;
    const unsigned size = attribute.tupleSize();
    if (range.plug.isWholeArray()) {
        if (size != 1 || !attribute.parent)
            refuseMulti(range.plug);
        writePairs(scene, range, tokens);
        return;
    }
    const std::vector<double> numbers = tokens.numbers(std::size_t(range.count()) * size);
    tokens.requireEnd();
    if (range.rangeDepth < 0 || range.rangeDepth == int(attribute.depth()) - 1) {
        scene.setNumbers(range.plug.array(), range.plug.ownIndex(), numbers);
        return;
    }
    for (unsigned i = 0; i < range.count(); ++i) {
        const Plug element = range.at(i);
        const auto first = numbers.begin() + long(i * size);
        scene.setNumbers(element.array(), element.ownIndex(), {first, first + size});
    }
}

// True when the tokens are count and pairs for each array of the range, to the last one.
bool looksLikePairs(const PlugRange &range, ValueTokens tokens)
{
    try {
        for (unsigned i = 0; i < range.count(); ++i)
            takeEntries(tokens);
    } catch (const Error &) {
        return false;
    }
    return tokens.atEnd();
}

// ".wl[0:2].w" of a deformer that the host does not know: the form tells that w is an array of
// numbers, and from then on it is kept as one.
bool learnsArrayOfNumbers(Scene &scene, const PlugRange &range, const ValueTokens &tokens)
{
    const Attribute &attribute = *range.plug.attribute;
    const bool runsAbove = range.rangeDepth >= 0 && range.rangeDepth < int(attribute.depth()) - 1;
    if (!runsAbove || range.plug.isElement() || range.plug.node->datum(range.plug) ||
        !attribute.children.empty() || !looksLikePairs(range, tokens))
        return false;
    scene.learn(range.plug.node, range.plug.attribute, LearnedShape::numbers);
    return true;
}

using Changes = std::vector<std::pair<Plug, Value>>;

void apply(Scene &scene, Changes &changes)
{
    for (auto &[plug, value] : changes)
        scene.setValue(plug, std::move(value));
}

// Only such types are understood whose values tell their type again when the scene is written; of
// other data on unknown attributes the text is kept.
Value takeLearned(std::string_view type, ValueTokens &tokens)
{
    constexpr std::string_view kUnderstood[] = {"string", "matrix", "stringArray", "doubleArray"};
    const bool isUnderstood =
        std::find(std::begin(kUnderstood), std::end(kUnderstood), type) != std::end(kUnderstood);
    if (isUnderstood)
        return takeValue(type, tokens);
    return OpaqueValue{std::string(type), tokens.rest()};
}

// Each plug of the range gets an equal share of the tokens, as text if their type says no more.
Changes takeShares(const PlugRange &range, std::string_view type, ValueTokens &tokens)
{
    const std::size_t share = tokens.left() / range.count();
    if (share == 0 || tokens.left() % range.count() != 0)
        throw Error("setAttr: The values of '" + range.plug.name() + "' do not fit its range.");
    Changes changes;
    for (unsigned i = 0; i < range.count(); ++i) {
        ValueTokens own = tokens.split(share);
        changes.emplace_back(range.at(i), takeLearned(type, own));
        own.requireEnd();
    }
    return changes;
}

void writeLearned(Scene &scene, const PlugRange &range, std::string_view type, ValueTokens &tokens)
{
    if (range.rangeDepth == int(range.plug.attribute->depth()) - 1) {
        scene.setOpaqueRange(range.plug.array(), range.first(), range.last,
                             {std::string(type), tokens.rest()});
        return;
    }
    if (learnsArrayOfNumbers(scene, range, tokens)) {
        writePairs(scene, range, tokens);
        return;
    }
    if (!range.plug.isComplete())
        refuseMulti(range.plug);
    Changes changes = takeShares(range, type, tokens);
    apply(scene, changes);
}

bool isNumberType(std::string_view type)
{
    const AttributePtr attribute = type.empty() ? nullptr : makeAttribute("a", "a", type);
    return type.empty() || (attribute && attribute->isNumber());
}

// What one complete plug that is neither learned nor packed gets.
void takeOne(const Plug &plug, std::string_view type, ValueTokens &tokens, Changes &changes)
{
    const Attribute &attribute = *plug.attribute;
    if (attribute.isNumber() && !isNumberType(type)) {
        // Another release may have other data here: it is kept for the next save.
        changes.emplace_back(plug, OpaqueValue{std::string(type), tokens.rest()});
    } else if (attribute.isNumber() || attribute.isCompound()) {
        for (const Plug &leaf : numberLeaves(plug))
            changes.emplace_back(leaf, tokens.number());
    } else if (attribute.kind == AttributeKind::message) {
        throw Error("setAttr: '" + plug.name() + "' is a message attribute and has no data.");
    } else {
        changes.emplace_back(plug, takeValue(type.empty() ? attribute.typeName : type, tokens));
    }
}

void writeEach(Scene &scene, const PlugRange &range, std::string_view type, ValueTokens &tokens)
{
    Changes changes;
    for (unsigned i = 0; i < range.count(); ++i)
        takeOne(range.at(i), type, tokens, changes);
    tokens.requireEnd();
    apply(scene, changes);
}

} // namespace

std::vector<Plug> numberLeaves(const Plug &plug)
{
    if (plug.attribute->isNumber())
        return {plug};
    std::vector<Plug> leaves;
    for (const AttributePtr &child : plug.attribute->children) {
        if (!child->isCompound() && !child->isNumber())
            throw Error("setAttr: '" + plug.name() +
                        "' is not a simple numeric attribute.  Its values must be set with a "
                        "-type flag.");
        if (child->isArray)
            continue;
        const std::vector<Plug> below = numberLeaves(plug.child(child));
        leaves.insert(leaves.end(), below.begin(), below.end());
    }
    return leaves;
}

void writeValues(Scene &scene, const PlugRange &range, std::string_view type, ValueTokens &tokens,
                 PendingWeights *pending)
{
    const Plug &plug = range.plug;
    const Attribute &attribute = *plug.attribute;
    const bool isOpaqueRange =
        attribute.kind == AttributeKind::opaque && range.rangeDepth == int(attribute.depth()) - 1;
    if (!(plug.isWholeArray() ? plug.element(0) : plug).isComplete())
        refuseMulti(plug);
    if (isWeightRow(plug) || isWeight(plug))
        writeWeights(scene, range, tokens, pending);
    else if (attribute.isLearned())
        writeLearned(scene, range, type, tokens);
    else if (attribute.isPackedArray())
        writePacked(scene, range, tokens);
    else if (plug.isWholeArray())
        refuseMulti(plug);
    else if (isOpaqueRange)
        scene.setOpaqueRange(
            plug.array(), range.first(), range.last,
            {type.empty() ? attribute.typeName : std::string(type), tokens.rest()});
    else
        writeEach(scene, range, type, tokens);
}

} // namespace host::mel
