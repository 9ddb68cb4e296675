// SPDX-License-Identifier: Apache-2.0
#include "scene/setMembers.h"

#include <algorithm>
#include <cstdlib>

#include "scene/meshGeometry.h"
#include "scene/scene.h"

namespace host
{

namespace
{

// "vtx[3]", "vtx[3:7]" and "vtx[*]" of a component list, cut to the mesh.
bool readComponents(const std::vector<std::string> &texts, const Node &mesh, Component &component)
{
    const int count = int(vertexCount(mesh));
    for (const std::string &text : texts) {
        const std::size_t open = text.find('[');
        if (open == std::string::npos || !parseComponentWord(text.substr(0, open), component.kind))
            return false;
        const std::string range = text.substr(open + 1);
        const bool isAll = range[0] == '*';
        const std::size_t colon = range.find(':');
        const int first = isAll ? 0 : std::max(0, std::atoi(range.c_str()));
        int last = isAll ? count - 1 : first;
        if (!isAll && colon != std::string::npos)
            last = range[colon + 1] == '*' ? count - 1 : std::atoi(range.c_str() + colon + 1);
        if (component.kind == ComponentKind::vertex)
            last = std::min(last, count - 1);
        for (int element = first; element <= last && element - first < (1 << 24); ++element)
            component.elements.push_back(element);
    }
    component.normalize();
    return !component.elements.empty();
}

std::vector<std::string> textsAt(const Plug &componentList)
{
    const Value value = evaluate(componentList);
    const auto *texts = std::get_if<std::vector<std::string>>(&value);
    return texts ? *texts : std::vector<std::string>();
}

} // namespace

Plug componentListOf(const Plug &objectGroup)
{
    const std::vector<AttributePtr> &children = objectGroup.attribute->children;
    const Plug own = objectGroup.child(children[0]);
    const Connection *id = objectGroup.node->source(objectGroup.child(children[1]));
    if (!id || !textsAt(own).empty())
        return own;
    for (const Connection &user : id->node->destinations(id->plug())) {
        if (user.node->isA("groupParts"))
            return user.node->plug("inputComponents");
    }
    return own;
}

bool memberAt(const Plug &source, SelectionItem &item)
{
    item.node = source.node;
    if (source.node->isDag())
        item.path = DagPath::first(source.node);
    // An added attribute may have the name without what belongs to it.
    if (source.attribute->longName == "objectGroups" && source.attribute->children.size() >= 2) {
        item.component.emplace();
        return source.node->isA("mesh") &&
               readComponents(textsAt(componentListOf(source)), *source.node, *item.component);
    }
    if (source.node->isA("shape") && !item.path.parent().isNull()) {
        item.path = item.path.parent();
        item.node = item.path.node();
    }
    return true;
}

std::vector<SelectionItem> setMembers(const Node &set)
{
    std::vector<SelectionItem> members;
    for (const char *array : {"dagSetMembers", "dnSetMembers"}) {
        const Plug whole = set.plug(array);
        for (const int index : set.elementIndices(whole)) {
            const Connection *source = set.source(whole.element(index));
            SelectionItem item;
            if (source && memberAt(source->plug(), item))
                members.push_back(std::move(item));
        }
    }
    return members;
}

} // namespace host
