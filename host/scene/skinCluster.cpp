// SPDX-License-Identifier: Apache-2.0
#include "scene/skinCluster.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "scene/scene.h"
#include "scene/transform.h"
#include "skin/distribution.h"

namespace host
{

namespace
{

using skin::WeightStore;

skin::Vec3 bindPosition(const Node &cluster, const Influence &influence)
{
    const Plug bindPre = cluster.plug("bindPreMatrix").element(int(influence.logicalIndex));
    const Value stored = cluster.storedValue(bindPre);
    if (const Matrix *matrix = std::get_if<Matrix>(&stored))
        return translationOf(inverse(*matrix));
    return translationOf(worldMatrix(influence.path));
}

// Where a joint that is no influence stood when the skin was bound: the cluster's pose knows, or
// the joint itself; one that never was in a pose stays where it stands now.
skin::Vec3 posePosition(const Node &cluster, const DagPath &joint)
{
    const Connection *pose = cluster.source(cluster.plug("bindPose"));
    Value value = joint.node()->storedValue(joint.node()->plug("bindPose"));
    for (const Connection &user : joint.node()->destinations(joint.node()->plug("message"))) {
        if (pose && user.node == pose->node && user.attribute->longName == "members")
            value = evaluate(pose->node->plug("worldMatrix").element(user.indices[0]));
    }
    const Matrix *matrix = std::get_if<Matrix>(&value);
    return translationOf(matrix ? *matrix : worldMatrix(joint));
}

// The bind pose as the distance law wants it: each influence with the bones to its child joints.
std::vector<skin::BindInfluence> bindInfluences(const SkinCluster &cluster)
{
    std::vector<skin::BindInfluence> result;
    const Node &node = *cluster.node();
    const Plug dropoff = node.plug("dropoff");
    for (const Influence &influence : cluster.influences()) {
        skin::BindInfluence bone;
        bone.position = bindPosition(node, influence);
        bone.dropoff = toNumber(node.storedValue(dropoff.element(int(influence.logicalIndex))));
        for (const NodePtr &child : influence.path.node()->children()) {
            if (!child->isA("joint") || !influence.path.node()->isA("joint"))
                continue;
            const int index = cluster.indexOf(*child);
            bone.childJoints.push_back(
                index >= 0 ? bindPosition(node, cluster.influences()[std::size_t(index)])
                           : posePosition(node, influence.path.child(child)));
        }
        result.push_back(std::move(bone));
    }
    return result;
}

void checkWrite(const SkinCluster &cluster, const std::vector<int> &vertices,
                const std::vector<int> &indices, const SkinCluster::Values &values)
{
    const int count = int(cluster.influences().size());
    const bool indicesFit =
        std::all_of(indices.begin(), indices.end(), [count](int i) { return i >= 0 && i < count; });
    const std::size_t vertexCount = cluster.vertexCount();
    const bool verticesFit = std::all_of(vertices.begin(), vertices.end(), [vertexCount](int v) {
        return v >= 0 && std::size_t(v) < vertexCount;
    });
    const bool lengthFits =
        values.count == indices.size() || values.count == indices.size() * vertices.size();
    if (!indicesFit || !verticesFit || !lengthFits)
        throw Error("Weights do not fit the skin cluster " + cluster.node()->uniqueName());
    if (!std::all_of(values.first, values.first + values.count, skin::isWritable))
        throw Error("A weight is not a number.");
}

// The path whose matrix arrives: worldMatrix[1] is that of a joint's second instance.
DagPath pathOf(const Connection &source)
{
    const NodePtr node = source.node->shared_from_this();
    const int instance = source.attribute->isPerInstance ? source.indices[0] : 0;
    if (instance > 0) {
        const std::vector<DagPath> paths = DagPath::all(node);
        if (std::size_t(instance) < paths.size())
            return paths[std::size_t(instance)];
    }
    return DagPath::first(node);
}

} // namespace

// What creating weights "from thin air" needs, gathered at the first vertex that asks for it.
struct SkinCluster::BindPose {
    std::vector<skin::BindInfluence> influences;
    std::vector<skin::Vec3> points; // world space
    skin::Adjacency adjacency;
    bool usesNeighbours = false;
    std::vector<std::uint32_t> logicalOfPhysical;
};

SkinCluster::SkinCluster(NodePtr node) : node_(std::move(node))
{
    const Plug matrix = node_->plug("matrix");
    for (const int index : node_->elementIndices(matrix)) {
        const Connection *source = node_->source(matrix.element(index));
        if (!source || !source->node->isDag())
            continue;
        if (columnOfLogical_.size() <= std::size_t(index))
            columnOfLogical_.resize(std::size_t(index) + 1, -1);
        columnOfLogical_[std::size_t(index)] = std::int32_t(influences_.size());
        influences_.push_back({unsigned(index), pathOf(*source)});
    }
}

// Rows to be stored at once, behind each other: a write to 100,000 vertices makes no vector for
// each of them.
struct SkinCluster::NewRows {
    struct End {
        std::size_t vertex;
        std::size_t end; // of its entries
    };
    std::vector<skin::Entry> entries;
    std::vector<End> ends;

    // The entries since the last call are the vertex's.
    void endRow(std::size_t vertex) { ends.push_back({vertex, entries.size()}); }

    void store(const NodePtr &node) const
    {
        node->scene()->changeWeights(node, [this](WeightStore &weights) {
            // A copy shares the pages, and costs little beside that many rows.
            constexpr std::size_t kRowsPerPage = 32;
            std::optional<WeightStore> before;
            if (ends.size() * kRowsPerPage >= weights.vertexCount())
                before = weights;
            try {
                storeRows(weights);
            } catch (...) { // memory has run out
                if (before)
                    weights = std::move(*before);
                throw;
            }
        });
    }

private:
    void storeRows(WeightStore &weights) const
    {
        std::size_t first = 0;
        for (const End &row : ends) {
            weights.setRowFrom(row.vertex, {entries.data() + first, entries.data() + row.end});
            first = row.end;
        }
    }
};

int SkinCluster::indexOf(const Node &influence) const
{
    for (std::size_t i = 0; i < influences_.size(); ++i) {
        if (influences_[i].path.node().get() == &influence)
            return int(i);
    }
    return -1;
}

std::vector<bool> SkinCluster::locks() const
{
    const Plug lockWeights = node_->plug("lockWeights");
    std::vector<bool> locks;
    for (const Influence &influence : influences_)
        locks.push_back(evaluateNumber(lockWeights.element(int(influence.logicalIndex))) != 0.0);
    return locks;
}

skin::WriteSettings SkinCluster::settings(bool normalize) const
{
    skin::WriteSettings settings;
    settings.mode = skin::NormalizeMode(int(evaluateNumber(node_->plug("normalizeWeights"))));
    settings.normalize = normalize;
    settings.maintainMaxInfluences = evaluateNumber(node_->plug("maintainMaxInfluences")) != 0.0;
    settings.maxInfluences = unsigned(evaluateNumber(node_->plug("maxInfluences")));
    return settings;
}

NodePtr SkinCluster::shape() const
{
    return deformedShape(*node_);
}

bool SkinCluster::deforms(const Node &shape) const
{
    const std::vector<NodePtr> shapes = deformedShapes(*node_);
    return std::any_of(shapes.begin(), shapes.end(),
                       [&shape](const NodePtr &node) { return node.get() == &shape; });
}

std::size_t SkinCluster::vertexCount() const
{
    const NodePtr mesh = shape();
    const std::size_t rows = node_->weights()->vertexCount();
    return mesh && mesh->isA("mesh") ? std::max<std::size_t>(rows, host::vertexCount(*mesh)) : rows;
}

void SkinCluster::read(const std::vector<int> &vertices, double *out) const
{
    const WeightStore &weights = *node_->weights();
    const bool isWholeRange = !vertices.empty() &&
                              vertices.back() - vertices.front() + 1 == int(vertices.size()) &&
                              std::is_sorted(vertices.begin(), vertices.end());
    if (isWholeRange) {
        weights.readDense(std::size_t(vertices.front()), std::size_t(vertices.back()) + 1,
                          columnOfLogical_, influences_.size(), out);
    } else {
        const std::vector<std::uint32_t> rows(vertices.begin(), vertices.end());
        weights.readDense(rows, columnOfLogical_, influences_.size(), out);
    }
}

std::shared_ptr<const SkinCluster::BindPose> SkinCluster::bindPose() const
{
    auto pose = std::make_shared<BindPose>();
    pose->influences = bindInfluences(*this);
    for (const Influence &influence : influences_)
        pose->logicalOfPhysical.push_back(influence.logicalIndex);
    pose->usesNeighbours = evaluateNumber(node_->plug("weightDistribution")) != 0.0;
    const NodePtr mesh = shape();
    if (mesh && mesh->isA("mesh")) {
        const MeshGeometry geometry = meshGeometry(*mesh);
        const Value stored = node_->storedValue(node_->plug("geomMatrix"));
        const Matrix *toWorld = std::get_if<Matrix>(&stored);
        for (const skin::Vec3 &point : geometry.points)
            pose->points.push_back(toWorld ? transformPoint(point, *toWorld) : point);
        if (pose->usesNeighbours)
            pose->adjacency = meshAdjacency(geometry);
    }
    return pose;
}

std::vector<double> SkinCluster::createWeights(const BindPose &pose, int vertex,
                                               const std::vector<std::size_t> &free) const
{
    if (std::size_t(vertex) >= pose.points.size())
        return {}; // no position is known: the caller spreads evenly
    const skin::Vec3 &point = pose.points[std::size_t(vertex)];
    if (!pose.usesNeighbours)
        return skin::sharesByDistance(point, pose.influences, free);
    return skin::sharesByNeighbours(*node_->weights(), pose.adjacency, std::size_t(vertex),
                                    pose.logicalOfPhysical, point, pose.influences, free);
}

SkinWriteResult SkinCluster::write(const std::vector<int> &vertices,
                                   const std::vector<int> &indices, const Values &values,
                                   bool normalize, const PlaceForOld &placeForOld) const
{
    checkWrite(*this, vertices, indices, values);
    const std::size_t columns = influences_.size();
    if (placeForOld)
        read(vertices, placeForOld(vertices.size() * columns));
    std::vector<skin::Assignment> assignments;
    for (const int index : indices)
        assignments.push_back({std::size_t(index), 0.0});
    return edit(
        vertices,
        [&](std::size_t place, const RowRule &rule) {
            const double *row =
                values.first + (values.count == indices.size() ? 0 : place * indices.size());
            for (std::size_t i = 0; i < assignments.size(); ++i)
                assignments[i].value = row[i];
            return skin::writeWeights(rule.weights, columns, assignments.data(), assignments.size(),
                                      rule.locked, rule.settings, rule.createWeights);
        },
        normalize);
}

SkinWriteResult SkinCluster::edit(const std::vector<int> &vertices, const RowEdit &change,
                                  bool normalize) const
{
    const std::size_t columns = influences_.size();
    std::vector<bool> locked = locks();
    if (std::find(locked.begin(), locked.end(), true) == locked.end())
        locked.clear(); // no row needs to look at them
    const skin::WriteSettings rules = settings(normalize);
    std::shared_ptr<const BindPose> pose;
    std::vector<double> dense(columns);
    const WeightStore &before = *node_->weights();
    NewRows newRows;
    skin::WriteOutcome outcome;
    for (std::size_t place = 0; place < vertices.size(); ++place) {
        const int vertex = vertices[place];
        const auto number = std::size_t(vertex);
        before.readDense(number, number + 1, columnOfLogical_, columns, dense.data());
        const skin::CreateWeights create = [&](const std::vector<std::size_t> &free) {
            if (!pose)
                pose = bindPose();
            return createWeights(*pose, vertex, free);
        };
        outcome |= change(place, RowRule{dense.data(), locked, rules, create});
        appendSparse(before.row(number), dense.data(), newRows);
        newRows.endRow(number);
    }
    newRows.store(node_);
    return {outcome.couldNotSet, outcome.locksPreventedMax};
}

void SkinCluster::store(const std::vector<int> &vertices, const double *dense) const
{
    const WeightStore &before = *node_->weights();
    NewRows newRows;
    for (const int vertex : vertices) {
        const auto number = std::size_t(vertex);
        appendSparse(before.row(number), dense, newRows);
        newRows.endRow(number);
        dense += influences_.size();
    }
    newRows.store(node_);
}

void SkinCluster::visitBindWeights(const std::vector<int> &vertices,
                                   const BindWeightsVisitor &visit) const
{
    const std::shared_ptr<const BindPose> pose = bindPose();
    const unsigned most = settings(false).maxInfluences;
    for (const int vertex : vertices) {
        if (vertex >= 0 && std::size_t(vertex) < pose->points.size())
            visit(vertex, skin::closestDistanceWeights(pose->points[std::size_t(vertex)],
                                                       pose->influences, most));
    }
}

// Weights of former influences, whose logical index has no column, stay in the row.
void SkinCluster::appendSparse(const skin::RowView &before, const double *dense,
                               NewRows &rows) const
{
    const std::size_t start = rows.entries.size();
    for (const skin::Entry &entry : before) {
        if (entry.influence >= columnOfLogical_.size() || columnOfLogical_[entry.influence] < 0)
            rows.entries.push_back(entry);
    }
    const bool hasFormer = rows.entries.size() > start;
    for (std::size_t i = 0; i < influences_.size(); ++i) {
        if (dense[i] != 0.0)
            rows.entries.push_back({influences_[i].logicalIndex, dense[i]});
    }
    if (hasFormer)
        std::sort(
            rows.entries.begin() + std::ptrdiff_t(start), rows.entries.end(),
            [](const skin::Entry &a, const skin::Entry &b) { return a.influence < b.influence; });
}

} // namespace host
