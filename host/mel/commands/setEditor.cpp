// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/setEditor.h"

#include <algorithm>
#include <numeric>

#include "mel/commands/commandSupport.h"
#include "mel/commands/deformerNetwork.h"
#include "scene/history.h"
#include "scene/meshGeometry.h"
#include "scene/setMembers.h"

namespace host::mel
{

namespace
{

constexpr std::string_view kMemberArrays[] = {"dagSetMembers", "dnSetMembers"};

bool isMemberEnd(const Connection &end)
{
    return end.node->isA("objectSet") &&
           std::find(std::begin(kMemberArrays), std::end(kMemberArrays), end.attribute->longName) !=
               std::end(kMemberArrays);
}

void connectNext(Scene &scene, const Plug &source, const Plug &array)
{
    scene.connect(source, array.element(scene.nextAvailable(array)));
}

Plug instanceGroups(const DagPath &path)
{
    return path.node()->plug("instObjGroups").element(int(path.instanceNumber()));
}

Plug objectGroups(const DagPath &shape)
{
    const Plug instance = instanceGroups(shape);
    return instance.child(instance.attribute->child("objectGroups"));
}

// The plug that a set is told of a whole object or node.
Plug wholePlug(const SelectionItem &item)
{
    return item.path.isNull() ? item.node->plug("message") : instanceGroups(item.path);
}

SelectionItem allVertices(const DagPath &shape)
{
    SelectionItem item = itemOf(shape);
    item.component = Component{ComponentKind::vertex, std::vector<int>(vertexCount(*shape.node()))};
    std::iota(item.component->elements.begin(), item.component->elements.end(), 0);
    return item;
}

std::vector<DagPath> visibleShapes(const DagPath &path)
{
    if (isShape(*path.node()))
        return {path};
    std::vector<DagPath> shapes;
    for (const NodePtr &child : path.node()->children()) {
        if (isShape(*child) && !child->isIntermediate())
            shapes.push_back(path.child(child));
    }
    return shapes;
}

bool shareComponents(const Component &first, const Component &second)
{
    return first.kind == second.kind &&
           std::any_of(first.elements.begin(), first.elements.end(), [&second](int element) {
               return std::binary_search(second.elements.begin(), second.elements.end(), element);
           });
}

// Where a shape is made by history, the components of a group are kept by a node at its end. Which
// place Maya gives that node before or behind deformers is a guess.
void insertGroupParts(Scene &scene, const NodePtr &groupId, const NodePtr &shape)
{
    const Plug input = shapeInput(*shape);
    const Connection *source = input.isNull() ? nullptr : shape->source(input);
    if (!source)
        return;
    const Plug geometry = source->plug();
    const NodePtr parts = scene.createNode("groupParts", "");
    scene.setValue(parts->plug("isHistoricallyInteresting"), 0.0);
    scene.connect(groupId->plug("groupId"), parts->plug("groupId"));
    scene.connect(geometry, parts->plug("inputGeometry"));
    scene.connect(parts->plug("outputGeometry"), input, true);
}

void removeGroupParts(Scene &scene, const NodePtr &parts)
{
    const Connection *source = parts->source(parts->plug("inputGeometry"));
    if (!source)
        return;
    const Plug geometry = source->plug();
    for (const Connection &end : parts->destinations(parts->plug("outputGeometry")))
        scene.connect(geometry, end.plug(), true);
    scene.deleteNode(parts);
}

// Takes the groupId of a group that is gone away, if no other group has it.
void removeGroupId(Scene &scene, const NodePtr &groupId)
{
    for (const Connection &user : groupId->destinations(groupId->plug("groupId"))) {
        if (user.node->isA("groupParts"))
            removeGroupParts(scene, user.node->shared_from_this());
    }
    if (groupId->destinations(groupId->plug("groupId")).empty())
        scene.deleteNode(groupId);
}

} // namespace

Plug addObjectGroup(Scene &scene, const NodePtr &set, const NodePtr &groupId, const DagPath &shape)
{
    const Plug groups = objectGroups(shape);
    const Plug group = groups.element(scene.nextAvailable(groups));
    const AttributePtr &attribute = groups.attribute;
    scene.connect(groupId->plug("groupId"), group.child(attribute->child("objectGroupId")));
    scene.connect(set->plug("memberWireframeColor"),
                  group.child(attribute->child("objectGrpColor")));
    connectNext(scene, group, set->plug("dagSetMembers"));
    connectNext(scene, groupId->plug("message"), set->plug("groupNodes"));
    return group;
}

std::vector<NodePtr> setsOf(const SelectionItem &item)
{
    std::vector<NodePtr> sets;
    const auto take = [&sets](const Plug &source) {
        for (const Connection &end : source.node->destinations(source)) {
            if (isMemberEnd(end))
                sets.push_back(end.node->shared_from_this());
        }
    };
    if (item.isPlug())
        return sets;
    take(wholePlug(item));
    if (!item.component)
        return sets;
    const Plug groups = objectGroups(item.path);
    for (const int index : item.node->elementIndices(groups)) {
        SelectionItem member;
        if (memberAt(groups.element(index), member) &&
            shareComponents(*item.component, *member.component))
            take(groups.element(index));
    }
    return sets;
}

SetEditor::SetEditor(Scene &scene, NodePtr set) : scene_(scene), set_(std::move(set))
{
    const Connection *user = set_->source(plugAt(set_, "usedBy[0]"));
    isOfDeformer_ = user && user->node->isA("geometryFilter");
}

// What really becomes a member: the item itself, its points, or its shapes.
std::vector<SelectionItem> SetEditor::meantBy(const SelectionItem &item) const
{
    if (item.isPlug() || item.node == set_)
        throw Error("'" + item.names().front() + "' can not be a member of '" + set_->uniqueName() +
                    "'.");
    const bool takesVertices = isOfDeformer_ || evaluateNumber(set_->plug("verticesOnlySet")) != 0;
    const bool isVertices = item.component && item.component->kind == ComponentKind::vertex;
    if (takesVertices && item.component && !isVertices)
        throw Error("'" + set_->uniqueName() + "' holds vertices only.");
    if (item.component || item.path.isNull() || !(takesVertices || set_->isA("shadingEngine")))
        return {item};
    std::vector<SelectionItem> meant;
    for (const DagPath &shape : visibleShapes(item.path)) {
        const bool isMesh = shape.node()->isA("mesh");
        meant.push_back(takesVertices && isMesh ? allVertices(shape) : itemOf(shape));
    }
    return meant;
}

bool SetEditor::has(const SelectionItem &item) const
{
    const std::vector<SelectionItem> meant = meantBy(item);
    return !meant.empty() && std::all_of(meant.begin(), meant.end(), [this](const auto &one) {
        if (holdsWhole(one))
            return true;
        const Plug group = one.component ? groupOf(one) : Plug();
        SelectionItem member;
        if (group.isNull() || !memberAt(group, member))
            return false;
        const std::vector<int> &all = member.component->elements;
        const std::vector<int> &some = one.component->elements;
        return std::includes(all.begin(), all.end(), some.begin(), some.end());
    });
}

void SetEditor::add(const SelectionItem &item)
{
    for (const SelectionItem &one : meantBy(item)) {
        if (holdsWhole(one))
            continue;
        if (one.component)
            addComponents(one);
        else
            join(wholePlug(one), one.path.isNull() ? kMemberArrays[1] : kMemberArrays[0]);
    }
}

void SetEditor::remove(const SelectionItem &item)
{
    for (const SelectionItem &one : meantBy(item)) {
        if (one.component)
            removeComponents(one);
        else
            leave(wholePlug(one));
    }
}

void SetEditor::clear()
{
    std::vector<Plug> sources;
    for (const std::string_view name : kMemberArrays) {
        const Plug array = set_->plug(name);
        for (const int index : set_->elementIndices(array)) {
            if (const Connection *source = set_->source(array.element(index)))
                sources.push_back(source->plug());
        }
    }
    for (const Plug &source : sources) {
        const bool isGroup = source.attribute->longName == "objectGroups";
        if (isGroup && isOfDeformer_)
            scene_.setValue(componentListOf(source), std::vector<std::string>());
        else if (isGroup)
            dropGroup(source);
        else
            leave(source);
    }
}

// Whether the item is a member as a whole; of components the shape or its transform.
bool SetEditor::holdsWhole(const SelectionItem &item) const
{
    const auto isMember = [this](const Plug &whole) {
        const std::vector<Connection> ends = whole.node->destinations(whole);
        return std::any_of(ends.begin(), ends.end(), [this](const Connection &end) {
            return end.node == set_.get() && isMemberEnd(end);
        });
    };
    return isMember(wholePlug(item)) ||
           (item.component && isMember(instanceGroups(item.path.parent())));
}

// The group of the shape in which the set keeps components of this kind.
Plug SetEditor::groupOf(const SelectionItem &item) const
{
    const Plug groups = objectGroups(item.path);
    for (const int index : item.node->elementIndices(groups)) {
        const Plug group = groups.element(index);
        const std::vector<Connection> ends = item.node->destinations(group);
        const bool isOurs = std::any_of(ends.begin(), ends.end(), [this](const Connection &end) {
            return end.node == set_.get() && isMemberEnd(end);
        });
        SelectionItem member;
        if (isOurs && (!memberAt(group, member) || member.component->kind == item.component->kind))
            return group;
    }
    return Plug();
}

void SetEditor::addComponents(const SelectionItem &item)
{
    Plug group = groupOf(item);
    if (group.isNull() && isOfDeformer_)
        throw Error("'" + item.node->uniqueName() + "' is not deformed by the deformer of '" +
                    set_->uniqueName() + "'.");
    if (group.isNull())
        group = makeGroup(item);
    SelectionItem member;
    if (memberAt(group, member))
        member.component->merge(*item.component);
    else
        member = item;
    write(group, member);
}

void SetEditor::removeComponents(const SelectionItem &item)
{
    if (holdsWhole(item))
        throw Error("'" + item.node->uniqueName() + "' is a member of '" + set_->uniqueName() +
                    "' as a whole; components of it can not be taken out.");
    const Plug group = groupOf(item);
    SelectionItem member;
    if (group.isNull() || !memberAt(group, member))
        return;
    member.component->remove(*item.component);
    if (member.component->elements.empty() && !isOfDeformer_)
        dropGroup(group);
    else
        write(group, member);
}

void SetEditor::write(const Plug &group, const SelectionItem &member)
{
    const Component &component = *member.component;
    const bool isAll = component.kind == ComponentKind::vertex &&
                       component.elements.size() == vertexCount(*member.node);
    scene_.setValue(componentListOf(group),
                    isAll ? std::vector<std::string>{"vtx[*]"} : component.ranges());
}

Plug SetEditor::makeGroup(const SelectionItem &item)
{
    const NodePtr groupId = scene_.createNode("groupId", "");
    scene_.setValue(groupId->plug("isHistoricallyInteresting"), 0.0);
    const Plug group = addObjectGroup(scene_, set_, groupId, item.path);
    insertGroupParts(scene_, groupId, item.node);
    return group;
}

void SetEditor::dropGroup(const Plug &group)
{
    leave(group);
    NodePtr groupId;
    for (const char *child : {"objectGroupId", "objectGrpColor"}) {
        const Plug plug = group.child(group.attribute->child(child));
        const Connection *source = plug.node->source(plug);
        if (!source)
            continue;
        if (source->node->isA("groupId"))
            groupId = source->node->shared_from_this();
        scene_.disconnect(source->plug(), plug);
    }
    if (groupId)
        removeGroupId(scene_, groupId);
    scene_.removeElement(group);
}

void SetEditor::join(const Plug &source, std::string_view array)
{
    const Plug members = set_->plug(array);
    const auto [next, isFirst] = nextIndex_.emplace(array, 0);
    if (isFirst)
        next->second = scene_.nextAvailable(members);
    while (set_->hasElement(members.element(next->second)))
        ++next->second;
    scene_.connect(source, members.element(next->second));
}

void SetEditor::leave(const Plug &source)
{
    for (const Connection &end : source.node->destinations(source)) {
        if (end.node != set_.get() || !isMemberEnd(end))
            continue;
        const Plug element = end.plug();
        scene_.disconnect(source, element);
        scene_.removeElement(element);
    }
}

} // namespace host::mel
