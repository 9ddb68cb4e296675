// SPDX-License-Identifier: Apache-2.0
#include "ma/nodeWriter.h"

#include <optional>

#include "scene/scene.h"

namespace host::ma
{

namespace
{

constexpr auto kInsideNode = StatementWriter::Place::insideNode;

// A flag of addAttr that is written when an attribute differs from Maya's default, in the order in
// which Maya writes them.
struct SwitchFlag {
    const char *shortName;
    const char *longName;
    bool Attribute::*field;
    bool writtenWhen;
    const char *value; // empty for a flag without
};

constexpr SwitchFlag kSwitches[] = {
    {"-r", "-readable", &Attribute::isReadable, false, "false"},
    {"-w", "-writable", &Attribute::isWritable, false, "false"},
    {"-s", "-storable", &Attribute::isStorable, false, "false"},
    {"-ci", "-cachedInternally", &Attribute::isCached, true, "true"},
    {"-h", "-hidden", &Attribute::isHidden, true, "true"},
    {"-uac", "-usedAsColor", &Attribute::isUsedAsColor, true, ""},
    {"-k", "-keyable", &Attribute::isKeyable, true, "true"},
    {"-m", "-multi", &Attribute::isArray, true, ""},
    {"-im", "-indexMatters", &Attribute::indexMatters, false, "false"},
};

struct BoundFlag {
    const char *shortName;
    const char *longName;
    std::optional<double> Attribute::*field;
};

constexpr BoundFlag kBounds[] = {
    {"-min", "-minValue", &Attribute::minimum},
    {"-max", "-maxValue", &Attribute::maximum},
    {"-smn", "-softMinValue", &Attribute::softMinimum},
    {"-smx", "-softMaxValue", &Attribute::softMaximum},
};

// Every node of the host has the list of aliases; in Maya it is added to nodes that need one.
constexpr const char *kAliases = "attributeAliasList";
constexpr const char *kAddAliasesShort =
    "\taddAttr -ci true -h true -sn \"aal\" -ln \"attributeAliasList\" -dt \"attributeAlias\";";
constexpr const char *kAddAliasesLong =
    "\taddAttr -cachedInternally true -hidden true -shortName \"aal\" "
    "-longName \"attributeAliasList\" -dataType \"attributeAlias\";";

bool isDataKind(const Attribute &attribute)
{
    switch (attribute.kind) {
    case AttributeKind::string:
    case AttributeKind::stringList:
    case AttributeKind::numberList:
    case AttributeKind::opaque:
        return true;
    default:
        return attribute.isDataType;
    }
}

} // namespace

bool hasAliases(const NodePtr &node)
{
    const AttributePtr aliases = node->findAttribute(kAliases);
    return aliases && !aliases->isDynamic && !aliases->isLearned() &&
           node->datum(Plug(node, aliases));
}

void NodeWriter::writeNode(const NodePtr &node)
{
    writeCreateNode(node);
    writeUuid(*node);
    writeBlock(node);
}

void NodeWriter::writeCreateNode(const NodePtr &node)
{
    const FlagNames &flags = style_.flags;
    out_.begin("createNode").wordOrQuoted(node->type().name);
    if (node->isShared())
        out_.word(flags("-s", "-shared"));
    out_.flagQuoted(flags("-n", "-name"), node->name());
    if (node->isDag()) {
        const Node *parent = node->parents().front();
        if (parent != node->scene()->world().get())
            out_.flagQuoted(flags("-p", "-parent"),
                            parentText(std::const_pointer_cast<Node>(parent->shared_from_this())));
    }
    out_.end();
}

void NodeWriter::writeUuid(const Node &node)
{
    if (node.uuid().empty())
        return;
    out_.begin("rename", kInsideNode);
    out_.flagQuoted(style_.flags("-uid", "-uuid"), node.uuid()).end();
}

void NodeWriter::writeAddAliases()
{
    out_.line(style_.flags(kAddAliasesShort, kAddAliasesLong));
}

void NodeWriter::writeDefaultNode(const NodePtr &node)
{
    std::string block;
    StatementWriter into([&block](std::string_view text) { block += text; });
    NodeWriter(into, style_).writeBlock(node);
    into.finish();
    // A connection to a node that only this file knows as a default one needs the node as well.
    if (block.empty() && node->sources().empty() && node->allDestinations().empty())
        return;
    out_.begin("select").word(style_.flags("-ne", "-noExpand"));
    out_.wordOrQuoted(':' + node->name()).end();
    if (!block.empty())
        out_.line(std::string_view(block).substr(0, block.size() - 1));
}

void NodeWriter::writeBlock(const NodePtr &node)
{
    if (hasAliases(node))
        writeAddAliases();
    for (const AttributePtr &attribute : node->ownAttributes()) {
        if (attribute->isDynamic)
            writeAddAttr(*attribute);
    }
    writeKept(*node, Kept::aboutAttributes);
    ValueWriter(out_, style_, node).writeAll();
    writeLocks(*node);
    writeKept(*node, Kept::aboutNode);
}

// Those about attributes come before the values, which have been set since and must win.
void NodeWriter::writeKept(const Node &node, Kept which)
{
    for (const KeptStatement &statement : node.keptStatements()) {
        if (statement.attribute.empty() == (which == Kept::aboutNode))
            out_.line(statement.text);
    }
}

void NodeWriter::writeAddAttr(const Attribute &attribute)
{
    const FlagNames &flags = style_.flags;
    out_.begin("addAttr", kInsideNode).values(attribute.otherFlags);
    for (const SwitchFlag &row : kSwitches) {
        if (attribute.*row.field != row.writtenWhen)
            continue;
        if (*row.value)
            out_.flag(flags(row.shortName, row.longName), row.value);
        else
            out_.word(flags(row.shortName, row.longName));
    }
    out_.flagQuoted(flags("-sn", "-shortName"), attribute.shortName);
    out_.flagQuoted(flags("-ln", "-longName"), attribute.longName);
    if (!attribute.niceName.empty())
        out_.flagQuoted(flags("-nn", "-niceName"), attribute.niceName);
    writeNumberFlags(attribute);
    if (!attribute.enumNames.empty())
        out_.flagQuoted(flags("-en", "-enumName"), attribute.enumNames);
    const char *typeFlag =
        isDataKind(attribute) ? flags("-dt", "-dataType") : flags("-at", "-attributeType");
    out_.flagQuoted(typeFlag, attribute.typeName);
    if (attribute.parent)
        out_.flagQuoted(flags("-p", "-parent"), attribute.parent->longName);
    if (attribute.isCompound() && !isDataKind(attribute))
        out_.flag(flags("-nc", "-numberOfChildren"), std::to_string(attribute.children.size()));
    out_.end();
    if (isDataKind(attribute))
        return;
    for (const AttributePtr &child : attribute.children)
        writeAddAttr(*child);
}

void NodeWriter::writeNumberFlags(const Attribute &attribute)
{
    const FlagNames &flags = style_.flags;
    if (attribute.isNumber() && attribute.defaultNumber != 0.0)
        out_.word(flags("-dv", "-defaultValue")).real(attribute.defaultNumber);
    for (const BoundFlag &row : kBounds) {
        if (const std::optional<double> &bound = attribute.*row.field)
            out_.word(flags(row.shortName, row.longName)).real(*bound);
    }
}

void NodeWriter::writeLocks(const Node &node)
{
    if (!node.isLocked() && !node.isLockUnpublished())
        return;
    const FlagNames &flags = style_.flags;
    out_.begin("lockNode").flag(flags("-l", "-lock"), node.isLocked() ? "1" : "0");
    if (node.isLockUnpublished())
        out_.flag(flags("-lu", "-lockUnpublished"), "1");
    out_.end();
}

} // namespace host::ma
