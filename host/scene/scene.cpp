// SPDX-License-Identifier: Apache-2.0
// Finding nodes, and the scene as it starts.
#include "scene/scene.h"

#include <algorithm>
#include <set>

#include "scene/instancePaths.h"

namespace host
{

namespace
{

struct DefaultNode {
    const char *type;
    const char *name;
};

// Nodes that every scene has and that files name without creating them.
constexpr DefaultNode kDefaultNodes[] = {
    {"time", "time1"},
    {"sequenceManager", "sequenceManager1"},
    {"hardwareRenderingGlobals", "hardwareRenderingGlobals"},
    {"partition", "renderPartition"},
    {"renderGlobalsList", "renderGlobalsList1"},
    {"defaultLightList", "defaultLightList1"},
    {"defaultShaderList", "defaultShaderList1"},
    {"postProcessList", "postProcessList1"},
    {"defaultRenderUtilityList", "defaultRenderUtilityList1"},
    {"defaultRenderingList", "defaultRenderingList1"},
    {"lightList", "lightList1"},
    {"defaultTextureList", "defaultTextureList1"},
    {"lambert", "lambert1"},
    {"particleCloud", "particleCloud1"},
    {"shadingEngine", "initialShadingGroup"},
    {"shadingEngine", "initialParticleSE"},
    {"materialInfo", "initialMaterialInfo"},
    {"renderGlobals", "defaultRenderGlobals"},
    {"renderQuality", "defaultRenderQuality"},
    {"resolution", "defaultResolution"},
    {"objectSet", "defaultLightSet"},
    {"objectSet", "defaultObjectSet"},
    {"viewColorManager", "defaultViewColorManager"},
    {"hardwareRenderGlobals", "hardwareRenderGlobals"},
    {"hwRenderGlobals", "defaultHardwareRenderGlobals"},
    {"partition", "characterPartition"},
    {"ikSystem", "ikSystem"},
    {"hyperGraphInfo", "hyperGraphInfo"},
    {"hyperLayout", "hyperGraphLayout"},
    {"globalCacheControl", "globalCacheControl"},
    {"dof", "dof1"},
    {"colorManagementGlobals", "defaultColorMgtGlobals"},
};

struct DefaultCamera {
    const char *name;
    double translate[3];
    double rotate[3];
    bool isOrthographic;
};

// Where Maya puts the four cameras of a new scene (centimetres, degrees).
constexpr DefaultCamera kDefaultCameras[] = {
    {"persp", {28, 21, 28}, {-27.938352729602379, 45, 0}, false},
    {"top", {0, 1000.1, 0}, {-90, 0, 0}, true},
    {"front", {0, 0, 1000.1}, {0, 0, 0}, true},
    {"side", {1000.1, 0, 0}, {0, 90, 0}, true},
};

// Serial numbers that are left free for the default cameras, so that they come first.
constexpr std::size_t kCameraNodes = 2 * std::size(kDefaultCameras);

void placeDefaultCamera(Scene &scene, const DefaultCamera &camera, const NodePtr &transform)
{
    scene.setValue(transform->plug("visibility"), 0.0);
    static constexpr const char *kTranslate[] = {"tx", "ty", "tz"};
    static constexpr const char *kRotate[] = {"rx", "ry", "rz"};
    for (int i = 0; i < 3; ++i) {
        scene.setValue(transform->plug(kTranslate[i]), camera.translate[i]);
        scene.setValue(transform->plug(kRotate[i]), camera.rotate[i]);
    }
    if (camera.isOrthographic)
        scene.setValue(transform->children().front()->plug("orthographic"), 1.0);
}

// "ns:a" of "|ns:a", ":a" and "a".
std::string_view withoutRootColon(std::string_view name)
{
    if (!name.empty() && name.front() == ':')
        name.remove_prefix(1);
    return name;
}

std::vector<std::string_view> splitPath(std::string_view name)
{
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t bar = name.find('|');
        parts.push_back(withoutRootColon(name.substr(0, bar)));
        if (bar == std::string_view::npos)
            return parts;
        name.remove_prefix(bar + 1);
    }
}

bool endsWith(const DagPath &path, const std::vector<std::string_view> &parts, bool isRooted)
{
    const std::vector<NodePtr> &nodes = path.nodes();
    if (parts.size() > nodes.size() || (isRooted && parts.size() != nodes.size()))
        return false;
    return std::equal(
        parts.rbegin(), parts.rend(), nodes.rbegin(),
        [](std::string_view part, const NodePtr &node) { return part == node->name(); });
}

} // namespace

Scene::Scene(Cameras cameras)
{
    world_ = std::make_shared<Node>(*this, types_.findOrLearn("world", "dagNode"), "world");
    addDefaultNodes(); // without UUIDs: every scene has them
    if (cameras == Cameras::made)
        addMissingCameras();
    givesUuids_ = true;
    isModified_ = false;
}

// Nodes that somebody still holds must see that their scene is gone.
Scene::~Scene()
{
    const auto cutOff = [](const NodePtr &node) {
        node->scene_ = nullptr;
        node->parents_.clear();
        node->children_.clear();
        node->sources_.clear();
        node->destinations_.clear();
    };
    for (const auto &entry : nodes_)
        cutOff(entry.second);
    cutOff(world_);
}

void Scene::addDefaultNodes()
{
    for (const DefaultNode &row : kDefaultNodes)
        addNode(types_.findOrLearn(row.type, "node"), row.name, nullptr)->isDefault_ = true;
    nextSerial_ += kCameraNodes;
}

// Whether the file has brought the camera, at its place or parented elsewhere, or something else
// stands at its place.
bool Scene::hasCamera(const std::string &name) const
{
    const std::vector<NodePtr> &named = nodesNamed(name);
    return !nodesNamed(name + "Shape").empty() ||
           std::any_of(named.begin(), named.end(), [this](const NodePtr &node) {
               return node->isShared() || node->parents().empty() ||
                      node->parents().front() == world_.get();
           });
}

// Default cameras of the file that have other names than a new scene's.
std::size_t Scene::renamedCameras() const
{
    std::size_t cameras = 0;
    for (const auto &entry : nodes_)
        cameras += entry.second->isShared() && entry.second->isA("camera") ? 1 : 0;
    for (const DefaultCamera &camera : kDefaultCameras)
        cameras -= std::min<std::size_t>(cameras, hasCamera(camera.name) ? 1 : 0);
    return cameras;
}

void Scene::addMissingCameras()
{
    const unsigned long next = nextSerial_;
    std::size_t renamed = renamedCameras();
    std::vector<NodePtr> &topmost = world_->children_;
    std::size_t added = 0;
    for (std::size_t i = 0; i < std::size(kDefaultCameras); ++i) {
        const DefaultCamera &camera = kDefaultCameras[i];
        const std::string shapeName = std::string(camera.name) + "Shape";
        if (hasCamera(camera.name))
            continue;
        if (renamed > 0) {
            --renamed;
            continue;
        }
        nextSerial_ = std::size(kDefaultNodes) + 2 * i;
        const NodePtr transform = addNode(*types_.find("transform"), camera.name, nullptr);
        addNode(*types_.find("camera"), shapeName, transform)->isShared_ = true;
        transform->isShared_ = true;
        placeDefaultCamera(*this, camera, transform);
        std::rotate(topmost.begin() + long(added), topmost.end() - 1, topmost.end());
        ++added;
    }
    nextSerial_ = next;
}

std::vector<NodePtr> Scene::nodes() const
{
    std::vector<NodePtr> all;
    all.reserve(nodes_.size());
    for (const auto &entry : nodes_)
        all.push_back(entry.second);
    return all;
}

const std::vector<NodePtr> &Scene::nodesNamed(std::string_view name) const
{
    static const std::vector<NodePtr> kNone;
    const auto found = byName_.find(std::string(withoutRootColon(name)));
    return found == byName_.end() ? kNone : found->second;
}

// The nodes that a path's last part can mean. Where many nodes share that name, the way leads down
// from the rarest name of the path.
std::vector<NodePtr> Scene::candidates(const std::vector<std::string_view> &parts) const
{
    const auto rarest = std::min_element(parts.rbegin(), parts.rend(),
                                         [this](auto a, auto b) {
                                             return nodesNamed(a).size() < nodesNamed(b).size();
                                         })
                            .base() -
                        1;
    std::vector<NodePtr> level = nodesNamed(*rarest);
    for (auto part = rarest + 1; part != parts.end(); ++part) {
        std::map<unsigned long, NodePtr> below; // in order of creation, each once
        for (const NodePtr &node : level) {
            for (const NodePtr &child : node->children()) {
                if (child->name() == *part)
                    below.emplace(child->serial_, child);
            }
        }
        level.clear();
        for (const auto &entry : below)
            level.push_back(entry.second);
    }
    return level;
}

std::vector<DagPath> Scene::pathsMatching(std::string_view name, std::size_t most) const
{
    std::vector<DagPath> paths;
    const bool isRooted = !name.empty() && name.front() == '|';
    const std::vector<std::string_view> parts = splitPath(isRooted ? name.substr(1) : name);
    for (const NodePtr &node : candidates(parts)) {
        if (!node->isDag())
            continue;
        for (const DagPath &path : DagPath::all(node)) {
            if (paths.size() < most && endsWith(path, parts, isRooted))
                paths.push_back(path);
        }
        if (paths.size() >= most)
            break;
    }
    return paths;
}

bool Scene::isAmbiguous(std::string_view name) const
{
    const std::vector<std::string_view> parts = splitPath(name);
    const auto first = byName_.find(std::string(parts.front()));
    const auto last = byName_.find(std::string(parts.back()));
    if (first == byName_.end() || last == byName_.end())
        return false;
    // From the end of the path of which there are fewer: one of many "hip" is found by its parent.
    const bool isFromTop = first->second.size() < last->second.size();
    std::size_t count = 0;
    for (const NodePtr &node : (isFromTop ? first : last)->second) {
        if (node->isDag())
            count += isFromTop ? pathsThrough(*node, parts, 2) : pathsEndingAt(*node, parts, 2);
        if (count > 1)
            return true;
    }
    return false;
}

NodePtr Scene::node(std::string_view name) const
{
    NodePtr found = findNode(name);
    if (!found)
        throwNoSuchObject(std::string(name));
    return found;
}

NodePtr Scene::findNode(std::string_view name) const
{
    std::vector<NodePtr> matches;
    if (name.find('|') == std::string_view::npos) {
        matches = nodesNamed(name);
    } else {
        for (const DagPath &path : pathsMatching(name)) {
            if (std::find(matches.begin(), matches.end(), path.node()) == matches.end())
                matches.push_back(path.node());
        }
    }
    if (matches.size() > 1)
        throwAmbiguousName(std::string(name));
    return matches.empty() ? nullptr : matches.front();
}

std::vector<std::string> Scene::namespaces() const
{
    std::set<std::string> names;
    for (const auto &entry : nodes_) {
        const std::string &name = entry.second->name();
        for (std::size_t colon = name.find(':'); colon != std::string::npos;
             colon = name.find(':', colon + 1))
            names.insert(name.substr(0, colon));
    }
    return std::vector<std::string>(names.begin(), names.end());
}

void Scene::perform(std::function<void()> redo, std::function<void()> undo)
{
    if (!isRecording()) {
        redo();
        isModified_ = true;
        return;
    }
    // What was saved is no longer what the scene holds after an undo.
    const auto marked = [this](std::function<void()> step) {
        return [this, step = std::move(step)] {
            step();
            isModified_ = true;
        };
    };
    const bool wasModified = isModified_;
    Change change{marked(std::move(undo)), marked(std::move(redo))};
    change.redo();
    try {
        recorder_->recordChange(std::move(change));
    } catch (...) {
        change.undo();
        isModified_ = wasModified;
        throw;
    }
}

RecordingPause::RecordingPause(Scene &scene) : scene_(scene), saved_(scene.recorder())
{
    scene_.setRecorder(nullptr);
}

RecordingPause::~RecordingPause()
{
    scene_.setRecorder(saved_);
}

} // namespace host
