// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "mel/commands/attributeCommands.h"
#include "mel/commands/attributeValues.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/pendingAttributes.h"

namespace host::mel
{

namespace
{

const std::vector<Flag> kFlags = {
    {"ln", "longName", "s"},
    {"sn", "shortName", "s"},
    {"nn", "niceName", "s"},
    {"at", "attributeType", "s"},
    {"dt", "dataType", "s", Flag::multiUse},
    {"m", "multi"},
    {"p", "parent", "s"},
    {"nc", "numberOfChildren", "i"},
    {"dv", "defaultValue", "d"},
    {"min", "minValue", "d"},
    {"max", "maxValue", "d"},
    {"smn", "softMinValue", "d"},
    {"smx", "softMaxValue", "d"},
    {"hnv", "hasMinValue", "b"},
    {"hxv", "hasMaxValue", "b"},
    {"k", "keyable", "b"},
    {"h", "hidden", "b"},
    {"s", "storable", "b"},
    {"r", "readable", "b"},
    {"w", "writable", "b"},
    {"im", "indexMatters", "b"},
    {"ci", "cachedInternally", "b"},
    {"uac", "usedAsColor"},
    {"en", "enumName", "s"},
    {"ex", "exists"},
    // Kept for the file, without effect here.
    {"is", "internalSet", "b"},
    {"ct", "category", "s", Flag::multiUse},
    {"bt", "binaryTag", "s"},
    {"uap", "usedAsProxy"},
    {"uaf", "usedAsFilename"},
    {"dcb", "disconnectBehaviour", "i"},
};

struct BooleanRow {
    const char *flag;
    bool Attribute::*member;
};
constexpr BooleanRow kBooleans[] = {
    {"keyable", &Attribute::isKeyable},         {"hidden", &Attribute::isHidden},
    {"storable", &Attribute::isStorable},       {"readable", &Attribute::isReadable},
    {"writable", &Attribute::isWritable},       {"indexMatters", &Attribute::indexMatters},
    {"cachedInternally", &Attribute::isCached},
};

struct LimitRow {
    const char *flag;
    std::optional<double> Attribute::*member;
};
constexpr LimitRow kLimits[] = {
    {"minValue", &Attribute::minimum},
    {"maxValue", &Attribute::maximum},
    {"softMinValue", &Attribute::softMinimum},
    {"softMaxValue", &Attribute::softMaximum},
};

constexpr const char *kKeptFlags[] = {"internalSet", "category",       "binaryTag",
                                      "usedAsProxy", "usedAsFilename", "disconnectBehaviour"};

std::string keptFlags(const Arguments &arguments)
{
    std::string text;
    for (const auto &[name, use] : arguments.order) {
        if (std::find(std::begin(kKeptFlags), std::end(kKeptFlags), name) == std::end(kKeptFlags))
            continue;
        text += " -" + findFlag(kFlags, name)->shortName;
        for (const Operand &operand : arguments.of(name, use))
            text += ' ' + written(operand);
    }
    return text;
}

std::string typeNameOf(const Arguments &arguments)
{
    if (arguments.has("attributeType"))
        return arguments.string("attributeType");
    if (arguments.has("dataType"))
        return arguments.string("dataType");
    return "double";
}

// A name like Maya's own: letters, digits and underscores, no digit in front.
void refuseIllegalName(const std::string &name)
{
    const bool isLegal = !name.empty() &&
                         std::isdigit(static_cast<unsigned char>(name.front())) == 0 &&
                         name.find_first_of(" .[]|\"'*?,;") == std::string::npos;
    if (!isLegal)
        throw Error("addAttr: '" + name + "' is no legal name of an attribute.");
}

NewAttributePtr declare(const Arguments &arguments)
{
    const std::string shortName = arguments.string("shortName");
    const std::string longName = arguments.string("longName", shortName);
    refuseIllegalName(longName);
    const NewAttributePtr attribute =
        makeAttribute(longName, shortName.empty() ? longName : shortName, typeNameOf(arguments));
    if (!attribute)
        throw Error("addAttr: Type specified for new attribute is unknown.");
    attribute->isDynamic = true;
    attribute->isDataType = !arguments.has("attributeType") && arguments.has("dataType");
    attribute->isArray = arguments.has("multi");
    attribute->isUsedAsColor = arguments.has("usedAsColor");
    attribute->defaultNumber = arguments.number("defaultValue", 0.0);
    attribute->enumNames = arguments.string("enumName");
    attribute->niceName = arguments.string("niceName");
    attribute->otherFlags = keptFlags(arguments);
    // Dynamic attributes are not cached unless they say so; Maya always writes -ci true.
    attribute->isCached = true;
    for (const BooleanRow &row : kBooleans)
        (*attribute).*row.member = arguments.boolean(row.flag, (*attribute).*row.member);
    for (const LimitRow &row : kLimits) {
        if (arguments.has(row.flag))
            (*attribute).*row.member = arguments.number(row.flag, 0.0);
    }
    return attribute;
}

// How many calls are to follow for the children. Tuples that are declared with -at come with their
// children named by the caller; with -dt they are one piece of data.
unsigned childCountOf(const NewAttributePtr &attribute, const Arguments &arguments)
{
    if (!attribute->isCompound() || attribute->isDataType)
        return 0;
    const std::size_t usual = attribute->children.size();
    attribute->children.clear();
    const std::size_t count = arguments.has("numberOfChildren")
                                  ? requireCount(arguments.of("numberOfChildren")[0].text)
                                  : usual;
    if (count == 0)
        throw Error("addAttr: A compound needs the number of its children (-nc).");
    return unsigned(count);
}

// A file may declare what this host's node type has by itself, or what an earlier file brought.
bool isThereAlready(const Node &node, const Attribute &attribute)
{
    const AttributePtr existing = node.findAttribute(attribute.longName);
    return existing && !existing->isLearned();
}

void addTo(Context &context, PendingAttributes &pending, const NodePtr &node,
           const Arguments &arguments)
{
    const NewAttributePtr attribute = declare(arguments);
    const unsigned childCount = childCountOf(attribute, arguments);
    NewAttributePtr parent;
    if (arguments.has("parent")) {
        parent = pending.find(node, arguments.string("parent"));
        if (!parent && context.isReadingFile && isThereAlready(*node, *attribute))
            return;
        if (!parent)
            throw Error("addAttr: No attribute named '" + arguments.string("parent") +
                        "' waits for children on '" + node->uniqueName() + "'.");
    } else if (context.isReadingFile && isThereAlready(*node, *attribute)) {
        return;
    } else if (node->findAttribute(attribute->longName)) {
        throw Error("addAttr: Found an attribute named '" + attribute->longName + "' already.");
    }
    if (const NewAttributePtr complete = pending.add(node, parent, attribute, childCount))
        context.scene().addAttribute(node, complete);
}

// -query -exists, -attributeType, ... on "node.attr".
MelValue query(Context &context, const Arguments &arguments)
{
    const std::string_view name = arguments.objects.front().text;
    if (arguments.has("exists"))
        return static_cast<long long>(findPlug(context, name).has_value());
    const Plug plug = requireSinglePlug(context, name);
    for (const char *flag : kAddAttrQueries) {
        if (arguments.has(flag))
            return askAttribute(plug, flag);
    }
    throwNoQuestion();
}

MelValue addAttr(Context &context, const Arguments &arguments, PendingAttributes &pending)
{
    if (arguments.isQuery())
        return query(context, arguments);
    if (arguments.isEdit())
        throw Error("addAttr: An attribute can not be edited here; delete it and add it again.");
    pending.dropDeleted();
    const bool isRelative = arguments.objects.empty() && context.currentNode;
    const std::vector<NodePtr> nodes = isRelative ? std::vector<NodePtr>{*context.currentNode}
                                                  : nodesOrSelection(context, arguments);
    if (nodes.empty() || !nodes.front())
        throw Error("addAttr: No objects were specified.");
    for (const NodePtr &node : nodes)
        addTo(context, pending, node, arguments);
    return MelValue();
}

} // namespace

void addAddAttrCommand(CommandTable &table)
{
    // Lives as long as the table: an interpreter has its own.
    const auto pending = std::make_shared<PendingAttributes>();
    Command command{"addAttr",
                    kFlags,
                    [pending](Context &context, const Arguments &arguments) {
                        return addAttr(context, arguments, *pending);
                    },
                    {},
                    Modes::create | Modes::query | Modes::edit,
                    Objects{1, 1}};
    table.add(fileStatement(std::move(command)));
}

} // namespace host::mel
