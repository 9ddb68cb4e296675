// SPDX-License-Identifier: Apache-2.0
#include "ma/valueMerger.h"

#include <algorithm>
#include <set>

#include "ma/setAttrWords.h"
#include "ma/statementEdit.h"
#include "scene/error.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

using Leaves = std::vector<std::pair<const Attribute *, double>>;

// The numbers below one plug, if they are all there and nothing else is.
bool takeLeaves(const Attribute &attribute, const Datum &datum, Leaves &leaves)
{
    if (const double *number = std::get_if<double>(&datum.value))
        leaves.emplace_back(&attribute, *number);
    else if (const Matrix *matrix = std::get_if<Matrix>(&datum.value))
        std::transform(matrix->begin(), matrix->end(), std::back_inserter(leaves),
                       [&attribute](double n) { return std::make_pair(&attribute, n); });
    else if (attribute.children.empty() || datum.children.size() != attribute.children.size())
        return false;
    for (std::size_t i = 0; i < datum.children.size(); ++i) {
        if (!takeLeaves(*attribute.children[i], datum.children[i], leaves))
            return false;
    }
    return true;
}

// The numbers of a range of a packed array; false if it lacks some of them.
bool takePacked(const Plug &array, int first, unsigned count, Leaves &leaves)
{
    const PackedNumbers *numbers = array.node->numbers(array);
    const Attribute &attribute = *array.attribute;
    for (unsigned i = 0; i < count; ++i) {
        const double *element = numbers ? numbers->find(first + int(i)) : nullptr;
        if (!element)
            return false;
        for (unsigned k = 0; k < attribute.tupleSize(); ++k)
            leaves.emplace_back(
                attribute.children.empty() ? &attribute : attribute.children[k].get(), element[k]);
    }
    return true;
}

bool takeNumbers(const PlugRange &range, Leaves &leaves)
{
    const Plug &plug = range.plug;
    const int depth = int(plug.attribute->depth()) - 1;
    if (plug.attribute->isPackedArray() && plug.isElement())
        return (range.rangeDepth < 0 || range.rangeDepth == depth) &&
               takePacked(plug.array(), plug.ownIndex(), range.count(), leaves);
    for (unsigned i = 0; i < range.count(); ++i) {
        const Plug at = range.at(i);
        const PackedPlace place = packedPlace(at);
        if (place.array.attribute) {
            leaves.emplace_back(at.attribute.get(), toNumber(at.node->storedValue(at)));
            continue;
        }
        const Datum *datum = at.node->datum(at);
        if (!datum || !takeLeaves(*at.attribute, *datum, leaves))
            return false;
    }
    return true;
}

// What `now` holds and `before` does not; what both hold is brought up to date where it stands.
Datum addedData(const Datum &before, const Datum &now)
{
    Datum added;
    if (std::holds_alternative<std::monostate>(before.value)) {
        added.value = now.value;
        added.rangeLast = now.rangeLast;
    }
    for (std::size_t i = 0; i < now.children.size(); ++i)
        added.children.push_back(
            addedData(i < before.children.size() ? before.children[i] : Datum(), now.children[i]));
    for (const auto &[index, element] : now.elements) {
        const auto other = before.elements.find(index);
        Datum rest = addedData(other == before.elements.end() ? Datum() : other->second, element);
        if (!rest.isEmpty())
            added.elements.emplace(index, std::move(rest));
    }
    if (now.packed) {
        const unsigned size = now.packed->tupleSize();
        added.packed = std::make_shared<PackedNumbers>(size);
        for (const int index : now.packed->indices()) {
            if (!before.packed || !before.packed->has(index))
                added.packed->setRun(index, now.packed->find(index), 1);
        }
    }
    return added;
}

std::size_t elementCount(const PlugRange &range)
{
    const Plug &plug = range.plug;
    return plug.node->elementCount(plug.isElement() ? plug.array() : plug);
}

// Sizes count elements that hold nothing too: what is said grows and shrinks with the array.
std::string sizeText(const PlugRange &before, const PlugRange &now, const mel::Argument &size)
{
    const auto grown =
        static_cast<long long>(elementCount(now)) - static_cast<long long>(elementCount(before));
    const std::string said(size.text);
    return grown == 0 ? said : std::to_string(std::max(0LL, std::atoll(said.c_str()) + grown));
}

// The same range of the node as it is now; its plug is null where the attribute is gone.
PlugRange rangeNow(const PlugRange &before, const NodePtr &now)
{
    PlugRange range = before;
    range.plug.node = now;
    range.plug.attribute = attributeNow(*before.plug.attribute, *now);
    return range;
}

class ValueMerger
{
public:
    ValueMerger(const FileStyle &style, const NodePtr &before, const NodePtr &now,
                const AttributePair &attribute)
        : style_(style), before_(before), now_(now), attribute_(attribute)
    {
    }

    // False: it takes other statements.
    bool merge(std::string_view statement, std::string &merged);
    std::string added();

private:
    bool mergeStates(const PlugRange &before, const PlugRange &now, const SetAttrWords &words);
    bool mergeNumbers(const PlugRange &before, const PlugRange &now, const SetAttrWords &words,
                      StatementEdit &edit);
    bool writeAnew(const Plug &before, const Plug &now, const SetAttrWords &words,
                   std::string &merged);

    const FileStyle &style_;
    NodePtr before_;
    NodePtr now_;
    AttributePair attribute_;
    std::set<PlugKey> restated_; // plugs whose state gets a statement of its own
};

// True when the words about states have to go, because a statement of their own will say them.
bool ValueMerger::mergeStates(const PlugRange &before, const PlugRange &now,
                              const SetAttrWords &words)
{
    const PlugState was = before_->state(before.plug);
    const PlugState is = now_->state(now.plug);
    const bool isSame = was.isLocked == is.isLocked && was.isKeyable == is.isKeyable &&
                        was.isChannelBox == is.isChannelBox && was.isAltered == is.isAltered;
    if (isSame || words.states.empty())
        return false;
    restated_.insert(PlugKey(now.plug));
    return true;
}

bool ValueMerger::mergeNumbers(const PlugRange &before, const PlugRange &now,
                               const SetAttrWords &words, StatementEdit &edit)
{
    Leaves was;
    Leaves is;
    if (!words.hasNumbersOnly() || !takeNumbers(before, was) || !takeNumbers(now, is) ||
        was.size() != is.size() || was.size() != words.values.size())
        return false;
    for (std::size_t i = 0; i < is.size(); ++i) {
        const std::string text = numberText(*is[i].first, is[i].second);
        if (numberText(*was[i].first, was[i].second) != text)
            edit.replace(words.values[i]->text, text);
    }
    return true;
}

// A value that is no row of numbers: a text, a list, what is kept as words.
bool ValueMerger::writeAnew(const Plug &before, const Plug &now, const SetAttrWords &words,
                            std::string &merged)
{
    const Datum *was = before_->datum(before);
    const Datum *is = now_->datum(now);
    if (!was || (is && was->rangeLast != is->rangeLast))
        return false;
    if (is && was->value == is->value)
        return true;
    if (!is || std::holds_alternative<std::monostate>(is->value)) {
        merged.clear();
        if (words.size || words.hasCapacity)
            return false;
    } else {
        Datum value;
        value.value = is->value;
        value.rangeLast = is->rangeLast;
        if (words.size || words.hasCapacity)
            return false;
        merged = statementsText(
            [&](StatementWriter &out) { ValueWriter(out, style_, now_).writePart(now, value); });
    }
    if (!words.states.empty())
        restated_.insert(PlugKey(now));
    return true;
}

bool ValueMerger::merge(std::string_view statement, std::string &merged)
{
    mel::Script script;
    if (mel::parseScript(statement, script) || script.statements.size() != 1)
        return false;
    const SetAttrWords words = sortSetAttr(script.statements.front());
    const std::string_view path = words.plug.substr(1);
    const PlugRange before = resolvePlugPath(before_, path, UnknownAttribute::refuse);
    const PlugRange now = rangeNow(before, now_);
    if (now.plug.isNull() || now.plug.attribute->isArray != before.plug.attribute->isArray)
        return false;
    merged = std::string(statement);
    const bool dropsStates = mergeStates(before, now, words);
    StatementEdit edit(statement);
    if (words.size)
        edit.replace(words.size->text, sizeText(before, now, *words.size));
    for (std::size_t i = 0; dropsStates && i < words.states.size(); ++i)
        edit.remove(words.states[i]);
    const bool saysNothing = words.values.empty() && dropsStates && !words.size;
    if (words.values.empty() || mergeNumbers(before, now, words, edit)) {
        merged = saysNothing ? std::string() : edit.result();
        return true;
    }
    const bool isOne =
        before.rangeDepth < 0 || before.rangeDepth == int(before.plug.attribute->depth()) - 1;
    if (!isOne || !before.plug.isComplete())
        return false;
    if (const Datum *is = now_->datum(now.plug);
        before.plug.attribute->isPackedArray() || (is && !is->children.empty()))
        return false;
    return writeAnew(before.plug, now.plug, words, merged);
}

std::string ValueMerger::added()
{
    const Plug plug(now_, attribute_.now);
    const Datum *was = before_->datum(Plug(before_, attribute_.before));
    const Datum *is = now_->datum(plug);
    std::string text;
    if (is && !attribute_.now->isComputed && attribute_.now->isStorable) {
        const Datum rest = addedData(was ? *was : Datum(), *is);
        if (!rest.isEmpty())
            text = statementsText([&](StatementWriter &out) {
                ValueWriter(out, style_, now_).writePart(plug, rest);
            });
    }
    for (const auto &[key, state] : now_->states()) {
        if (AttributeChain(*key.attribute)[0] != attribute_.now.get() || state.isDefault())
            continue;
        Plug other = now_->plugOf(key);
        const AttributePtr attribute = attributeNow(*key.attribute, *before_);
        PlugState old;
        if (attribute) {
            other.node = before_;
            other.attribute = attribute;
            old = before_->state(other);
        }
        const bool isSame = old.isLocked == state.isLocked && old.isKeyable == state.isKeyable &&
                            old.isChannelBox == state.isChannelBox &&
                            old.isAltered == state.isAltered;
        if (!isSame || restated_.count(key) > 0)
            text += statementsText([&](StatementWriter &out) {
                ValueWriter(out, style_, now_).writeState(now_->plugOf(key));
            });
    }
    return text;
}

} // namespace

std::string mergeSize(std::string_view statement, const NodePtr &before, const NodePtr &now)
{
    mel::Script script;
    if (mel::parseScript(statement, script) || script.statements.size() != 1)
        return std::string(statement);
    const SetAttrWords words = sortSetAttr(script.statements.front());
    const PlugRange range = resolvePlugPath(before, words.plug.substr(1), UnknownAttribute::refuse);
    const PlugRange other = rangeNow(range, now);
    if (!words.size || other.plug.isNull())
        return std::string(statement);
    StatementEdit edit(statement);
    edit.replace(words.size->text, sizeText(range, other, *words.size));
    return edit.result();
}

std::optional<MergedStatements> mergeValues(const FileStyle &style,
                                            const std::vector<std::string_view> &statements,
                                            const NodePtr &before, const NodePtr &now,
                                            const AttributePair &attribute)
{
    MergedStatements result;
    result.statements.resize(statements.size());
    if (!attribute.now)
        return result;
    if (!attribute.before)
        return std::nullopt;
    ValueMerger merger(style, before, now, attribute);
    for (std::size_t i = 0; i < statements.size(); ++i) {
        if (!merger.merge(statements[i], result.statements[i]))
            return std::nullopt;
    }
    result.added = merger.added();
    return result;
}

} // namespace host::ma
