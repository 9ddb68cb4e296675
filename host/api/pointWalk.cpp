// SPDX-License-Identifier: Apache-2.0
#include "api/pointWalk.h"

#include <algorithm>
#include <set>
#include <utility>

#include "api/componentBody.h"
#include "api/status.h"
#include "scene/history.h"
#include "scene/scene.h"
#include "scene/transform.h"

namespace host
{

namespace
{

void sortUnique(std::vector<int> &vertices)
{
    std::sort(vertices.begin(), vertices.end());
    vertices.erase(std::unique(vertices.begin(), vertices.end()), vertices.end());
}

std::vector<int> verticesOfFaces(const MeshGeometry &geometry, const std::vector<int> &faces)
{
    std::vector<std::size_t> starts(1, 0);
    for (const unsigned size : geometry.faceSizes)
        starts.push_back(starts.back() + size);
    std::vector<int> vertices;
    for (const int face : faces) {
        const auto index = static_cast<std::size_t>(face);
        if (face < 0 || index >= geometry.faceSizes.size())
            continue;
        for (std::size_t corner = starts[index]; corner < starts[index + 1]; ++corner)
            vertices.push_back(static_cast<int>(geometry.faceVertices[corner]));
    }
    return vertices;
}

using EdgeEnds = std::pair<int, int>;

// Edges as the mesh, or whatever stores its geometry, numbers them: two vertices and a flag each.
const PackedNumbers *storedEdges(const Node &mesh)
{
    if (const PackedNumbers *own = mesh.numbers(mesh.plug("edge")))
        return own;
    for (const NodePtr &node : geometryHistory(shapeInput(mesh)))
        if (const PackedNumbers *edges =
                node->isA("mesh") ? node->numbers(node->plug("edge")) : nullptr)
            return edges;
    return nullptr;
}

// Where no edges are stored they are numbered as the faces meet them, which is what storing the
// geometry would do (storeGeometry in scene/primitives.h).
std::vector<EdgeEnds> numberEdges(const MeshGeometry &geometry)
{
    std::vector<EdgeEnds> edges;
    std::set<EdgeEnds> seen;
    const unsigned *face = geometry.faceVertices.data();
    for (const unsigned size : geometry.faceSizes) {
        for (unsigned corner = 0; corner < size; ++corner) {
            const EdgeEnds ends = std::minmax(static_cast<int>(face[corner]),
                                              static_cast<int>(face[(corner + 1) % size]));
            if (seen.insert(ends).second)
                edges.push_back(ends);
        }
        face += size;
    }
    return edges;
}

bool verticesOfEdges(const Node &mesh, const std::vector<int> &edges, std::vector<int> &vertices)
{
    const PackedNumbers *stored = storedEdges(mesh);
    const std::vector<EdgeEnds> numbered =
        stored ? std::vector<EdgeEnds>() : numberEdges(meshGeometry(mesh));
    for (const int edge : edges) {
        const double *ends = stored ? stored->find(edge) : nullptr;
        const bool isNumbered = edge >= 0 && static_cast<std::size_t>(edge) < numbered.size();
        if (!ends && !isNumbered)
            return false;
        const EdgeEnds pair = ends ? EdgeEnds(static_cast<int>(ends[0]), static_cast<int>(ends[1]))
                                   : numbered[static_cast<std::size_t>(edge)];
        vertices.push_back(pair.first);
        vertices.push_back(pair.second);
    }
    return true;
}

} // namespace

bool verticesOf(const Node &mesh, const Component &component, std::vector<int> &vertices)
{
    vertices.clear();
    if (component.kind == ComponentKind::vertex)
        vertices = component.elements;
    else if (component.kind == ComponentKind::face)
        vertices = verticesOfFaces(meshGeometry(mesh), component.elements);
    else if (component.kind != ComponentKind::edge ||
             !verticesOfEdges(mesh, component.elements, vertices))
        return false;
    sortUnique(vertices);
    return true;
}

std::unique_ptr<PointWalk> PointWalk::over(const NodePtr &mesh, const DagPath *path,
                                           const MObject &component)
{
    if (!mesh || !mesh->isA("mesh"))
        return nullptr;
    auto walk = std::make_unique<PointWalk>();
    walk->mesh_ = mesh;
    if (path)
        walk->path_ = *path;
    walk->isWhole_ = component.isNull();
    walk->wholeCount_ = vertexCount(*mesh);
    Component parts;
    if (walk->isWhole_)
        return walk;
    if (!toComponent(component, parts) || !verticesOf(*mesh, parts, walk->vertices_))
        return nullptr;
    const bool isBeyond = !walk->vertices_.empty() &&
                          static_cast<std::size_t>(walk->vertices_.back()) >= walk->wholeCount_;
    return isBeyond ? nullptr : std::move(walk);
}

int PointWalk::vertex() const
{
    return isWhole_ ? static_cast<int>(place_) : vertices_[place_];
}

bool PointWalk::goTo(int vertex)
{
    if (isWhole_) {
        if (vertex < 0 || static_cast<std::size_t>(vertex) >= wholeCount_)
            return false;
        place_ = static_cast<std::size_t>(vertex);
        return true;
    }
    const auto found = std::lower_bound(vertices_.begin(), vertices_.end(), vertex);
    if (found == vertices_.end() || *found != vertex)
        return false;
    place_ = static_cast<std::size_t>(found - vertices_.begin());
    return true;
}

MObject PointWalk::currentItem() const
{
    Component component;
    component.elements = {vertex()};
    return toObject(component);
}

const MeshGeometry &PointWalk::geometry()
{
    if (!geometry_)
        geometry_ = meshGeometry(*mesh_);
    return *geometry_;
}

bool PointWalk::position(MSpace::Space space, MPoint &point)
{
    const std::vector<skin::Vec3> &points = geometry().points;
    const auto index = static_cast<std::size_t>(vertex());
    if (index >= points.size() || (space == MSpace::kWorld && path_.isNull()))
        return false;
    skin::Vec3 place = points[index];
    if (space == MSpace::kWorld) {
        if (!worldMatrix_)
            worldMatrix_ = worldMatrix(path_);
        place = transformPoint(place, *worldMatrix_);
    }
    point = MPoint(place.x, place.y, place.z);
    return true;
}

std::vector<int> PointWalk::neighbours()
{
    if (!adjacency_)
        adjacency_ = meshAdjacency(geometry());
    const skin::Adjacency::Range range = adjacency_->of(static_cast<std::size_t>(vertex()));
    return std::vector<int>(range.begin(), range.end());
}

PointWalk *currentWalk(const WalkPtr &walk, MStatus *status)
{
    PointWalk *current = walk && !walk->isDone() ? walk.get() : nullptr;
    return answer(status, current ? MStatus::kSuccess : MStatus::kFailure, current);
}

void reportWalk(const WalkPtr &walk, MStatus *status)
{
    report(status, walk ? MStatus::kSuccess : MStatus::kInvalidParameter);
}

bool isDone(const WalkPtr &walk, MStatus *status)
{
    report(status, walk ? MStatus::kSuccess : MStatus::kFailure);
    return !walk || walk->isDone();
}

MStatus next(const WalkPtr &walk)
{
    MStatus status;
    if (PointWalk *current = currentWalk(walk, &status))
        current->next();
    return status;
}

MStatus reset(const WalkPtr &walk)
{
    if (!walk)
        return MStatus::kFailure;
    walk->reset();
    return MStatus::kSuccess;
}

int count(const WalkPtr &walk, MStatus *status)
{
    report(status, walk ? MStatus::kSuccess : MStatus::kFailure);
    return walk ? static_cast<int>(walk->count()) : 0;
}

int vertexOf(const WalkPtr &walk, MStatus *status)
{
    const PointWalk *current = currentWalk(walk, status);
    return current ? current->vertex() : 0;
}

MObject currentItem(const WalkPtr &walk, MStatus *status)
{
    const PointWalk *current = currentWalk(walk, status);
    return current ? current->currentItem() : MObject();
}

MPoint positionOf(const WalkPtr &walk, MSpace::Space space, MStatus *status)
{
    MPoint point;
    PointWalk *current = currentWalk(walk, status);
    if (current && !current->position(space, point))
        report(status, MStatus::kFailure);
    return point;
}

} // namespace host
