// SPDX-License-Identifier: Apache-2.0
#include "scene/primitives.h"

#include <cmath>

#include "scene/primitiveBuilder.h"

namespace host
{

namespace
{

// Rows of columns + 1 vertices from the front (+z) to the back.
void buildPlane(const PrimitiveSettings &settings, PrimitiveBuilder &builder)
{
    const unsigned columns = settings.count("subdivisionsWidth", 1);
    const unsigned rows = settings.count("subdivisionsHeight", 1);
    const double width = settings.number("width");
    const double height = settings.number("height");
    for (unsigned row = 0; row <= rows; ++row) {
        for (unsigned column = 0; column <= columns; ++column)
            builder.point(width * column / columns - width / 2, 0,
                          height / 2 - height * row / rows);
    }
    for (unsigned row = 0; row < rows; ++row) {
        for (unsigned column = 0; column < columns; ++column) {
            const unsigned corner = row * (columns + 1) + column;
            builder.face({corner, corner + 1, corner + columns + 2, corner + columns + 1});
        }
    }
}

// The cube seen from its end: a loop of rows, front, top, back and bottom, each row along x. Inside
// the two ends lie further vertices once both height and depth are subdivided.
class CubeBuilder
{
public:
    CubeBuilder(const PrimitiveSettings &settings, PrimitiveBuilder &builder)
        : builder_(builder), sx_(settings.count("subdivisionsWidth", 1)),
          sy_(settings.count("subdivisionsHeight", 1)), sz_(settings.count("subdivisionsDepth", 1)),
          width_(settings.number("width")), height_(settings.number("height")),
          depth_(settings.number("depth"))
    {
    }

    void build()
    {
        const unsigned rows = 2 * (sy_ + sz_);
        for (unsigned row = 0; row < rows; ++row)
            addRow(row);
        for (unsigned row = 0; row < rows; ++row) {
            const unsigned next = (row + 1) % rows;
            for (unsigned i = 0; i < sx_; ++i)
                builder_.face({at(row, i), at(row, i + 1), at(next, i + 1), at(next, i)});
        }
        addEnd(sx_);
        addEnd(0);
    }

private:
    unsigned at(unsigned row, unsigned i) const { return row * (sx_ + 1) + i; }
    double yOf(unsigned step) const { return height_ * step / sy_ - height_ / 2; }
    double zOf(unsigned step) const { return depth_ / 2 - depth_ * step / sz_; }

    void addRow(unsigned row)
    {
        unsigned up = 0;
        unsigned back = 0;
        if (row < sy_)
            up = row;
        else if (row < sy_ + sz_)
            up = sy_, back = row - sy_;
        else if (row < 2 * sy_ + sz_)
            up = 2 * sy_ + sz_ - row, back = sz_;
        else
            back = 2 * (sy_ + sz_) - row;
        for (unsigned i = 0; i <= sx_; ++i)
            builder_.point(width_ * i / sx_ - width_ / 2, yOf(up), zOf(back));
    }

    // The vertex of the row that passes the end at these steps up and back; the end's own inside.
    unsigned onEnd(unsigned side, unsigned up, unsigned back, unsigned inside) const
    {
        if (back == 0)
            return at(up, side);
        if (up == sy_)
            return at(sy_ + back, side);
        if (back == sz_)
            return at(2 * sy_ + sz_ - up, side);
        if (up == 0)
            return at(2 * (sy_ + sz_) - back, side);
        return inside + (up - 1) * (sz_ - 1) + back - 1;
    }

    // The order of the inner vertices, from the bottom front on, is a guess.
    void addEnd(unsigned side)
    {
        const bool isRight = side != 0;
        const unsigned inside = unsigned(builder_.geometry.points.size());
        for (unsigned up = 1; up < sy_; ++up) {
            for (unsigned back = 1; back < sz_; ++back)
                builder_.point(isRight ? width_ / 2 : -width_ / 2, yOf(up), zOf(back));
        }
        for (unsigned up = 0; up < sy_; ++up) {
            for (unsigned back = 0; back < sz_; ++back) {
                const unsigned front = onEnd(side, up, back, inside);
                const unsigned rear = onEnd(side, up, back + 1, inside);
                const unsigned rearTop = onEnd(side, up + 1, back + 1, inside);
                const unsigned frontTop = onEnd(side, up + 1, back, inside);
                if (isRight)
                    builder_.face({front, rear, rearTop, frontTop});
                else
                    builder_.face({rear, front, frontTop, rearTop});
            }
        }
    }

    PrimitiveBuilder &builder_;
    unsigned sx_;
    unsigned sy_;
    unsigned sz_;
    double width_;
    double height_;
    double depth_;
};

void buildCube(const PrimitiveSettings &settings, PrimitiveBuilder &builder)
{
    CubeBuilder(settings, builder).build();
}

// One end of a cylinder: rings inside it, then its centre. Without subdivisions it is one face.
class CapBuilder
{
public:
    CapBuilder(PrimitiveBuilder &builder, unsigned around, unsigned caps)
        : builder_(builder), around_(around), caps_(caps)
    {
    }
    // The inner rings, from the rim inwards; their order is a guess.
    unsigned addRings(double radius, double y)
    {
        const unsigned first = unsigned(builder_.geometry.points.size());
        for (unsigned ring = 1; ring < caps_; ++ring)
            builder_.ring(radius * (caps_ - ring) / caps_, y, around_);
        return first;
    }
    void addFaces(unsigned rim, unsigned rings, unsigned centre, bool isTop)
    {
        if (caps_ == 0)
            return addPolygon(rim, isTop);
        unsigned outer = rim;
        for (unsigned ring = 1; ring < caps_; ++ring) {
            const unsigned inner = rings + (ring - 1) * around_;
            isTop ? builder_.band(outer, inner, around_) : builder_.band(inner, outer, around_);
            outer = inner;
        }
        isTop ? builder_.fanAbove(outer, centre, around_)
              : builder_.fanBelow(outer, centre, around_);
    }

private:
    void addPolygon(unsigned rim, bool isTop)
    {
        std::vector<unsigned> vertices(around_);
        for (unsigned i = 0; i < around_; ++i)
            vertices[i] = isTop ? rim + i : rim + around_ - 1 - i;
        builder_.polygon(vertices);
    }

    PrimitiveBuilder &builder_;
    unsigned around_;
    unsigned caps_;
};

void buildCylinder(const PrimitiveSettings &settings, PrimitiveBuilder &builder)
{
    const unsigned around = settings.count("subdivisionsAxis", 3);
    const unsigned up = settings.count("subdivisionsHeight", 1);
    const unsigned caps = settings.count("subdivisionsCaps", 0);
    const double radius = settings.number("radius");
    const double height = settings.number("height");
    for (unsigned step = 0; step <= up; ++step)
        builder.ring(radius, height * step / up - height / 2, around);
    CapBuilder cap(builder, around, caps);
    const unsigned lowerRings = cap.addRings(radius, -height / 2);
    const unsigned upperRings = cap.addRings(radius, height / 2);
    const unsigned centre = unsigned(builder.geometry.points.size());
    if (caps > 0) {
        builder.point(0, -height / 2, 0);
        builder.point(0, height / 2, 0);
    }
    for (unsigned step = 0; step < up; ++step)
        builder.band(step * around, (step + 1) * around, around);
    cap.addFaces(0, lowerRings, centre, false);
    cap.addFaces(up * around, upperRings, centre + 1, true);
}

void buildSphere(const PrimitiveSettings &settings, PrimitiveBuilder &builder)
{
    const unsigned around = settings.count("subdivisionsAxis", 3);
    const unsigned up = settings.count("subdivisionsHeight", 3);
    const double radius = settings.number("radius");
    for (unsigned step = 1; step < up; ++step) {
        const double angle = PrimitiveBuilder::kPi * step / up;
        builder.ring(radius * std::sin(angle), -radius * std::cos(angle), around);
    }
    const unsigned south = builder.point(0, -radius, 0);
    const unsigned north = builder.point(0, radius, 0);
    for (unsigned step = 0; step + 2 < up; ++step)
        builder.band(step * around, (step + 1) * around, around);
    builder.fanBelow(0, south, around);
    builder.fanAbove((up - 2) * around, north, around);
}

struct Primitive {
    const char *nodeType;
    void (*build)(const PrimitiveSettings &, PrimitiveBuilder &);
    double (*vertexCount)(const PrimitiveSettings &); // before anything is built
};

const Primitive kPrimitives[] = {
    {"polyPlane", buildPlane,
     [](const PrimitiveSettings &s) {
         return (s.count("subdivisionsWidth", 1) + 1.0) * (s.count("subdivisionsHeight", 1) + 1.0);
     }},
    {"polyCube", buildCube,
     [](const PrimitiveSettings &s) {
         const double up = s.count("subdivisionsHeight", 1);
         const double back = s.count("subdivisionsDepth", 1);
         return 2 * (up + back) * (s.count("subdivisionsWidth", 1) + 1.0) +
                2 * (up - 1) * (back - 1);
     }},
    {"polyCylinder", buildCylinder,
     [](const PrimitiveSettings &s) {
         const double around = s.count("subdivisionsAxis", 3);
         const double caps = s.count("subdivisionsCaps", 0);
         const double inCaps = caps > 0 ? 2 * around * (caps - 1) + 2 : 0;
         return around * (s.count("subdivisionsHeight", 1) + 1.0) + inCaps;
     }},
    {"polySphere", buildSphere,
     [](const PrimitiveSettings &s) {
         return s.count("subdivisionsAxis", 3) * (s.count("subdivisionsHeight", 3) - 1.0) + 2;
     }},
};

// Turns what was built along +y into the direction of the node's axis, by the shortest way.
void turnToAxis(const Node &primitive, std::vector<skin::Vec3> &points)
{
    const AttributePtr axis = primitive.findAttribute("axis");
    if (!axis)
        return;
    double to[3];
    for (unsigned i = 0; i < 3; ++i)
        to[i] = evaluateNumber(primitive.plug("axis").child(axis->children.at(i)));
    const double length = std::sqrt(to[0] * to[0] + to[1] * to[1] + to[2] * to[2]);
    if (length == 0 || (to[0] == 0 && to[2] == 0 && to[1] > 0))
        return;
    const double x = to[0] / length;
    const double cosine = to[1] / length;
    const double z = to[2] / length;
    // Rotation about y cross axis = (z, 0, -x); half a turn about x where they are opposite.
    const double factor = cosine > -1 ? 1 / (1 + cosine) : 0;
    for (skin::Vec3 &p : points) {
        if (factor == 0) {
            p = {p.x, -p.y, -p.z};
            continue;
        }
        const double along = (z * p.x - x * p.z) * factor;
        p = {cosine * p.x + x * p.y + z * along, -x * p.x + cosine * p.y - z * p.z,
             cosine * p.z + z * p.y - x * along};
    }
}

void roundToSingle(std::vector<skin::Vec3> &points)
{
    for (skin::Vec3 &p : points)
        p = {double(float(p.x)), double(float(p.y)), double(float(p.z))};
}

const Primitive *findPrimitive(const Node &node)
{
    for (const Primitive &row : kPrimitives) {
        if (node.type().name == row.nodeType)
            return &row;
    }
    return nullptr;
}

} // namespace

unsigned primitiveVertexCount(const Node &primitive)
{
    const Primitive *row = findPrimitive(primitive);
    const double count = row ? row->vertexCount(PrimitiveSettings(primitive)) : 0;
    return count <= kMaxPrimitiveVertices ? unsigned(count) : 0;
}

MeshGeometry primitiveGeometry(const Node &primitive)
{
    PrimitiveBuilder builder;
    MeshGeometry &geometry = builder.geometry;
    geometry.vertexCount = primitiveVertexCount(primitive);
    if (geometry.vertexCount == 0)
        return {};
    const Primitive &row = *findPrimitive(primitive);
    row.build(PrimitiveSettings(primitive), builder);
    turnToAxis(primitive, geometry.points);
    roundToSingle(geometry.points);
    // Euler's formula; a plane is open, so it has one face less than it closes.
    const unsigned characteristic = row.build == buildPlane ? 1 : 2;
    geometry.edgeCount =
        geometry.vertexCount + unsigned(geometry.faceSizes.size()) - characteristic;
    return std::move(geometry);
}

} // namespace host
