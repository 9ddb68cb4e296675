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

// Face vertices in a value of type polyFaces: the sum of the numbers behind each "f".
std::size_t faceVertexCount(const OpaqueValue &faces)
{
    std::size_t count = 0;
    const std::string &text = faces.text;
    for (std::size_t at = text.find("f "); at != std::string::npos; at = text.find("f ", at + 2))
        count += std::strtoul(text.c_str() + at + 2, nullptr, 10);
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

bool isFullTuple(const Attribute &attribute, const Datum &datum)
{
    return attribute.isTuple() && datum.children.size() == attribute.children.size() &&
           std::all_of(datum.children.begin(), datum.children.end(), [](const Datum &child) {
               return std::holds_alternative<double>(child.value);
           });
}

} // namespace

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
    pendingSize_ = node_->elementCount(array);
    if (pendingSize_ <= 1)
        pendingSize_ = 0; // Maya says nothing about arrays of one
    if (datum.packed)
        writeNumbers(array, *datum.packed);
    else
        writeElements(array, datum);
    if (pendingSize_ > 0)
        writeSize(array, pendingSize_);
}

void ValueWriter::writeNumbers(const Plug &array, const PackedNumbers &numbers)
{
    const std::size_t tuple = numbers.tupleSize();
    const bool mayBeImplied = hasConnections(*array.attribute);
    for (const auto &[first, run] : numbers.runs()) {
        const std::size_t count = run.size() / tuple;
        std::size_t begin = 0;
        for (std::size_t i = 0; mayBeImplied && i < count; ++i) {
            if (!isImplied(array.element(first + int(i)), run.data() + i * tuple))
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
    begin(plug).flagQuoted("-type", plug.attribute->typeName);
    for (std::size_t i = 0; i < datum.children.size(); ++i)
        writeNumber(out_, *plug.attribute->children[i], std::get<double>(datum.children[i].value));
    out_.end();
}

void ValueWriter::writeLeaf(const Plug &plug, const Datum &datum)
{
    const Attribute &attribute = *plug.attribute;
    if (std::holds_alternative<std::monostate>(datum.value)) {
        // An element without a text would be lost.
        if (attribute.kind == AttributeKind::string && attribute.isArray && !isConnected(plug))
            begin(plug).flagQuoted("-type", "string").quoted("").end();
        return;
    }
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
    begin(array).end();
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
    if (pendingSize_ > 0)
        out_.flag(flags("-s", "-size"), std::to_string(std::exchange(pendingSize_, 0)));
    if (pendingCapacity_ > 0)
        out_.flag(flags("-ch", "-capacityHint"),
                  std::to_string(std::exchange(pendingCapacity_, 0)));
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

// Whether an element of a packed array comes back by itself when its connections are made.
bool ValueWriter::isImplied(const Plug &element, const double *numbers) const
{
    const Attribute &attribute = *element.attribute;
    const std::vector<AttributePtr> &children = attribute.children;
    bool isFound = isConnected(element);
    for (std::size_t i = 0; i < children.size(); ++i) {
        isFound = isFound || isConnected(element.child(children[i]));
        if (numbers[i] != children[i]->defaultNumber)
            return false;
    }
    return isFound && (!children.empty() || numbers[0] == attribute.defaultNumber);
}

} // namespace host::ma
