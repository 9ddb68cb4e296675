// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cstdio>
#include <deque>
#include <optional>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/plugValues.h"

namespace host::mel
{

namespace
{

// A range whose state is set without values would let a short statement make many entries.
constexpr unsigned kMaxStatesWithoutValues = 64;

const std::vector<Flag> kFlags = {
    {"typ", "type", "s"}, {"l", "lock", "b"}, {"k", "keyable", "b"},  {"cb", "channelBox", "b"},
    {"s", "size", "i"},   {"c", "clamp"},     {"av", "alteredValue"}, {"ch", "capacityHint", "i"}};

void refuseUnlessSettable(const PlugRange &range, std::string_view name, std::size_t values)
{
    // A range with more plugs than values is refused later, or is one opaque value.
    for (unsigned i = 0; i < range.count() && i <= values; ++i) {
        if (!isSettable(range.at(i)))
            throw Error("setAttr: The attribute '" + std::string(name) +
                        "' is locked or connected and cannot be modified.");
    }
}

// -type must name the data that the attribute holds.
void refuseWrongType(const Plug &plug, std::string_view type)
{
    const Attribute &attribute = *plug.attribute;
    const bool needsType = !attribute.isNumber() && !attribute.isCompound() &&
                           !attribute.isLearned() && attribute.kind != AttributeKind::message;
    if (type.empty()) {
        if (needsType)
            throw Error("setAttr: '" + plug.name() +
                        "' is not a simple numeric attribute.  Its values must be set with a "
                        "-type flag.");
        return;
    }
    const AttributePtr wanted = makeAttribute("a", "a", type);
    if (!wanted || (!attribute.isLearned() && wanted->kind != attribute.kind &&
                    !(wanted->isNumber() && attribute.isNumber())))
        throw Error("setAttr: '" + plug.name() + "' can not be set to data of type '" +
                    std::string(type) + "'.");
}

std::string tooFar(std::string_view name, const char *which, double limit)
{
    return "setAttr: Cannot set the attribute '" + std::string(name) + "' past its " + which +
           " value of " + toText(limit) + ".";
}

// The values of a statement with those beyond the attribute's limits moved to the limit, if -clamp
// allows that, or refused.
class LimitedValues
{
public:
    LimitedValues(const PlugRange &range, const Arguments &arguments)
        : name_(arguments.objects.front().text), mayClamp_(arguments.has("clamp")),
          values_(arguments.objects.begin() + 1, arguments.objects.end())
    {
        const Attribute &attribute = *range.plug.attribute;
        if (range.plug.isWholeArray() || (!attribute.isNumber() && !attribute.isTuple()))
            return;
        const std::vector<Plug> leaves = numberLeaves(range.plug);
        for (std::size_t i = 0; i < values_.size(); ++i)
            limit(*leaves[i % leaves.size()].attribute, values_[i]);
    }
    ValueTokens tokens() const { return {values_.data(), values_.data() + values_.size()}; }

private:
    void limit(const Attribute &attribute, Operand &value)
    {
        double number = 0.0;
        if (!parseNumber(value.text.data(), value.text.data() + value.text.size(), number))
            return; // refused when the values are taken
        if (attribute.maximum && number > *attribute.maximum)
            replace(value, "maximum", *attribute.maximum);
        else if (attribute.minimum && number < *attribute.minimum)
            replace(value, "minimum", *attribute.minimum);
    }
    void replace(Operand &value, const char *which, double limit)
    {
        if (!mayClamp_)
            throw Error(tooFar(name_, which, limit));
        char text[32];
        std::snprintf(text, sizeof text, "%.17g", limit);
        value.text = clamped_.emplace_back(text);
    }

    std::string_view name_;
    bool mayClamp_;
    std::vector<Operand> values_;
    std::deque<std::string> clamped_;
};

void writeStates(Scene &scene, const PlugRange &range, const Arguments &arguments)
{
    const bool isAny = arguments.has("lock") || arguments.has("keyable") ||
                       arguments.has("channelBox") || arguments.has("alteredValue");
    if (!isAny)
        return;
    if (range.count() > std::max<std::size_t>(arguments.objects.size(), kMaxStatesWithoutValues))
        throw Error("setAttr: The range of '" + range.plug.name() + "' is too wide.");
    for (unsigned i = 0; i < range.count(); ++i) {
        const Plug plug = range.at(i);
        PlugState state = plug.node->state(plug);
        state.isLocked = arguments.boolean("lock", state.isLocked);
        if (arguments.has("keyable"))
            state.isKeyable = arguments.boolean("keyable", false);
        if (arguments.has("channelBox"))
            state.isChannelBox = arguments.boolean("channelBox", false);
        state.isAltered = state.isAltered || arguments.has("alteredValue");
        scene.setState(plug, state);
    }
}

// Sizes are hints, and damaged ones are no reason to leave the values out; they tell no more than
// that something unknown is an array.
void takeSizes(Context &context, const PlugRange &range, const Arguments &arguments)
{
    for (const char *flag : {"size", "capacityHint"}) {
        if (arguments.has(flag) && !context.isReadingFile)
            requireCount(arguments.of(flag).front().text);
    }
    const bool hasValues = arguments.objects.size() > 1;
    if (arguments.has("size") && !hasValues)
        learnShape(context, range.plug, LearnedShape::array);
}

// Values of a node that the file itself made come and go with the node: an undo of the import need
// not know them.
bool belongsToFile(const Node &node)
{
    return !node.isDefault() && !node.isShared();
}

MelValue setAttr(Context &context, const Arguments &arguments)
{
    const std::string_view name = arguments.objects.front().text;
    const PlugRange range = requirePlugToWrite(context, name);
    const std::string type = arguments.string("type");
    takeSizes(context, range, arguments);
    if (!arguments.boolean("lock", true))
        writeStates(context.scene(), range, arguments);
    if (arguments.objects.size() > 1 || !type.empty()) {
        if (context.isReadingFile) {
            std::optional<RecordingPause> pause;
            if (belongsToFile(*range.plug.node))
                pause.emplace(context.scene());
            const Operand *values = arguments.objects.data();
            ValueTokens tokens(values + 1, values + arguments.objects.size());
            writeValues(context.scene(), range, type, tokens, context.pendingWeights);
        } else {
            refuseUnlessSettable(range, name, arguments.objects.size());
            refuseWrongType(range.plug, type);
            const LimitedValues values(range, arguments);
            ValueTokens tokens = values.tokens();
            writeValues(context.scene(), range, type, tokens);
        }
    }
    writeStates(context.scene(), range, arguments);
    return MelValue();
}

} // namespace

void addSetAttrCommand(CommandTable &table)
{
    table.add(fileStatement({"setAttr", kFlags, setAttr, {1, Objects::kAny}}));
}

} // namespace host::mel
