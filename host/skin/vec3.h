// SPDX-License-Identifier: Apache-2.0
//
// A point or a direction in world space, in the scene's internal unit (centimetres), and the few
// operations that the distance laws need.

#pragma once

namespace host::skin
{

struct Vec3 {
    double x;
    double y;
    double z;
};

inline Vec3 operator-(const Vec3 &a, const Vec3 &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Vec3 operator+(const Vec3 &a, const Vec3 &b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Vec3 operator*(const Vec3 &a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

inline double dot(const Vec3 &a, const Vec3 &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

} // namespace host::skin
