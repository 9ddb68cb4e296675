// SPDX-License-Identifier: Apache-2.0
// Walking over the points of a mesh: what MItMeshVertex and MItGeometry share.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <maya/MStatus.h>

#include "api/nodeBody.h"
#include "scene/component.h"
#include "scene/meshGeometry.h"

namespace host
{

class PointWalk
{
public:
    // The points of `component`, all for the null object. Null if the node is no mesh or the
    // component none of a mesh. `path` is needed for world positions only.
    static std::unique_ptr<PointWalk> over(const NodePtr &mesh, const DagPath *path,
                                           const MObject &component);

    std::size_t count() const { return isWhole_ ? wholeCount_ : vertices_.size(); }
    bool isDone() const { return place_ >= count(); }
    void next() { ++place_; }
    void reset() { place_ = 0; }
    int vertex() const; // REQUIRES: !isDone()
    // Goes to that vertex; false if the walk does not come by it.
    bool goTo(int vertex);
    MObject currentItem() const;
    // False where the mesh stores no points, or there is no world to place them in.
    bool position(MSpace::Space space, MPoint &point);
    std::vector<int> neighbours();

private:
    const MeshGeometry &geometry(); // decoded when first needed

    NodePtr mesh_;
    DagPath path_;
    bool isWhole_ = true;
    std::size_t wholeCount_ = 0;
    std::vector<int> vertices_; // ascending
    std::size_t place_ = 0;
    std::optional<MeshGeometry> geometry_;
    std::optional<skin::Adjacency> adjacency_;
    std::optional<Matrix> worldMatrix_;
};

// A call of an iterator class on its walk, which is null where there was nothing to walk over: each
// reports failure then, and those about a point behind the last one too.
using WalkPtr = std::unique_ptr<PointWalk>;
PointWalk *currentWalk(const WalkPtr &walk, MStatus *status); // on a point, else null
void reportWalk(const WalkPtr &walk, MStatus *status);        // after construction
bool isDone(const WalkPtr &walk, MStatus *status);
MStatus next(const WalkPtr &walk);
MStatus reset(const WalkPtr &walk);
int count(const WalkPtr &walk, MStatus *status);
int vertexOf(const WalkPtr &walk, MStatus *status);
MObject currentItem(const WalkPtr &walk, MStatus *status);
MPoint positionOf(const WalkPtr &walk, MSpace::Space space, MStatus *status);

// The vertices of a component of any kind, ascending. False if they cannot be told.
bool verticesOf(const Node &mesh, const Component &component, std::vector<int> &vertices);

} // namespace host
