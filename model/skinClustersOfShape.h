// SPDX-License-Identifier: Apache-2.0
// Which skin clusters deform a shape, read from the scene's connections.
#pragma once

#include <maya/MDagPath.h>
#include <maya/MObjectArray.h>

// Each once: first those whose deformer sets the shape is a member of, in the order of its groups,
// then those that its geometry comes through besides, the one nearest to the shape first. Empty for
// what is not a shape.
MObjectArray skinClustersOfShape(const MDagPath &shape);
