// SPDX-License-Identifier: Apache-2.0
// Creating, deleting, naming and placing nodes.
#include <algorithm>
#include <cctype>
#include <limits>

#include "scene/instancePaths.h"
#include "scene/scene.h"
#include "scene/uuid.h"

namespace host
{

namespace
{

bool isLegalName(std::string_view name)
{
    const std::string_view local = name.substr(name.rfind(':') + 1);
    if (local.empty() || std::isdigit(static_cast<unsigned char>(local.front())))
        return false;
    return std::all_of(name.begin(), name.end(), [](unsigned char c) {
        return std::isalnum(c) || c == '_' || c == ':' || c >= 0x80; // UTF-8 letters
    });
}

// A hierarchy deeper than this is refused: no rig comes near, and walks up and down may recurse.
constexpr unsigned kMaxDagDepth = 2000;

unsigned depthOf(const Node *node)
{
    unsigned depth = 0;
    for (; node && depth <= kMaxDagDepth; ++depth)
        node = node->parents().empty() ? nullptr : node->parents().front();
    return depth;
}

// Whatever goes with `node` must be free to go: all is deleted or nothing.
void refuseToDelete(const Node &node)
{
    if (node.isDefault() || node.isShared())
        throw Error("Can not delete a default node: " + node.uniqueName());
    if (node.isLocked())
        throw Error("Can not delete a locked node: " + node.uniqueName());
    for (const NodePtr &child : node.children()) {
        if (child->parents().size() == 1)
            refuseToDelete(*child);
    }
}

void refuseAsParent(const Node &node)
{
    if (!node.isDag())
        throw Error("Only a node of the DAG can be a parent: " + node.uniqueName());
    if (node.isA("shape"))
        throw Error("A shape can not be a parent: " + node.uniqueName());
}

template <typename List, typename Item>
void insertAt(List &list, std::size_t place, Item &&item)
{
    const std::size_t size = list.size();
    list.push_back(std::forward<Item>(item));
    std::rotate(list.begin() + long(std::min(place, size)), list.end() - 1, list.end());
}

template <typename List, typename Item>
std::size_t placeOf(const List &list, const Item &item)
{
    return std::size_t(std::find(list.begin(), list.end(), item) - list.begin());
}

// Child and parent know each other, or, where memory has run out, neither the other.
void link(std::vector<Node *> &parents, std::size_t instance, Node *parent,
          std::vector<NodePtr> &children, std::size_t place, const NodePtr &child)
{
    insertAt(parents, instance, parent);
    try {
        insertAt(children, place, child);
    } catch (...) {
        parents.erase(parents.begin() + long(std::min(instance, parents.size() - 1)));
        throw;
    }
}

constexpr std::size_t kLast = std::numeric_limits<std::size_t>::max();

} // namespace

void Scene::enterName(const NodePtr &node, const std::string &name)
{
    const auto found = byName_.find(name);
    if (found == byName_.end()) {
        byName_.emplace(name, std::vector<NodePtr>{node});
        return;
    }
    std::vector<NodePtr> &named = found->second;
    const auto place = std::upper_bound(
        named.begin(), named.end(), node,
        [](const NodePtr &one, const NodePtr &other) { return one->serial_ < other->serial_; });
    named.insert(place, node);
}

void Scene::leaveName(const NodePtr &node, const std::string &name)
{
    numberedNames_.forget(name); // first: it may throw
    const auto found = byName_.find(name);
    std::vector<NodePtr> &named = found->second;
    named.erase(std::find(named.begin(), named.end(), node));
    if (named.empty())
        byName_.erase(found);
}

void Scene::enter(const NodePtr &node)
{
    nodes_[node->serial_] = node;
    try {
        enterName(node, node->name_);
    } catch (...) {
        nodes_.erase(node->serial_);
        throw;
    }
    ++structureRevision_;
    node->scene_ = this;
}

void Scene::leave(const NodePtr &node)
{
    leaveName(node, node->name_);
    ++structureRevision_;
    node->scene_ = nullptr;
    nodes_.erase(node->serial_);
}

void Scene::enterBelow(const NodePtr &node, const NodePtr &parent, std::size_t place)
{
    enter(node);
    if (!parent)
        return;
    try {
        link(node->parents_, kLast, parent.get(), parent->children_, place, node);
    } catch (...) {
        leave(node);
        throw;
    }
}

std::string Scene::freeName(std::string_view wanted, bool isDag, const Node *parent) const
{
    const auto isTaken = [this, isDag, parent](const std::string &name) {
        const auto found = byName_.find(name);
        if (found == byName_.end())
            return false;
        const std::vector<NodePtr> &named = found->second;
        if (!isDag || !parent || !named.front()->isDag())
            return true;
        // Below other parents a name may stand many times.
        const std::vector<NodePtr> &siblings = parent->children_;
        const auto &fewer = siblings.size() < named.size() ? siblings : named;
        return std::any_of(fewer.begin(), fewer.end(), [&](const NodePtr &other) {
            return other->name_ == name &&
                   placeOf(other->parents_, parent) < other->parents_.size();
        });
    };
    const bool wantsNumber = !wanted.empty() && wanted.back() == '#';
    std::string name(wanted);
    if (!wantsNumber && !isTaken(name))
        return name;
    // A number skips names that are taken anywhere, below other parents too.
    return numberedNames_.next(name,
                               [this](const std::string &one) { return byName_.count(one) != 0; });
}

NodePtr Scene::addNode(const NodeType &type, std::string name, const NodePtr &parent)
{
    auto node = std::make_shared<Node>(*this, type, std::move(name));
    node->serial_ = nextSerial_++;
    if (givesUuids_)
        node->uuid_ = newUuid();
    const NodePtr above = node->isDag() ? (parent ? parent : world_) : nullptr;
    const auto redo = [this, node, above] {
        enterBelow(node, above, kLast);
        if (above)
            ++dagNodesCreated_;
    };
    const auto undo = [this, node, above] {
        leave(node);
        if (above) {
            node->parents_.clear();
            above->children_.erase(above->children_.begin() +
                                   long(placeOf(above->children_, node)));
        }
    };
    perform(redo, undo);
    return node;
}

NodePtr Scene::createNode(std::string_view type, std::string_view name, const NodePtr &parent,
                          UnknownType unknown)
{
    const NodeType *known = types_.find(type);
    if (!known || (!known->isKnown && unknown == UnknownType::refuse)) {
        if (unknown == UnknownType::refuse)
            throw Error("Unrecognized node type '" + std::string(type) + "'.");
        known = &types_.findOrLearn(type, parent ? "dagNode" : "node");
    } else if (parent && !known->isKnown) {
        known = &types_.findOrLearn(type, "dagNode");
    }
    const bool isDag = known->isA("dagNode");
    if (parent && !isDag)
        throw Error("A " + std::string(type) + " node can not have a parent.");
    if (parent)
        refuseAsParent(*parent);
    if (depthOf(parent.get()) > kMaxDagDepth)
        throw Error("The hierarchy is too deep at " + parent->name());

    const std::string wanted = name.empty() ? std::string(type) + '#' : std::string(name);
    if (!isLegalName(wanted.back() == '#' ? std::string_view(wanted).substr(0, wanted.size() - 1)
                                          : std::string_view(wanted)))
        throw Error("New name has no legal characters.");
    if (isDag && !parent && known->isA("shape")) {
        // Maya puts a new shape below a transform of its own: mesh "a" below "a1"-like names are
        // the caller's wish, so only the transform's name is derived.
        const NodePtr transform = createNode("transform", "", nullptr);
        return addNode(*known, freeName(wanted, true, transform.get()), transform);
    }
    const Node *above = isDag ? (parent ? parent.get() : world_.get()) : nullptr;
    return addNode(*known, freeName(wanted, isDag, above), parent);
}

NodePtr Scene::createSharedNode(std::string_view type, std::string_view name, const NodePtr &parent)
{
    for (const NodePtr &existing : nodesNamed(name)) {
        const bool isThere =
            !parent || placeOf(existing->parents_, parent.get()) < existing->parents_.size();
        if (existing->type().name == type && isThere)
            return existing;
    }
    const NodePtr node = createNode(type, name, parent, UnknownType::learn);
    node->isShared_ = true;
    return node;
}

NodePtr Scene::defaultNode(std::string_view name)
{
    if (const NodePtr existing = findNode(name))
        return existing;
    const std::string_view local = name.substr(name.find_first_not_of(':'));
    const NodePtr node = addNode(types_.findOrLearn(local, "node"), std::string(local), nullptr);
    node->isDefault_ = true;
    return node;
}

void Scene::deleteNode(const NodePtr &node)
{
    refuseToDelete(*node);
    const std::vector<NodePtr> children = node->children_;
    for (const NodePtr &child : children) {
        if (child->parents_.size() > 1)
            removeInstance(child, node);
        else
            deleteNode(child);
    }
    while (!node->sources_.empty()) {
        const auto &entry = *node->sources_.begin();
        disconnect(entry.second.plug(), node->plugOf(entry.first));
    }
    while (!node->destinations_.empty()) {
        const auto &entry = *node->destinations_.begin();
        disconnect(node->plugOf(entry.first), entry.second.front().plug());
    }
    while (node->parents_.size() > 1)
        removeInstance(node, node->parents_.back()->shared_from_this());

    const NodePtr above =
        node->parents_.empty() ? nullptr : node->parents_.front()->shared_from_this();
    const std::size_t place = above ? placeOf(above->children_, node) : 0;
    perform(
        [this, node, above, place] {
            leave(node);
            if (above) {
                node->parents_.clear();
                above->children_.erase(above->children_.begin() + long(place));
            }
        },
        [this, node, above, place] { enterBelow(node, above, place); });
}

std::string Scene::rename(const NodePtr &node, std::string_view name)
{
    if (node->isLocked() || node->isDefault())
        throw Error("Can not rename a locked or default node: " + node->uniqueName());
    std::string wanted(name);
    while (!wanted.empty() && wanted.back() == '#')
        wanted.pop_back();
    if (!isLegalName(wanted))
        throw Error("New name has no legal characters.");
    const std::string before = node->name_;
    if (before == name)
        return before;
    const Node *above = node->parents_.empty() ? nullptr : node->parents_.front();
    const std::string after = freeName(name, node->isDag(), above);
    const auto change = [this, node](std::string newName) {
        enterName(node, newName);
        leaveName(node, node->name_);
        node->name_.swap(newName);
        ++structureRevision_;
        ++renames_;
    };
    perform([change, after] { change(after); }, [change, before] { change(before); });

    // A shape named after its transform follows it, as in Maya.
    const std::vector<NodePtr> children = node->children_;
    for (const NodePtr &child : children) {
        const std::string prefix = before + "Shape";
        if (child->isA("shape") && child->name_.compare(0, prefix.size(), prefix) == 0 &&
            !child->isLocked())
            rename(child, after + "Shape" + child->name_.substr(prefix.size()));
    }
    return after;
}

void Scene::setUuid(const NodePtr &node, std::string_view uuid)
{
    perform([node, after = std::string(uuid)] { node->uuid_ = after; },
            [node, before = node->uuid_] { node->uuid_ = before; });
}

void Scene::setNodeLock(const NodePtr &node, bool locked, bool lockUnpublished)
{
    const auto set = [node](bool isLocked, bool isLockUnpublished) {
        node->isLocked_ = isLocked;
        node->isLockUnpublished_ = isLockUnpublished;
    };
    perform([=] { set(locked, lockUnpublished); },
            [set, a = node->isLocked_, b = node->isLockUnpublished_] { set(a, b); });
}

void Scene::adoptType(const NodePtr &node)
{
    const NodeType *before = node->type_;
    const NodeType *after = types_.find(before->name);
    const bool entersDag = after->isA("dagNode") && !node->isDag();
    if (after == before)
        return;
    perform(
        [this, node, after, entersDag] {
            ++structureRevision_;
            node->type_ = after;
            if (entersDag) {
                node->parents_.push_back(world_.get());
                world_->children_.push_back(node);
            }
        },
        [this, node, before, entersDag] {
            ++structureRevision_;
            node->type_ = before;
            if (entersDag) {
                node->parents_.clear();
                world_->children_.erase(world_->children_.begin() +
                                        long(placeOf(world_->children_, node)));
            }
        });
}

void Scene::keepStatement(const NodePtr &node, KeptStatement statement)
{
    perform([node, statement] { node->keptStatements_.push_back(statement); },
            [node] { node->keptStatements_.pop_back(); });
}

void Scene::reparent(const NodePtr &node, const NodePtr &oldParent, const NodePtr &newParent)
{
    const NodePtr from = oldParent ? oldParent : world_;
    const NodePtr to = newParent ? newParent : world_;
    if (from == to)
        return;
    addInstance(node, to);
    removeInstance(node, from);
}

void Scene::addInstance(const NodePtr &node, const NodePtr &parent)
{
    const NodePtr to = parent ? parent : world_;
    if (isAtOrAbove(*node, *to))
        throw Error("Can not parent '" + node->uniqueName() + "' below itself.");
    refuseAsParent(*to);
    if (placeOf(node->parents_, to.get()) < node->parents_.size())
        throw Error("'" + node->uniqueName() + "' is already a child of '" + to->name() + "'.");
    if (wouldHaveTooManyPaths(*node, *to))
        throw Error("Too many instances: '" + node->uniqueName() + "' below '" + to->name() + "'.");
    const std::string name = freeName(node->name_, true, to.get());
    if (name != node->name_)
        rename(node, name);
    perform(
        [this, node, to] {
            ++structureRevision_;
            link(node->parents_, kLast, to.get(), to->children_, kLast, node);
        },
        [this, node, to] {
            ++structureRevision_;
            node->parents_.pop_back();
            to->children_.pop_back();
        });
}

void Scene::removeInstance(const NodePtr &node, const NodePtr &parent)
{
    const NodePtr from = parent ? parent : world_;
    const std::size_t place = placeOf(from->children_, node);
    const std::size_t instance = placeOf(node->parents_, from.get());
    if (place == from->children_.size() || node->parents_.size() < 2)
        throw Error("'" + node->uniqueName() + "' has no such instance.");
    perform(
        [this, node, from, place, instance] {
            ++structureRevision_;
            node->parents_.erase(node->parents_.begin() + long(instance));
            from->children_.erase(from->children_.begin() + long(place));
        },
        [this, node, from, place, instance] {
            ++structureRevision_;
            link(node->parents_, instance, from.get(), from->children_, place, node);
        });
}

} // namespace host
