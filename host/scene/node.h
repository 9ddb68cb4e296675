// SPDX-License-Identifier: Apache-2.0
// A dependency node: its type, name, data and connections, and, for DAG nodes, its place.
//
// Reading is done here; every change goes through Scene (scene.h), which records it for undo. A
// node stays in memory as long as anybody holds it, but is out of the scene once deleted.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "scene/datum.h"
#include "scene/nodeType.h"
#include "scene/plug.h"
#include "skin/weightStore.h"

namespace host
{

class Scene;

struct Connection {
    Node *node = nullptr; // the node at the other end
    AttributePtr attribute;
    PlugIndices indices;
    bool isLocked = false; // made with connectAttr -lock
    Plug plug() const;
};

// A statement of a file about one node that means nothing to the host.
struct KeptStatement {
    std::string text;      // as the file had it, with its `;`
    std::string attribute; // the top-level attribute that it is about; empty: about the node
};

class Node : public std::enable_shared_from_this<Node>
{
public:
    Node(Scene &scene, const NodeType &type, std::string name);

    // Null once the node has been deleted (it may come back by undo).
    Scene *scene() const { return scene_; }
    bool isInScene() const { return scene_ != nullptr; }
    const NodeType &type() const { return *type_; }
    bool isA(std::string_view typeName) const { return type_->isA(typeName); }
    bool isDag() const { return type_->isA("dagNode"); }
    const std::string &name() const { return name_; } // with its namespace: "rig:hip"
    // The shortest name that is unique in the scene: "hip", "left|hip".
    std::string uniqueName() const;
    const std::string &uuid() const { return uuid_; } // empty if the file had none
    bool isLocked() const { return isLocked_; }
    bool isLockUnpublished() const { return isLockUnpublished_; }
    // Default nodes (time1, initialShadingGroup, ...) exist in every scene and are never deleted.
    bool isDefault() const { return isDefault_; }
    // Made shared (createNode -s), as the default cameras are.
    bool isShared() const { return isShared_; }
    const std::vector<KeptStatement> &keptStatements() const { return keptStatements_; }

    // Attributes in order: declared, dynamic and learned ones. Top level only.
    std::vector<AttributePtr> attributes() const;
    // Dynamic and learned ones only, in the order in which they came.
    const std::vector<AttributePtr> &ownAttributes() const { return ownAttributes_; }
    // By long or short name, children too; null if there is none.
    AttributePtr findAttribute(std::string_view name) const;
    // REQUIRES: findAttribute(name).
    Plug plug(std::string_view attributeName) const;

    // The data behind a plug, or null where nothing is stored. Packed elements have none of their
    // own: use numbers(). The weights of a skin cluster are in weights(), not here.
    const Datum *datum(const Plug &plug) const;
    // What is stored at a complete leaf plug, or the attribute's default. Looks at no connection.
    Value storedValue(const Plug &plug) const;
    // The block behind a packed array, or null.
    const PackedNumbers *numbers(const Plug &wholeArray) const;
    // Grows with every change of what is stored in the node, by undo and redo too. Connections and
    // states do not count.
    unsigned long dataRevision() const { return dataRevision_; }
    // Existing elements of an array: set, read or connected; ascending logical indices.
    std::vector<int> elementIndices(const Plug &wholeArray) const;
    std::size_t elementCount(const Plug &wholeArray) const;
    bool hasElement(const Plug &element) const;
    PlugState state(const Plug &plug) const;
    const std::map<PlugKey, PlugState> &states() const { return states_; }

    // The connection into exactly this plug, or null.
    const Connection *source(const Plug &plug) const;
    // The connections out of exactly this plug, in the order in which they were made.
    std::vector<Connection> destinations(const Plug &plug) const;
    const std::map<PlugKey, Connection> &sources() const { return sources_; }
    const std::map<PlugKey, std::vector<Connection>> &allDestinations() const
    {
        return destinations_;
    }
    // The plug of this node that `key` stands for.
    Plug plugOf(const PlugKey &key) const;

    // The weights of a skin cluster: weightList[vertex].weights[logical influence]. Null on others.
    const skin::WeightStore *weights() const { return weights_.get(); }

    // DAG: parents in instance order (the world, which has no name, among them), children in order.
    const std::vector<Node *> &parents() const { return parents_; }
    const std::vector<NodePtr> &children() const { return children_; }
    bool isIntermediate() const; // intermediateObject of a shape

private:
    friend class Scene;
    friend struct SceneEdit;
    Datum *mutableDatum(const Plug &plug, bool create);

    Scene *scene_;
    const NodeType *type_;
    std::string name_;
    std::string uuid_;
    bool isLocked_ = false;
    bool isLockUnpublished_ = false;
    bool isDefault_ = false;
    bool isShared_ = false;
    unsigned long serial_ = 0; // place in the scene's order of creation
    unsigned long dataRevision_ = 0;
    unsigned nextAttributeOrder_ = 0;
    std::vector<KeptStatement> keptStatements_;
    std::vector<AttributePtr> ownAttributes_;
    std::unordered_map<std::string, AttributePtr> ownByName_;
    std::unordered_map<const Attribute *, Datum> data_; // by top-level attribute
    std::map<PlugKey, PlugState> states_;
    std::map<PlugKey, Connection> sources_;
    std::map<PlugKey, std::vector<Connection>> destinations_;
    std::unique_ptr<skin::WeightStore> weights_;
    std::vector<Node *> parents_;
    std::vector<NodePtr> children_;
};

} // namespace host
