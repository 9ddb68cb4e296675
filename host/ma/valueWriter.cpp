// SPDX-License-Identifier: Apache-2.0
#include "ma/valueWriter.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "ma/weightWriter.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

std::string rangeText(int first, int last)
{
    return last > first ? std::to_string(first) + ':' + std::to_string(last)
                        : std::to_string(first);
}

// Face vertices in a value of type polyFaces: the sum of the numbers behind each "f", as far as
// there is room for what they announce.
std::size_t faceVertexCount(const OpaqueValue &faces)
{
    std::size_t count = 0;
    const std::string &text = faces.text;
    for (std::size_t at = text.find("f "); at != std::string::npos;) {
        const std::size_t next = text.find("f ", at + 2);
        const std::size_t room = (std::min(next, text.size()) - at) / 2;
        count += std::min<std::size_t>(std::strtoul(text.c_str() + at + 2, nullptr, 10), room);
        at = next;
    }
    return count;
}

void writeNumber(StatementWriter &out, const Attribute &attribute, double value)
{
    if (attribute.kind == AttributeKind::boolean)
        out.word(value != 0.0 ? "yes" : "no");
    else if (attribute.kind == AttributeKind::floating)
        out.single(value);
    else
        out.real(value);
}

// Arrays of tuples of a mesh whose values Maya writes without -type.
bool goesWithoutType(const Attribute &attribute)
{
    constexpr std::string_view kNames[] = {"vrts", "edge", "uvSetPoints", "colorSetPoints"};
    return std::find(std::begin(kNames), std::end(kNames), attribute.longName) != std::end(kNames);
}

std::size_t numbersPerEntry(const std::string &type)
{
    return type == "pointArray" ? 4 : type == "vectorArray" ? 3 : 1;
}

// Writes what stands behind the plug: -type, where the kind of value needs it, and the words.
struct ValueWords {
    StatementWriter &out;
    const Attribute &attribute;

    void operator()(std::monostate) const {}
    void operator()(double value) const { writeNumber(out, attribute, value); }
    void operator()(const std::string &text) const
    {
        out.flagQuoted("-type", "string").stringValue(text);
    }
    void operator()(const Matrix &matrix) const
    {
        out.flagQuoted("-type", "matrix");
        for (const double value : matrix)
            out.real(value);
    }
    void operator()(const std::vector<std::string> &texts) const
    {
        const bool isList = attribute.kind == AttributeKind::stringList;
        out.flagQuoted("-type", isList ? attribute.typeName : "stringArray");
        out.integer(static_cast<long long>(texts.size()));
        for (const std::string &text : texts)
            out.quoted(text);
    }
    void operator()(const std::vector<double> &numbers) const
    {
        const bool isList = attribute.kind == AttributeKind::numberList;
        const std::string type = isList ? attribute.typeName : "doubleArray";
        out.flagQuoted("-type", type);
        out.integer(static_cast<long long>(numbers.size() / numbersPerEntry(type)));
        for (const double value : numbers)
            out.real(value);
    }
    void operator()(const OpaqueValue &value) const
    {
        if (!value.type.empty())
            out.flagQuoted("-type", value.type);
        out.values(value.text);
    }
};

// Maya saves no elements that hold the default. Only where somebody added the attribute: arrays of
// Maya's own nodes are found with the default written out (".dpf[0:2]" 4 4 4).
bool leavesOutDefaults(const Plug &plug)
{
    return AttributeChain(*plug.attribute)[0]->isDynamic &&
           std::any_of(plug.indices.begin(), plug.indices.end(),
                       [](int index) { return index != kNoIndex; });
}

bool isDefault(const Attribute &attribute, const double *numbers)
{
    if (attribute.children.empty())
        return *numbers == attribute.defaultNumber;
    return std::all_of(
        attribute.children.begin(), attribute.children.end(),
        [&numbers](const AttributePtr &child) { return *numbers++ == child->defaultNumber; });
}

bool isFullTuple(const Attribute &attribute, const Datum &datum)
{
    return attribute.isTuple() && datum.children.size() == attribute.children.size() &&
           std::all_of(datum.children.begin(), datum.children.end(), [](const Datum &child) {
               return std::holds_alternative<double>(child.value);
           });
}

} // namespace

std::string numberText(const Attribute &attribute, double number)
{
    if (attribute.kind == AttributeKind::boolean)
        return number != 0.0 ? "yes" : "no";
    return attribute.kind == AttributeKind::floating ? singleText(number) : realText(number);
}

ValueWriter::ValueWriter(StatementWriter &out, const FileStyle &style, const NodePtr &node)
    : out_(out), style_(style), node_(node)
{
    for (const auto &entry : node->states())
        states_[AttributeChain(*entry.first.attribute)[0]].insert(entry);
    for (const auto &entry : node->sources())
        connected_.insert(entry.first.attribute);
    for (const auto &entry : node->allDestinations())
        connected_.insert(entry.first.attribute);
}

void ValueWriter::writeAll()
{
    for (const AttributePtr &attribute : node_->type().attributes)
        writeAttribute(attribute);
    for (const bool isLearned : {true, false}) {
        for (const AttributePtr &attribute : node_->ownAttributes()) {
            if (attribute->isLearned() == isLearned)
                writeAttribute(attribute);
        }
    }
}

void ValueWriter::writeAttribute(const AttributePtr &attribute)
{
    if (!attribute->isComputed && attribute->isStorable)
        writeStored(attribute);
    writeStates(*attribute);
}

void ValueWriter::writePart(const Plug &plug, const Datum &datum)
{
    states_.clear();
    if (!plug.isWholeArray())
        writeItem(plug, datum);
    else if (datum.packed)
        writeNumbers(plug, *datum.packed);
    else
        writeElements(plug, datum);
}

void ValueWriter::writeState(const Plug &plug)
{
    begin(plug).end();
}

void ValueWriter::writeStored(const AttributePtr &attribute)
{
    const Plug plug(node_, attribute);
    if (isWeightList(plug)) {
        writeWeights(out_, style_, *node_->weights());
        return;
    }
    const Datum *datum = node_->datum(plug);
    if (!datum)
        return;
    if (attribute->isArray)
        writeArray(plug, *datum);
    else
        writeItem(plug, *datum);
}

void ValueWriter::writeArray(const Plug &array, const Datum &datum)
{
    pendingSize_ = keptElements(array, datum);
    if (pendingSize_ <= 1)
        pendingSize_ = 0; // Maya says nothing about arrays of one
    if (datum.packed)
        writeNumbers(array, *datum.packed);
    else
        writeElements(array, datum);
    if (pendingSize_ > 0)
        writeSize(array, pendingSize_);
}

// How many elements a reader of the file gets.
std::size_t ValueWriter::keptElements(const Plug &array, const Datum &datum) const
{
    const std::size_t all = node_->elementCount(array);
    const bool mayBeUnset =
        array.attribute->kind == AttributeKind::string && array.attribute->isArray;
    if (!mayBeUnset && !leavesOutDefaults(array.element(0)))
        return all;
    std::size_t left = 0;
    for (const auto &[index, element] : datum.elements)
        left += !comesBack(array.element(index), element);
    if (!datum.packed)
        return all - left;
    const std::size_t tuple = datum.packed->tupleSize();
    for (const auto &[first, run] : datum.packed->runs()) {
        for (std::size_t i = 0; i < run.size() / tuple; ++i) {
            const Plug element = array.element(first + int(i));
            left += isLeftOut(element, run.data() + i * tuple) && !isConnected(element);
        }
    }
    return all - left;
}

// Whether a value, a state or a connection brings this element, or child of one, back.
bool ValueWriter::comesBack(const Plug &plug, const Datum &datum) const
{
    const double *number = std::get_if<double>(&datum.value);
    const bool hasValue =
        number ? !isLeftOut(plug, number) : !std::holds_alternative<std::monostate>(datum.value);
    if (hasValue || isConnected(plug) || !node_->state(plug).isDefault())
        return true;
    for (const auto &[index, element] : datum.elements) {
        if (comesBack(plug.element(index), element))
            return true;
    }
    const std::vector<AttributePtr> &children = plug.attribute->children;
    for (std::size_t i = 0; i < datum.children.size(); ++i) {
        const Plug child = plug.child(children[i]);
        const Datum &below = datum.children[i];
        if (below.packed ? keptElements(child, below) > 0 : comesBack(child, below))
            return true;
    }
    return false;
}

void ValueWriter::writeNumbers(const Plug &array, const PackedNumbers &numbers)
{
    const std::size_t tuple = numbers.tupleSize();
    const bool mayBeLeftOut =
        hasConnections(*array.attribute) || leavesOutDefaults(array.element(0));
    for (const auto &[first, run] : numbers.runs()) {
        const std::size_t count = run.size() / tuple;
        std::size_t begin = 0;
        for (std::size_t i = 0; mayBeLeftOut && i < count; ++i) {
            if (!isLeftOut(array.element(first + int(i)), run.data() + i * tuple))
                continue;
            writeRun(array, first + int(begin), run.data() + begin * tuple, i - begin);
            begin = i + 1;
        }
        writeRun(array, first + int(begin), run.data() + begin * tuple, count - begin);
    }
}

void ValueWriter::writeRun(const Plug &array, int first, const double *numbers,
                           std::size_t elements)
{
    const Attribute &attribute = *array.attribute;
    const std::size_t tuple = attribute.tupleSize();
    const std::size_t most = std::max<std::size_t>(1, kNumbersPerStatement / tuple);
    for (std::size_t done = 0; done < elements; done += most) {
        const std::size_t count = std::min(most, elements - done);
        const int from = first + int(done);
        begin(array, rangeText(from, from + int(count) - 1));
        if (attribute.isCompound() && !goesWithoutType(attribute))
            out_.flagQuoted("-type", attribute.typeName);
        for (std::size_t i = 0; i < count * tuple; ++i)
            writeNumber(out_, attribute.isCompound() ? *attribute.children[i % tuple] : attribute,
                        numbers[done * tuple + i]);
        out_.end();
    }
}

void ValueWriter::writeElements(const Plug &array, const Datum &datum)
{
    for (const auto &entry : datum.elements) {
        if (const OpaqueValue *value = std::get_if<OpaqueValue>(&entry.second.value)) {
            if (value->type == "polyFaces")
                pendingCapacity_ += faceVertexCount(*value);
        }
    }
    // The size shares the first statement only where elements lie in ranges, as faces do.
    const auto first = datum.elements.begin();
    const bool isRange = first != datum.elements.end() && first->second.rangeLast > first->first;
    if (pendingSize_ > 0 && !isRange)
        writeSize(array, std::exchange(pendingSize_, 0));
    for (const auto &[index, element] : datum.elements)
        writeItem(array.element(index), element);
    pendingCapacity_ = 0;
}

void ValueWriter::writeItem(const Plug &plug, const Datum &datum)
{
    const Attribute &attribute = *plug.attribute;
    writeLeaf(plug, datum);
    if (isFullTuple(attribute, datum)) {
        writeTuple(plug, datum);
        return;
    }
    for (std::size_t i = 0; i < datum.children.size() && i < attribute.children.size(); ++i) {
        const AttributePtr &child = attribute.children[i];
        if (child->isComputed || !child->isStorable)
            continue;
        if (child->isArray)
            writeArray(plug.child(child), datum.children[i]);
        else
            writeItem(plug.child(child), datum.children[i]);
    }
}

void ValueWriter::writeTuple(const Plug &plug, const Datum &datum)
{
    const std::vector<AttributePtr> &children = plug.attribute->children;
    std::vector<double> numbers;
    for (const Datum &child : datum.children)
        numbers.push_back(std::get<double>(child.value));
    if (isLeftOut(plug, numbers.data()))
        return;
    begin(plug).flagQuoted("-type", plug.attribute->typeName);
    for (std::size_t i = 0; i < datum.children.size(); ++i)
        writeNumber(out_, *children[i], numbers[i]);
    out_.end();
}

void ValueWriter::writeLeaf(const Plug &plug, const Datum &datum)
{
    const Attribute &attribute = *plug.attribute;
    const double *number = std::get_if<double>(&datum.value);
    if (std::holds_alternative<std::monostate>(datum.value) || (number && isLeftOut(plug, number)))
        return;
    if (datum.rangeLast > plug.ownIndex())
        begin(plug.array(), rangeText(plug.ownIndex(), datum.rangeLast));
    else
        begin(plug);
    std::visit(ValueWords{out_, attribute}, datum.value);
    out_.end();
}

void ValueWriter::writeSize(const Plug &array, std::size_t size)
{
    pendingSize_ = size;
    if (style_.announcesSizes)
        begin(array).end();
    pendingSize_ = 0;
}

void ValueWriter::writeStates(const Attribute &top)
{
    const auto found = states_.find(&top);
    if (found == states_.end())
        return;
    const States left = found->second; // begin() takes them away
    for (const auto &entry : left)
        begin(node_->plugOf(entry.first)).end();
}

PlugState ValueWriter::takeState(const Plug &plug)
{
    const auto states = states_.find(AttributeChain(*plug.attribute)[0]);
    if (states == states_.end())
        return PlugState();
    const auto found = states->second.find(PlugKey(plug));
    if (found == states->second.end())
        return PlugState();
    const PlugState state = found->second;
    states->second.erase(found);
    return state;
}

StatementWriter &ValueWriter::begin(const Plug &plug, const std::string &range)
{
    const FlagNames &flags = style_.flags;
    out_.begin("setAttr", StatementWriter::Place::insideNode);
    const std::size_t size = std::exchange(pendingSize_, 0);
    if (size > 0 && style_.announcesSizes)
        out_.flag(flags("-s", "-size"), std::to_string(size));
    const std::size_t capacity = std::exchange(pendingCapacity_, 0);
    if (capacity > 0 && style_.announcesSizes)
        out_.flag(flags("-ch", "-capacityHint"), std::to_string(capacity));
    const PlugState state = range.empty() ? takeState(plug) : PlugState();
    if (state.isAltered)
        out_.word(flags("-av", "-alteredValue"));
    if (state.isLocked)
        out_.flag(flags("-l", "-lock"), "on");
    if (state.isKeyable)
        out_.flag(flags("-k", "-keyable"), *state.isKeyable ? "on" : "off");
    if (state.isChannelBox)
        out_.flag(flags("-cb", "-channelBox"), *state.isChannelBox ? "on" : "off");
    const std::string path = plugPath(plug, flags.areLong);
    return out_.quoted('.' + path + (range.empty() ? "" : '[' + range + ']'));
}

bool ValueWriter::hasConnections(const Attribute &attribute) const
{
    return connected_.count(&attribute) > 0 ||
           std::any_of(attribute.children.begin(), attribute.children.end(),
                       [this](const AttributePtr &child) { return hasConnections(*child); });
}

bool ValueWriter::isConnected(const Plug &plug) const
{
    const PlugKey key(plug);
    return node_->sources().count(key) > 0 || node_->allDestinations().count(key) > 0;
}

// Whether numbers need not be written: an element with a connection comes back by itself, and
// others come back as the default that nobody stored.
bool ValueWriter::isLeftOut(const Plug &plug, const double *numbers) const
{
    if (!isDefault(*plug.attribute, numbers))
        return false;
    const std::vector<AttributePtr> &children = plug.attribute->children;
    const auto childIsConnected = [&](const AttributePtr &child) {
        return isConnected(plug.child(child));
    };
    return leavesOutDefaults(plug) ||
           (plug.isElement() &&
            (isConnected(plug) || std::any_of(children.begin(), children.end(), childIsConnected)));
}

} // namespace host::ma
