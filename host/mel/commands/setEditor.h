// SPDX-License-Identifier: Apache-2.0
// Changing what belongs to a set, wired as Maya wires it:
//
//   node.instObjGroups[instance] -> set.dagSetMembers[k]                        a whole DAG object
//   node.message -> set.dnSetMembers[k]                                         any other node
//   shape.instObjGroups[instance].objectGroups[g] -> set.dagSetMembers[k]       components
//
// A group of components has a groupId node; its component list is kept by the shape or, where the
// shape is made by history, by a groupParts node in front of it.
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "scene/scene.h"
#include "scene/selection.h"

namespace host::mel
{

// Ties an object group of the shape to a set and to the id of the group; its components are still
// to be said. Returns the group.
Plug addObjectGroup(Scene &scene, const NodePtr &set, const NodePtr &groupId, const DagPath &shape);

// The sets that the item, or some of its components, belongs to. A plug belongs to none.
std::vector<NodePtr> setsOf(const SelectionItem &item);

// One set while it is edited. A deformer's set takes and gives points of the shapes that the
// deformer works on; a shading group takes the shapes of a transform for the transform.
class SetEditor
{
public:
    // REQUIRES: set->isA("objectSet").
    SetEditor(Scene &scene, NodePtr set);

    // Whether all that the item means belongs to the set.
    bool has(const SelectionItem &item) const;
    // What is in the set already stays once. Throws Error for what the set can not take: plugs, the
    // set itself, objects that its deformer does not work on.
    void add(const SelectionItem &item);
    // What is not in the set is passed over. Throws Error for components of a whole member.
    void remove(const SelectionItem &item);
    void clear();

private:
    std::vector<SelectionItem> meantBy(const SelectionItem &item) const;
    bool holdsWhole(const SelectionItem &item) const;
    Plug groupOf(const SelectionItem &item) const;
    void addComponents(const SelectionItem &item);
    void removeComponents(const SelectionItem &item);
    void write(const Plug &group, const SelectionItem &member);
    Plug makeGroup(const SelectionItem &item);
    void dropGroup(const Plug &group);
    void join(const Plug &source, std::string_view array);
    void leave(const Plug &source);

    Scene &scene_;
    NodePtr set_;
    bool isOfDeformer_;
    std::map<std::string_view, int> nextIndex_; // by array: behind the member that came last
};

} // namespace host::mel
