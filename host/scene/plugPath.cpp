// SPDX-License-Identifier: Apache-2.0
// Reading plug paths, "wl[0:2].w[3]".
#include <charconv>

#include "scene/error.h"
#include "scene/plugAccess.h"
#include "scene/scene.h"

namespace host
{

namespace
{

struct PathStep {
    std::string_view name;
    int first = kNoIndex;
    int last = kNoIndex;
};

// Takes one "name[3]" or "name[0:2]" off the front of `path`, with the dot behind it. False on a
// syntax error.
bool takeStep(std::string_view &path, PathStep &step)
{
    const std::size_t nameEnd = path.find_first_of(".[");
    step.name = path.substr(0, nameEnd);
    path.remove_prefix(step.name.size());
    if (step.name.empty())
        return false;
    if (!path.empty() && path.front() == '[') {
        const char *const end = path.data() + path.size();
        auto parsed = std::from_chars(path.data() + 1, end, step.first);
        step.last = step.first;
        if (parsed.ec == std::errc() && parsed.ptr != end && *parsed.ptr == ':')
            parsed = std::from_chars(parsed.ptr + 1, end, step.last);
        if (parsed.ec != std::errc() || parsed.ptr == end || *parsed.ptr != ']' || step.first < 0 ||
            step.last < step.first)
            return false;
        path.remove_prefix(std::size_t(parsed.ptr + 1 - path.data()));
    }
    if (path.empty())
        return true;
    const bool hasMore = path.front() == '.' && path.size() > 1;
    path.remove_prefix(1);
    return hasMore;
}

[[noreturn]] void refuse(const Node &node, std::string_view path)
{
    throwNoSuchObject(node.uniqueName() + '.' + std::string(path));
}

// The attribute that the step names below `above` (null: at the top), learned if need be.
AttributePtr attributeOf(const NodePtr &node, const AttributePtr &above, const PathStep &step,
                         std::string_view path, UnknownAttribute unknown)
{
    AttributePtr found = above ? above->child(step.name) : node->findAttribute(step.name);
    if (found)
        return found;
    const bool mayLearn = unknown == UnknownAttribute::learn && (!above || above->isLearned());
    if (!mayLearn)
        refuse(*node, path);
    return node->scene()->learnAttribute(node, above, step.name, step.first != kNoIndex);
}

// The path has an index on the attribute.
void requireArray(const NodePtr &node, const AttributePtr &attribute, std::string_view path,
                  UnknownAttribute unknown)
{
    if (attribute->isArray)
        return;
    const bool mayLearn =
        unknown == UnknownAttribute::learn ||
        (unknown == UnknownAttribute::learnShape && !holdsAnything(*node, *attribute));
    if (!attribute->isLearned() || !mayLearn)
        refuse(*node, path);
    node->scene()->learn(node, attribute, LearnedShape::array);
}

} // namespace

PlugRange resolvePlugPath(const NodePtr &node, std::string_view path, UnknownAttribute unknown)
{
    PlugRange range;
    range.plug.node = node;
    AttributePtr attribute;
    PlugIndices &indices = range.plug.indices;
    for (std::string_view rest = path; attribute == nullptr || !rest.empty();) {
        PathStep step;
        if (!takeStep(rest, step))
            refuse(*node, path);
        const bool isFirst = attribute == nullptr;
        attribute = attributeOf(node, attribute, step, path, unknown);
        const unsigned depth = attribute->depth();
        if (depth > kMaxAttributeDepth || (!isFirst && depth == kMaxAttributeDepth))
            throw Error("Attributes nest too deeply: " + std::string(path).substr(0, 80));
        if (step.first != kNoIndex) {
            requireArray(node, attribute, path, unknown);
            indices[depth - 1] = step.first;
            if (step.last != step.first) {
                if (range.rangeDepth >= 0)
                    refuse(*node, path); // one range at most
                range.rangeDepth = int(depth) - 1;
                range.last = step.last;
            }
        } else if (!rest.empty() &&
                   (attribute->isPerInstance || (attribute->isLearned() && attribute->isArray))) {
            indices[depth - 1] = 0;
        }
    }
    range.plug.attribute = attribute;
    return range;
}

} // namespace host
