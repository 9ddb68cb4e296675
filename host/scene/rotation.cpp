// SPDX-License-Identifier: Apache-2.0
#include "scene/rotation.h"

#include <algorithm>

#include <Imath/ImathEuler.h>

namespace host
{

namespace
{

using Imath::Eulerd;
using Imath::V3d;

constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;

// In the order of the rotateOrder enum: the first axis turns first.
constexpr Eulerd::Order kOrders[] = {Eulerd::XYZ, Eulerd::YZX, Eulerd::ZXY,
                                     Eulerd::XZY, Eulerd::YXZ, Eulerd::ZYX};

Eulerd::Order orderOf(int rotateOrder)
{
    return kOrders[rotateOrder >= 0 && rotateOrder < 6 ? rotateOrder : 0];
}

Eulerd eulerOf(const skin::Vec3 &degrees, int rotateOrder)
{
    const V3d angles = V3d(degrees.x, degrees.y, degrees.z) * kRadiansPerDegree;
    return Eulerd(angles, orderOf(rotateOrder), Eulerd::XYZLayout);
}

} // namespace

Matrix rotationOf(const skin::Vec3 &degrees, int rotateOrder)
{
    const Imath::M44d rotation = eulerOf(degrees, rotateOrder).toMatrix44();
    Matrix matrix;
    std::copy_n(rotation.getValue(), matrix.size(), matrix.begin());
    return matrix;
}

skin::Vec3 anglesOf(const Matrix &rotation, int rotateOrder)
{
    Imath::M44d matrix;
    std::copy(rotation.begin(), rotation.end(), matrix.getValue());
    const V3d angles = Eulerd(matrix, orderOf(rotateOrder)).toXYZVector() / kRadiansPerDegree;
    return {angles.x, angles.y, angles.z};
}

std::array<double, 4> quaternionOf(const skin::Vec3 &degrees)
{
    const Imath::Quatd turn = eulerOf(degrees, 0).toQuat();
    return {turn.v.x, turn.v.y, turn.v.z, turn.r};
}

} // namespace host
