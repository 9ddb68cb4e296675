// SPDX-License-Identifier: Apache-2.0
// A skinCluster node seen as what it is: influences, weights, locks and the rules of writing them.
//
// Two numberings: the logical index is that of matrix[i], weightList[v].weights[i] and
// lockWeights[i] and has gaps; the physical index is the position in influences(), 0 to n-1.
// Everything below takes and gives physical indices.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "scene/dagPath.h"
#include "scene/meshGeometry.h"
#include "skin/writeRule.h"

namespace host
{

struct Influence {
    unsigned logicalIndex = 0;
    DagPath path;
};

// What a write tells its caller; each warning is to be shown once per call.
struct SkinWriteResult {
    bool couldNotSet = false;
    bool locksPreventedMax = false;
};

class SkinCluster
{
public:
    // REQUIRES: node->isA("skinCluster"). Reads the influences once; make a new one after changes.
    explicit SkinCluster(NodePtr node);

    const NodePtr &node() const { return node_; }
    // Connected elements of `matrix`, ascending logical index.
    const std::vector<Influence> &influences() const { return influences_; }
    // Physical index of an influence; -1 if the node is none.
    int indexOf(const Node &influence) const;
    std::vector<bool> locks() const;                    // lockInfluenceWeights of every influence
    skin::WriteSettings settings(bool normalize) const; // normalizeWeights, maxInfluences, ...
    NodePtr shape() const;                              // the first deformed shape; null if none
    bool deforms(const Node &shape) const;              // whether it is one of them
    // Rows of the weight list: at least as many as the shape has vertices once it is bound.
    std::size_t vertexCount() const;

    // Dense weights of the vertices, vertex-major, one column per influence. `out` has
    // vertices.size() * influences().size() places.
    void read(const std::vector<int> &vertices, double *out) const;

    // Values to write, in memory of the caller's: the weights of a whole mesh are not copied.
    struct Values {
        Values(const std::vector<double> &values) : first(values.data()), count(values.size()) {}
        Values(const double *begin, std::size_t size) : first(begin), count(size) {}
        const double *first;
        std::size_t count;
    };
    // Where the dense weights from before go; asked once, when it is known that all fits.
    using PlaceForOld = std::function<double *(std::size_t count)>;
    // Gives each vertex the values: one row for all vertices, or one per vertex, with a column per
    // entry of `indices`. Follows the write rule with locks and settings. Throws Error on an index
    // or length that does not fit and on NaN; then nothing is written. Recorded when the scene
    // records. REQUIRES: the values stay where they are when the place is asked for.
    SkinWriteResult write(const std::vector<int> &vertices, const std::vector<int> &indices,
                          const Values &values, bool normalize,
                          const PlaceForOld &placeForOld = nullptr) const;

    // Replaces dense rows (a column per influence) as they are, no rule applied. Recorded.
    void store(const std::vector<int> &vertices, const double *rows) const;

    // One vertex while its row is edited: dense weights and the rules that hold for them.
    struct RowRule {
        double *weights;
        const std::vector<bool> &locked; // missing entries: not locked
        const skin::WriteSettings &settings;
        const skin::CreateWeights &createWeights; // by weightDistribution, from the bind pose
    };
    // Changes the weights of vertices[place]; called in the order of `vertices`.
    using RowEdit = std::function<skin::WriteOutcome(std::size_t place, const RowRule &rule)>;
    // Runs `change` on each vertex's row and stores the outcome in one recorded change: what write,
    // pruning and forced normalisation are made of. REQUIRES: vertices below vertexCount().
    SkinWriteResult edit(const std::vector<int> &vertices, const RowEdit &change,
                         bool normalize) const;

    // The weights that binding gives (closest distance in the bind pose, at most maxInfluences of
    // them), vertex by vertex in the order given. Vertices whose position is not known are left
    // out.
    using BindWeightsVisitor = std::function<void(int vertex, const std::vector<double> &weights)>;
    void visitBindWeights(const std::vector<int> &vertices, const BindWeightsVisitor &visit) const;

private:
    struct BindPose;
    std::shared_ptr<const BindPose> bindPose() const;
    std::vector<double> createWeights(const BindPose &pose, int vertex,
                                      const std::vector<std::size_t> &free) const;
    struct NewRows;
    void appendSparse(const skin::RowView &before, const double *dense, NewRows &rows) const;

    NodePtr node_;
    std::vector<Influence> influences_;
    std::vector<std::int32_t> columnOfLogical_; // logical index -> physical, -1 for gaps
};

} // namespace host
