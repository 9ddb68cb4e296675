// SPDX-License-Identifier: Apache-2.0
#include "scene/sceneText.h"

#include <iomanip>
#include <sstream>

using namespace host;

namespace
{

struct ValueText {
    std::ostream &out;
    void operator()(std::monostate) const { out << "unset"; }
    void operator()(double number) const { out << number; }
    void operator()(const std::string &text) const { out << '"' << text << '"'; }
    void operator()(const OpaqueValue &value) const { out << value.type << ' ' << value.text; }
    template <typename List>
    void operator()(const List &list) const
    {
        for (const auto &item : list)
            out << item << ' ';
    }
};

bool isDefault(const Plug &plug)
{
    const Datum *datum = plug.node->datum(plug);
    const Plug above = plug.parent();
    const bool isPacked =
        plug.attribute->isPackedArray() ||
        (!above.isNull() && above.attribute->isPackedArray() && above.isElement());
    return !isPacked && (!datum || std::holds_alternative<std::monostate>(datum->value));
}

void writePlug(const Plug &plug, std::ostream &out)
{
    if (plug.isWholeArray()) {
        for (const int index : plug.node->elementIndices(plug)) {
            out << "  " << plug.element(index).path() << '\n';
            writePlug(plug.element(index), out);
        }
    } else if (!plug.attribute->children.empty()) {
        for (const AttributePtr &child : plug.attribute->children)
            writePlug(plug.child(child), out);
    } else if (!isDefault(plug)) {
        out << "  " << plug.path() << " = ";
        std::visit(ValueText{out}, plug.node->storedValue(plug));
        out << '\n';
    }
}

void writeState(const Plug &plug, const PlugState &state, std::ostream &out)
{
    out << "  " << plug.path() << " locked " << state.isLocked << " keyable "
        << int(state.isKeyable.value_or(2)) << " channelBox " << int(state.isChannelBox.value_or(2))
        << " altered " << state.isAltered << '\n';
}

void writeNode(const Node &node, std::ostream &out)
{
    out << node.type().name << ' ' << node.name() << " uuid " << node.uuid() << " locked "
        << node.isLocked() << node.isLockUnpublished() << " parents";
    for (const Node *parent : node.parents())
        out << ' ' << parent->name();
    out << " children";
    for (const NodePtr &child : node.children())
        out << ' ' << child->name();
    out << '\n';
    for (const KeptStatement &statement : node.keptStatements())
        out << "  " << statement.text << '\n';
    for (const AttributePtr &attribute : node.ownAttributes())
        out << "  attribute " << attribute->longName << '\n';
    for (const AttributePtr &attribute : node.attributes())
        writePlug(node.plug(attribute->longName), out);
    for (const auto &entry : node.states())
        writeState(node.plugOf(entry.first), entry.second, out);
    for (const auto &entry : node.sources())
        out << "  " << node.plugOf(entry.first).path() << " <- " << entry.second.plug().name()
            << (entry.second.isLocked ? " locked" : "") << '\n';
    for (const auto &entry : node.allDestinations()) {
        for (const Connection &end : entry.second)
            out << "  " << node.plugOf(entry.first).path() << " -> " << end.plug().name() << '\n';
    }
}

void writeList(const char *title, const SelectionList &list, std::ostream &out)
{
    out << title << ':';
    for (const SelectionItem &item : list.items()) {
        for (const std::string &name : item.names())
            out << ' ' << name;
    }
    out << '\n';
}

} // namespace

std::string sceneText(const Scene &scene)
{
    std::ostringstream out;
    out << std::setprecision(17);
    writeNode(*scene.world(), out);
    for (const NodePtr &node : scene.nodes())
        writeNode(*node, out);
    return out.str();
}

std::string sessionText(Session &session)
{
    std::ostringstream out;
    out << sceneText(session.scene());
    writeList("selected", session.selection(), out);
    writeList("hilited", session.hilited(), out);
    return out.str();
}
