// SPDX-License-Identifier: Apache-2.0
#include "ma/plugText.h"

#include <algorithm>

#include "scene/dagPath.h"
#include "scene/plugAccess.h"
#include "scene/scene.h"

namespace host::ma
{

namespace
{

const std::string &nameOf(const Attribute &attribute, bool longNames)
{
    return longNames ? attribute.longName : attribute.shortName;
}

// The first step that has to be named.
unsigned firstNamedStep(const Node &node, const AttributeChain &chain, bool longNames)
{
    unsigned first = 0;
    for (unsigned i = 0; i + 1 < chain.size() && !chain[i]->isArray; ++i) {
        if (node.findAttribute(nameOf(*chain[i + 1], longNames)).get() == chain[i + 1])
            first = i + 1;
    }
    return first;
}

enum class InstanceIndex { written, leftOut };

std::string pathText(const Plug &plug, bool longNames, InstanceIndex instanceIndex)
{
    const AttributeChain chain(*plug.attribute);
    const unsigned first = firstNamedStep(*plug.node, chain, longNames);
    std::string text;
    for (unsigned i = first; i < chain.size(); ++i) {
        if (i > first)
            text += '.';
        text += nameOf(*chain[i], longNames);
        const bool isLeftOut = instanceIndex == InstanceIndex::leftOut && chain[i]->isPerInstance;
        if (plug.indices[i] != kNoIndex && !isLeftOut)
            text += '[' + std::to_string(plug.indices[i]) + ']';
    }
    return text;
}

} // namespace

std::string nodeText(const Node &node)
{
    return node.isDefault() ? ':' + node.name() : node.uniqueName();
}

std::string parentText(const NodePtr &node)
{
    return node->scene()->nodesNamed(node->name()).size() == 1 ? node->name()
                                                               : DagPath::first(node).fullName();
}

bool isWrittenBefore(const PlugKey &first, const PlugKey &second)
{
    const AttributeChain ofFirst(*first.attribute);
    const AttributeChain ofSecond(*second.attribute);
    if (!ofFirst[0]->isLearned() || !ofSecond[0]->isLearned())
        return ofFirst[0]->isLearned() == ofSecond[0]->isLearned() ? first < second
                                                                   : ofSecond[0]->isLearned();
    for (unsigned i = 0; i < std::min(ofFirst.size(), ofSecond.size()); ++i) {
        if (ofFirst[i] != ofSecond[i])
            return ofFirst[i]->longName < ofSecond[i]->longName;
        if (first.indices[i] != second.indices[i])
            return first.indices[i] < second.indices[i];
    }
    return ofFirst.size() < ofSecond.size();
}

std::string plugPath(const Plug &plug, bool longNames)
{
    return pathText(plug, longNames, InstanceIndex::written);
}

std::string plugName(const Plug &plug, bool longNames)
{
    const AttributeChain chain(*plug.attribute);
    if (!chain[0]->isPerInstance || plug.indices[0] == kNoIndex || !plug.node->isDag())
        return nodeText(*plug.node) + '.' + plugPath(plug, longNames);
    const std::size_t instance = std::size_t(plug.indices[0]);
    const std::vector<DagPath> paths = DagPath::all(plug.node);
    const bool hasPath = instance < paths.size();
    const std::string node =
        hasPath && paths.size() > 1 ? paths[instance].fullName() : nodeText(*plug.node);
    return node + '.' +
           pathText(plug, longNames, hasPath ? InstanceIndex::leftOut : InstanceIndex::written);
}

} // namespace host::ma
