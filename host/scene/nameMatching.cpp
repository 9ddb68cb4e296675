// SPDX-License-Identifier: Apache-2.0
// What names and patterns mean: matchName and requireName of selection.h.
#include <algorithm>
#include <charconv>
#include <numeric>
#include <set>

#include "scene/meshGeometry.h"
#include "scene/scene.h"
#include "scene/selection.h"

namespace host
{

namespace
{

bool hasWildcard(std::string_view text)
{
    return text.find_first_of("*?") != std::string_view::npos;
}

// '*' and '?' stay inside a name: they match no namespace colon.
bool matchesPattern(std::string_view text, std::string_view pattern)
{
    std::size_t t = 0, p = 0;
    std::size_t star = std::string_view::npos, resume = 0;
    while (t < text.size()) {
        if (p < pattern.size() &&
            (pattern[p] == text[t] || (pattern[p] == '?' && text[t] != ':'))) {
            ++t;
            ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = t;
        } else if (star != std::string_view::npos && text[resume] != ':') {
            t = ++resume;
            p = star + 1;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

SelectionItem itemOf(const DagPath &path)
{
    SelectionItem item;
    item.path = path;
    item.node = path.node();
    return item;
}

SelectionItem itemOf(const NodePtr &node)
{
    SelectionItem item;
    item.node = node;
    if (node->isDag())
        item.path = DagPath::first(node);
    return item;
}

bool pathMatches(const DagPath &path, std::string_view pattern)
{
    const std::vector<NodePtr> &nodes = path.nodes();
    std::size_t place = nodes.size();
    while (true) {
        const std::size_t bar = pattern.rfind('|');
        std::string_view part = pattern.substr(bar + 1);
        if (!part.empty() && part.front() == ':')
            part.remove_prefix(1);
        if (place == 0 || !matchesPattern(nodes[--place]->name(), part))
            return false;
        if (bar == std::string_view::npos)
            return true;
        if (bar == 0)
            return place == 0; // rooted
        pattern = pattern.substr(0, bar);
    }
}

std::vector<SelectionItem> matchPattern(const Scene &scene, std::string_view pattern)
{
    std::vector<SelectionItem> items;
    const bool isPath = pattern.find('|') != std::string_view::npos;
    for (const NodePtr &node : scene.nodes()) {
        if (!node->isDag()) {
            if (!isPath && matchesPattern(node->name(), pattern))
                items.push_back(itemOf(node));
            continue;
        }
        for (const DagPath &path : DagPath::all(node)) {
            if (pathMatches(path, pattern))
                items.push_back(itemOf(path));
        }
    }
    return items;
}

std::vector<SelectionItem> matchNodes(const Scene &scene, std::string_view name)
{
    if (name.empty())
        return {};
    if (hasWildcard(name))
        return matchPattern(scene, name);
    std::vector<SelectionItem> items;
    for (const DagPath &path : scene.pathsMatching(name))
        items.push_back(itemOf(path));
    if (items.empty() && name.find('|') == std::string_view::npos) {
        for (const NodePtr &node : scene.nodesNamed(name)) {
            if (!node->isDag())
                items.push_back(itemOf(node));
        }
    }
    // One node reached on several ways is still one object to a name without a path.
    std::set<const Node *> different;
    for (const SelectionItem &item : items)
        different.insert(item.node.get());
    if (different.size() > 1)
        throwAmbiguousName(std::string(name));
    return items;
}

// How many components of a kind the mesh has.
int componentCount(const Node &mesh, ComponentKind kind)
{
    if (kind == ComponentKind::vertex)
        return int(vertexCount(mesh));
    const MeshGeometry geometry = meshGeometry(mesh);
    if (kind == ComponentKind::edge)
        return int(geometry.edgeCount);
    if (kind == ComponentKind::face)
        return int(geometry.faceSizes.size());
    return int(geometry.vertexCount);
}

// "3", "3:7" or "*" of a component's brackets.
bool parseRange(std::string_view text, int count, int &first, int &last)
{
    if (text == "*") {
        first = 0;
        last = count - 1;
        return true;
    }
    const char *const end = text.data() + text.size();
    auto parsed = std::from_chars(text.data(), end, first);
    last = first;
    if (parsed.ec == std::errc() && parsed.ptr != end && *parsed.ptr == ':')
        parsed = std::from_chars(parsed.ptr + 1, end, last);
    return parsed.ec == std::errc() && parsed.ptr == end && first >= 0 && first <= last;
}

// The visible shape of a transform, or the shape itself.
DagPath shapeOf(const DagPath &path)
{
    if (path.node()->isA("shape"))
        return path;
    for (const NodePtr &child : path.node()->children()) {
        if (child->isA("mesh") && !child->isIntermediate())
            return path.child(child);
    }
    return DagPath();
}

// True when `text` is "vtx[3]" or the like.
bool splitComponent(std::string_view text, ComponentKind &kind, std::string_view &range)
{
    const std::size_t bracket = text.find('[');
    if (bracket == std::string_view::npos || text.back() != ']')
        return false;
    range = text.substr(bracket + 1, text.size() - bracket - 2);
    return parseComponentWord(text.substr(0, bracket), kind);
}

// That numbers beyond the mesh are refused instead of cut off is a guess.
SelectionItem componentItem(const SelectionItem &object, ComponentKind kind, std::string_view range,
                            std::string_view name)
{
    const DagPath shape = shapeOf(object.path);
    int first = 0;
    int last = 0;
    if (shape.isNull() || !shape.node()->isA("mesh"))
        throwNoSuchObject(std::string(name));
    const int count = componentCount(*shape.node(), kind);
    if (!parseRange(range, count, first, last) || last >= count)
        throwNoSuchObject(std::string(name));
    SelectionItem item = itemOf(shape);
    item.component = Component{kind, std::vector<int>(std::size_t(last - first) + 1)};
    std::iota(item.component->elements.begin(), item.component->elements.end(), first);
    return item;
}

SelectionItem plugItem(const SelectionItem &object, std::string_view path)
{
    SelectionItem item = object;
    item.plug = resolvePlugPath(object.node, path, UnknownAttribute::refuse).plug;
    return item;
}

// Of the objects that a pattern finds only those that have the attribute or component; a shape that
// is found by its transform as well counts once.
template <typename Meaning>
std::vector<SelectionItem> wherePossible(const std::vector<SelectionItem> &objects, Meaning meant)
{
    std::vector<SelectionItem> items;
    std::set<std::vector<NodePtr>> shapes;
    for (const SelectionItem &object : objects) {
        try {
            SelectionItem item = meant(object);
            if (!item.component || shapes.insert(item.path.nodes()).second)
                items.push_back(std::move(item));
        } catch (const Error &) { // "*.liw" skips what has none
        }
    }
    return items;
}

} // namespace

std::vector<SelectionItem> matchName(const Scene &scene, std::string_view pattern)
{
    const std::size_t dot = pattern.find('.');
    std::vector<SelectionItem> objects = matchNodes(scene, pattern.substr(0, dot));
    if (dot == std::string_view::npos)
        return objects;
    const std::string_view rest = pattern.substr(dot + 1);
    ComponentKind kind = ComponentKind::vertex;
    std::string_view range;
    const bool isComponent = splitComponent(rest, kind, range);
    const auto meant = [&](const SelectionItem &object) {
        return isComponent && object.node->isDag() ? componentItem(object, kind, range, pattern)
                                                   : plugItem(object, rest);
    };
    if (hasWildcard(pattern.substr(0, dot)))
        return wherePossible(objects, meant);
    std::transform(objects.begin(), objects.end(), objects.begin(), meant);
    return objects;
}

std::vector<SelectionItem> requireName(const Scene &scene, std::string_view pattern)
{
    std::vector<SelectionItem> items = matchName(scene, pattern);
    if (items.empty())
        throwNoSuchObject(std::string(pattern));
    return items;
}

} // namespace host
