// SPDX-License-Identifier: Apache-2.0
// The scene: all nodes, their names, and every change to them.
//
// Each changing function does its work at once and hands the way back and forth to the recorder, if
// one is set: undo is the recorded changes in reverse. What is done without a recorder (plug writes
// through the API, reading a file) cannot be undone. All functions throw Error and change nothing
// when they refuse, unless they say otherwise.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "scene/change.h"
#include "scene/dagPath.h"
#include "scene/error.h"
#include "scene/fileInfo.h"
#include "scene/node.h"
#include "scene/nodeType.h"
#include "scene/numberedNames.h"

namespace host
{

// A connection that a file makes and the scene can't: one of its ends, or a plug of it, is not
// there. It is kept for the next save and lives as long as those of its nodes that were found.
struct KeptConnection {
    struct End {
        bool hasNode = false;
        std::weak_ptr<Node> node; // if hasNode
        std::string text;         // behind the node's name: ".brandNew[0]"; without node all of it
    };
    End source;
    End destination;
    std::string flags; // " -l on -na"
};

// What a file says about itself beside its nodes. Statements are kept as text with their `;`.
struct FileFacts {
    std::string mayaVersion = "2017";         // of the header line and `requires maya`
    std::vector<std::string> requiredPlugins; // "requires ..." statements but maya's
    FileInfo fileInfo;
    std::string linearUnit = "centimeter";
    std::string angularUnit = "degree";
    std::string timeUnit = "film";
    std::vector<std::string> references; // "file -rdi ...", "file -r ..."
    std::vector<std::string> trailing;   // relationship, dataStructure, and what nobody understood
    std::vector<KeptConnection> keptConnections;
    std::string path;          // where it was read from or last saved to; may be empty
    bool hasLongNames = false; // the file wrote long flags and attribute names
};

class Scene
{
public:
    // The default nodes and the four default cameras. A file that is read brings its own cameras,
    // perhaps under other names or parents.
    enum class Cameras { made, leftToFile };
    explicit Scene(Cameras cameras = Cameras::made);
    ~Scene();
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    FileFacts facts;
    NodeTypes &types() { return types_; }
    const NodeTypes &types() const { return types_; }

    // --- Finding ------------------------------------------------------------------------------
    // All nodes in order of creation; the world is not among them.
    std::vector<NodePtr> nodes() const;
    std::size_t nodeCount() const { return nodes_.size(); }
    const NodePtr &world() const { return world_; } // parent of the topmost DAG nodes
    // Nodes of that name ("hip", "rig:hip", ":hip" for the root namespace). No paths.
    const std::vector<NodePtr> &nodesNamed(std::string_view name) const;
    // Paths that a name or partial path ("left|hip", "|root|hip", "hip") can mean. DAG nodes only.
    // No more than `most` of them.
    std::vector<DagPath> pathsMatching(std::string_view name,
                                       std::size_t most = std::size_t(-1)) const;
    // Whether there are several, without a list of them. `name` starts with no '|'.
    bool isAmbiguous(std::string_view name) const;
    // The one node that a name or path means; throws no such object / ambiguous name.
    NodePtr node(std::string_view name) const;
    // The same, null instead of an error when there is none (an ambiguous name still throws).
    NodePtr findNode(std::string_view name) const;
    std::vector<std::string> namespaces() const;

    // --- Nodes --------------------------------------------------------------------------------
    enum class UnknownType { refuse, learn };
    // `name` empty: the type's name with a number; a name that is taken counts on to the next free
    // number (numberedNames.h); '#' at its end stands for a number. DAG nodes go below `parent`, or
    // the world. A shape without a parent gets a transform, as Maya does it; the shape is what
    // comes back.
    NodePtr createNode(std::string_view type, std::string_view name, const NodePtr &parent = {},
                       UnknownType unknown = UnknownType::refuse);
    // createNode -s: the node of that name if there is one, else a new one.
    NodePtr createSharedNode(std::string_view type, std::string_view name, const NodePtr &parent);
    // The default cameras that a file did not bring, in front of what it did.
    void addMissingCameras();
    // Gives a node of an unknown type what types() has learned about that type since: it may enter
    // the DAG, below the world. Learned attributes that the type declares now are hidden by it and
    // have to be moved before.
    void adoptType(const NodePtr &node);
    // A node that exists in every scene ("select -ne :defaultArnoldRenderOptions" in a file).
    NodePtr defaultNode(std::string_view name);
    // With everything below it; its connections are cut. Default and locked nodes are refused.
    void deleteNode(const NodePtr &node);
    // Returns the name given: a clash gets a number. Locked nodes are refused.
    std::string rename(const NodePtr &node, std::string_view name);
    void setUuid(const NodePtr &node, std::string_view uuid);
    // Whether new nodes get a UUID, as they do unless said otherwise: a file brings its own.
    void setGivesUuids(bool givesUuids) { givesUuids_ = givesUuids; }
    void setNodeLock(const NodePtr &node, bool locked, bool lockUnpublished);
    void keepStatement(const NodePtr &node, KeptStatement statement);

    // --- DAG ----------------------------------------------------------------------------------
    // Moves `node` from one parent to another (the world for none), last among its children. A
    // parent below the node, or a shape as parent, is refused. A name clash gets a number.
    void reparent(const NodePtr &node, const NodePtr &oldParent, const NodePtr &newParent);
    void addInstance(const NodePtr &node, const NodePtr &parent);
    void removeInstance(const NodePtr &node, const NodePtr &parent);

    // --- Attributes and values ----------------------------------------------------------------
    // A dynamic attribute, with its children. Refused: a name that is taken, a locked node.
    void addAttribute(const NodePtr &node, const NewAttributePtr &attribute);
    // With its values, connections and states.
    void removeAttribute(const NodePtr &node, const AttributePtr &attribute);
    // An attribute of unknown shape below `above` (null: at the top), for a name met in a file.
    // REQUIRES: the name is not taken there; `above` is learned itself.
    AttributePtr learnAttribute(const NodePtr &node, const AttributePtr &above,
                                std::string_view name, bool isArray);
    // Gives a learned attribute its shape. What it held as no array, data, states and connections,
    // becomes that of element 0. REQUIRES: the attribute is learned.
    void learn(const NodePtr &node, const AttributePtr &attribute, LearnedShape shape);
    // Sets a complete leaf plug. Checks nothing but the shape: locks and ranges are the caller's,
    // see isSettable(). Integers and floats are rounded to their kind.
    void setValue(const Plug &plug, Value value);
    // Sets consecutive elements of a packed array from `first` on.
    void setNumbers(const Plug &wholeArray, int first, const std::vector<double> &numbers);
    // Keeps an opaque value for a range of elements, first to last.
    void setOpaqueRange(const Plug &wholeArray, int first, int last, OpaqueValue value);
    // Moves everything that is stored below a top-level attribute to another node that declares the
    // same attribute, in place of what it has there. Connections stay where they are.
    void moveData(const NodePtr &from, const NodePtr &to, std::string_view attribute);
    // Gives a node that was just made what another one of its type holds: dynamic attributes,
    // values and states, but no connections and nothing of its instances; or all below one
    // attribute, in place of what it has there. Not recorded: the new node comes and goes with what
    // it holds.
    void copyData(const NodePtr &from, const NodePtr &to);
    void copyData(const NodePtr &from, const NodePtr &to, std::string_view attribute);
    // Makes sure that the element exists, with its default value.
    void addElement(const Plug &element);
    void removeElement(const Plug &element);
    void setState(const Plug &plug, const PlugState &state);
    // Replaces rows of a skin cluster's weights. rows[k] belongs to vertices[k].
    void setWeightRows(const NodePtr &skinCluster, const std::vector<std::size_t> &vertices,
                       const std::vector<std::vector<skin::WeightStore::Entry>> &rows);
    // Any other change of the weights.
    void changeWeights(const NodePtr &skinCluster,
                       const std::function<void(skin::WeightStore &weights)> &change);
    // The weights for a file reader or the bind, which fill them at once; not recorded.
    skin::WeightStore &editWeights(const NodePtr &skinCluster);

    // --- Connections --------------------------------------------------------------------------
    // Both plugs complete. Refused: an occupied or locked destination (unless `force`).
    void connect(const Plug &source, const Plug &destination, bool force = false,
                 bool lock = false);
    void disconnect(const Plug &source, const Plug &destination);
    // The element that connectAttr -nextAvailable takes: the first without a connection.
    int nextAvailable(const Plug &wholeArray) const;

    // --- Recording ----------------------------------------------------------------------------
    // Not owned; null for none.
    void setRecorder(ChangeRecorder *recorder) { recorder_ = recorder; }
    ChangeRecorder *recorder() const { return recorder_; }
    bool isRecording() const { return recorder_ && recorder_->isRecording(); }
    // True once anything was changed since it was last set to false.
    bool isModified() const { return isModified_; }
    void setModified(bool modified) { isModified_ = modified; }
    // Grows whenever a node comes, goes, moves or gets another name.
    unsigned long structureRevision() const { return structureRevision_; }
    // How often a node got another name and a DAG node was made, by undo and redo too.
    unsigned long renames() const { return renames_; }
    unsigned long dagNodesCreated() const { return dagNodesCreated_; }

private:
    friend struct SceneEdit;
    // Runs `redo`, which does all or throws, and hands both to the recorder.
    void perform(std::function<void()> redo, std::function<void()> undo);
    void addDefaultNodes();
    bool hasCamera(const std::string &name) const;
    std::size_t renamedCameras() const;
    NodePtr addNode(const NodeType &type, std::string name, const NodePtr &parent);
    std::vector<NodePtr> candidates(const std::vector<std::string_view> &parts) const;
    // All or nothing, where memory has run out.
    void enter(const NodePtr &node);
    void enterBelow(const NodePtr &node, const NodePtr &parent, std::size_t place);
    void enterName(const NodePtr &node, const std::string &name);
    void leave(const NodePtr &node);
    void leaveName(const NodePtr &node, const std::string &name);
    std::string freeName(std::string_view wanted, bool isDag, const Node *parent) const;
    static void cut(const Plug &source, const Plug &destination);
    void dropKeptStatements(const NodePtr &node, const Attribute &attribute);

    NodeTypes types_;
    NodePtr world_;
    std::map<unsigned long, NodePtr> nodes_; // by serial number
    std::unordered_map<std::string, std::vector<NodePtr>> byName_;
    mutable NumberedNames numberedNames_;
    unsigned long nextSerial_ = 0;
    ChangeRecorder *recorder_ = nullptr;
    bool isModified_ = false;
    unsigned long structureRevision_ = 0;
    unsigned long renames_ = 0;
    unsigned long dagNodesCreated_ = 0;
    bool givesUuids_ = false;
};

// Switches recording off for a while.
class RecordingPause
{
public:
    explicit RecordingPause(Scene &scene);
    ~RecordingPause();
    RecordingPause(const RecordingPause &) = delete;
    RecordingPause &operator=(const RecordingPause &) = delete;

private:
    Scene &scene_;
    ChangeRecorder *saved_;
};

// Whether a value may be set: not locked (it, an ancestor, a child), no incoming connection.
bool isSettable(const Plug &plug);

// The value of a complete leaf plug as Maya's evaluation gives it: that of its source if it is
// connected, the derived one of computed attributes (worldMatrix), else the stored one.
Value evaluate(const Plug &plug);
double evaluateNumber(const Plug &plug);

} // namespace host
