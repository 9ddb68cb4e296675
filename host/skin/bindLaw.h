// SPDX-License-Identifier: Apache-2.0
//
// The weights that a vertex gets when a mesh is bound with "closest distance".
//
//   raw(i) = 1 / distance(i)^dropoff(i)     the largest few are kept and divided by their sum
//
// The law was recomputed from scenes that Maya wrote (2018 and 2019, bind method 0); it agrees with
// them to 1e-16 on cubes. All points are world space positions of the bind pose.

#pragma once

#include "skin/vec3.h"

#include <vector>

namespace host::skin
{

// What an influence is to the law: the bones from a joint to each of its child joints, bound or
// not, or its own position if it has none (a leaf joint, a transform that is no joint).
struct BindInfluence {
    Vec3 position;
    std::vector<Vec3> childJoints;
    double dropoff = 4;
};

// The distance from a point to the nearest bone of the influence.
double distanceToInfluence(const Vec3 &vertex, const BindInfluence &influence);

// Its square, which spares callers that compare it or take a power of it the root.
double squaredDistanceToInfluence(const Vec3 &vertex, const BindInfluence &influence);

// The raw weights of influences at these distances, up to a common factor; finite, and one of them
// at least is above 0. Distance 0 gives 1 there and 0 everywhere else. Distances without a meaning
// (NaN, infinity) count as far away; if all are, the weights are equal.
struct InfluenceDistance {
    double squared;
    double dropoff;
};
std::vector<double> rawWeights(const std::vector<InfluenceDistance> &distances);

// The weights of a vertex for all influences, in their order: at most maxInfluences of them (0: no
// limit) above 0, with sum 1. Of equal raw weights the lower index is kept. An influence at
// distance 0 gets everything, the first one if there are several.
std::vector<double> closestDistanceWeights(const Vec3 &vertex,
                                           const std::vector<BindInfluence> &influences,
                                           unsigned maxInfluences);

} // namespace host::skin
