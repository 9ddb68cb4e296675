// SPDX-License-Identifier: Apache-2.0
// What the primitives are made with: the node's attributes as numbers, and points and faces as they
// come, counter-clockwise seen from outside.
#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "scene/meshGeometry.h"
#include "scene/scene.h"

namespace host
{

// A file may ask for any number of subdivisions; beyond this the node gives no geometry.
constexpr double kMaxPrimitiveVertices = 4e6;

// A primitive's attributes, as numbers within the limits that Maya sets.
class PrimitiveSettings
{
public:
    explicit PrimitiveSettings(const Node &node) : node_(node) {}
    double number(const char *attribute) const { return evaluateNumber(node_.plug(attribute)); }
    unsigned count(const char *attribute, unsigned least) const
    {
        const double value = number(attribute);
        return value > least ? unsigned(std::min(value, kMaxPrimitiveVertices)) : least;
    }

private:
    const Node &node_;
};

class PrimitiveBuilder
{
public:
    static constexpr double kPi = 3.14159265358979323846;
    MeshGeometry geometry;

    unsigned point(double x, double y, double z)
    {
        geometry.points.push_back({x, y, z});
        return unsigned(geometry.points.size()) - 1;
    }
    template <typename Vertices>
    void polygon(const Vertices &vertices)
    {
        geometry.faceSizes.push_back(unsigned(vertices.size()));
        geometry.faceVertices.insert(geometry.faceVertices.end(), vertices.begin(), vertices.end());
    }
    void face(std::initializer_list<unsigned> vertices) { polygon(vertices); }
    // Quads between two closed rings of `count` vertices that turn counter-clockwise seen from
    // above.
    void band(unsigned lower, unsigned upper, unsigned count)
    {
        for (unsigned i = 0; i < count; ++i) {
            const unsigned next = (i + 1) % count;
            face({lower + i, lower + next, upper + next, upper + i});
        }
    }
    // Ring vertex i stands at the angle 360 * (i + 1) / count: the last one lies on +x.
    unsigned ring(double radius, double y, unsigned count)
    {
        const unsigned first = unsigned(geometry.points.size());
        for (unsigned i = 0; i < count; ++i) {
            const double angle = 2 * kPi * (i + 1) / count;
            point(radius * std::cos(angle), y, -radius * std::sin(angle));
        }
        return first;
    }
    void fanBelow(unsigned rim, unsigned centre, unsigned count)
    {
        for (unsigned i = 0; i < count; ++i)
            face({rim + (i + 1) % count, rim + i, centre});
    }
    void fanAbove(unsigned rim, unsigned centre, unsigned count)
    {
        for (unsigned i = 0; i < count; ++i)
            face({rim + i, rim + (i + 1) % count, centre});
    }
};

} // namespace host
