// SPDX-License-Identifier: Apache-2.0
// Rotations as Maya gives and takes them: angles in degrees about x, y and z, in one of six orders.
#pragma once

#include <array>

#include "scene/value.h"
#include "skin/vec3.h"

namespace host
{

// The rotation of these angles. `rotateOrder` is a value of the enum of that name; others mean xyz.
Matrix rotationOf(const skin::Vec3 &degrees, int rotateOrder = 0);
// The angles whose rotation in that order gives `rotation`.
skin::Vec3 anglesOf(const Matrix &rotation, int rotateOrder = 0);
// x y z w of the rotation that turns about x, then y, then z.
std::array<double, 4> quaternionOf(const skin::Vec3 &degrees);

} // namespace host
