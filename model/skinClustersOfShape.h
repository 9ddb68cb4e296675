// SPDX-License-Identifier: Apache-2.0
// Which skin clusters deform a shape, read from the scene's connections.
#pragma once

#include <maya/MDagPath.h>
#include <maya/MObjectArray.h>

// The skin clusters whose deformer sets the shape is a member of, in the order of the shape's
// groups; one that is reached more than once stands there as often. Empty for what is not a shape.
MObjectArray skinClustersOfShape(const MDagPath &shape);
