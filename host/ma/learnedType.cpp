// SPDX-License-Identifier: Apache-2.0
#include "ma/learnedType.h"

#include <vector>

#include "ma/plugText.h"
#include "ma/valueWriter.h"
#include "scene/plugAccess.h"

namespace host::ma
{

namespace
{

bool isHiddenBy(const NodeType &type, const Attribute &attribute)
{
    return attribute.isLearned() &&
           (type.find(attribute.longName) || type.find(attribute.shortName));
}

void writeConnection(StatementWriter &out, const Plug &source, const Connection &into,
                     const Plug &destination)
{
    out.begin("connectAttr").quoted(plugName(source, false)).quoted(plugName(destination, false));
    if (into.isLocked)
        out.flag("-l", "on");
    out.end();
}

void writeKept(StatementWriter &out, const Node &node, const Attribute &attribute)
{
    for (const KeptStatement &statement : node.keptStatements()) {
        if (attribute.hasName(statement.attribute))
            out.line(statement.text);
    }
}

// The connections of an attribute and what lies below it.
void writeConnections(StatementWriter &out, const Node &node, const Attribute &top)
{
    for (const auto &[key, source] : node.sources()) {
        if (AttributeChain(*key.attribute)[0] == &top)
            writeConnection(out, source.plug(), source, node.plugOf(key));
    }
    for (const auto &[key, ends] : node.allDestinations()) {
        for (const Connection &end : ends) {
            if (AttributeChain(*key.attribute)[0] == &top)
                writeConnection(out, node.plugOf(key), end, end.plug());
        }
    }
}

} // namespace

std::string makeParent(Scene &scene, const NodePtr &node)
{
    if (!node || node->type().isKnown || node->isDefault() || node->isA("transform"))
        return {};
    scene.types().findOrLearn(node->type().name, "transform");
    return adoptType(scene, node);
}

bool hasOldType(const Scene &scene, const Node &node)
{
    const NodeType &type = node.type();
    return !type.isKnown && !node.isDefault() && scene.types().find(type.name) != &type;
}

std::string adoptType(Scene &scene, const NodePtr &node)
{
    const NodeType &type = *scene.types().find(node->type().name);
    std::string text;
    StatementWriter out([&text](std::string_view piece) { text += piece; });
    const FileStyle style;
    const std::vector<AttributePtr> own = node->ownAttributes();
    for (const AttributePtr &attribute : own) {
        if (!isHiddenBy(type, *attribute))
            continue;
        writeKept(out, *node, *attribute);
        ValueWriter(out, style, node).writeAttribute(attribute);
        writeConnections(out, *node, *attribute);
        scene.removeAttribute(node, attribute);
    }
    out.finish();
    scene.adoptType(node);
    return text;
}

} // namespace host::ma
