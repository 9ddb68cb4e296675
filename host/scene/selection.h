// SPDX-License-Identifier: Apache-2.0
// Lists of selected things: nodes, DAG paths, components and plugs.
//
// An object is selected as the path of its transform or node, components as the path of their shape
// with the component; `name()` still says "pCube1.vtx[3]".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/component.h"
#include "scene/dagPath.h"
#include "scene/plug.h"

namespace host
{

class Scene;

struct SelectionItem {
    DagPath path;                       // null for a node outside the DAG
    NodePtr node;                       // the path's last node, or the node itself
    std::optional<Component> component; // of a mesh
    Plug plug;                          // null unless a plug is selected

    bool isPlug() const { return !plug.isNull(); }
    bool sameObject(const SelectionItem &other) const; // component and plug left aside
    bool operator==(const SelectionItem &other) const;
    // Names as `ls` gives them, shortest unique; a component gives one per contiguous range, with
    // `isFlat` one per element.
    std::vector<std::string> names(bool fullPaths = false, bool isFlat = false) const;
};

class SelectionList
{
public:
    const std::vector<SelectionItem> &items() const { return items_; }
    bool isEmpty() const { return items_.empty(); }
    std::size_t size() const { return items_.size(); }
    void clear() { items_.clear(); }

    void append(SelectionItem item) { items_.push_back(std::move(item)); }
    // Adds without repetition: components of an object that has some join its item.
    void merge(const SelectionItem &item);
    void remove(const SelectionItem &item); // components are taken out of their item
    void toggle(const SelectionItem &item);
    void removeAt(std::size_t index) { items_.erase(items_.begin() + long(index)); }
    void replaceAt(std::size_t index, SelectionItem item) { items_[index] = std::move(item); }
    bool has(const SelectionItem &item) const;
    // Drops items whose node has left the scene; true if any was dropped.
    bool dropDeleted();
    bool operator==(const SelectionList &other) const { return items_ == other.items_; }

private:
    std::vector<SelectionItem> items_;
};

// What a name or pattern means: "pCube1", "joint*", "|a|b", "pCube1.vtx[3:7]", "pCube1.vtx[*]",
// "pCube1.tx", "rig:*". Empty if nothing matches. Throws for a vertex number beyond the mesh.
std::vector<SelectionItem> matchName(const Scene &scene, std::string_view pattern);

// The same for a name that must mean something: throws "No object matches name: NAME".
std::vector<SelectionItem> requireName(const Scene &scene, std::string_view pattern);

} // namespace host
