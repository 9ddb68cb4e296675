// SPDX-License-Identifier: Apache-2.0
#include <maya/MDagPath.h>
#include <maya/MFnMesh.h>
#include <maya/MIntArray.h>
#include <maya/MPoint.h>
#include <maya/MPointArray.h>
#include <maya/MSelectionList.h>

#include <cmath>
#include <map>

#include "support/mayaSession.h"

namespace
{

class primitives : public MayaSession
{
protected:
    struct Mesh {
        MPointArray points;
        MIntArray faceSizes;
        MIntArray faceVertices;
    };

    static Mesh meshOf(const char *name)
    {
        MSelectionList list;
        MDagPath path;
        Mesh mesh;
        EXPECT_TRUE(list.add(name));
        EXPECT_TRUE(list.getDagPath(0, path));
        EXPECT_TRUE(path.extendToShape());
        const MFnMesh functions(path);
        EXPECT_TRUE(functions.getPoints(mesh.points));
        EXPECT_TRUE(functions.getVertices(mesh.faceSizes, mesh.faceVertices));
        return mesh;
    }

    // "x y z" with four decimals, no negative zero.
    static std::string text(const MPoint &p)
    {
        const auto rounded = [](double value) { return std::round(value * 1e4) / 1e4 + 0.0; };
        char digits[64];
        std::snprintf(digits, sizeof digits, "%.4f %.4f %.4f", rounded(p.x), rounded(p.y),
                      rounded(p.z));
        return digits;
    }
};

// Six times the volume that the faces enclose, seen from the origin: positive if they are
// counter-clockwise from outside.
double signedVolume(const MPointArray &points, const MIntArray &sizes, const MIntArray &vertices)
{
    double volume = 0;
    unsigned begin = 0;
    for (unsigned face = 0; face < sizes.length(); ++face) {
        for (unsigned i = 2; i < unsigned(sizes[face]); ++i) {
            const MPoint &a = points[unsigned(vertices[begin])];
            const MPoint &b = points[unsigned(vertices[begin + i - 1])];
            const MPoint &c = points[unsigned(vertices[begin + i])];
            volume += a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) +
                      a.z * (b.x * c.y - b.y * c.x);
        }
        begin += unsigned(sizes[face]);
    }
    return volume;
}

// How many directed edges have no partner in the opposite direction.
int openEdges(const MIntArray &sizes, const MIntArray &vertices)
{
    std::map<std::pair<int, int>, int> uses;
    unsigned begin = 0;
    for (unsigned face = 0; face < sizes.length(); ++face) {
        const auto size = unsigned(sizes[face]);
        for (unsigned i = 0; i < size; ++i)
            ++uses[{vertices[begin + i], vertices[begin + (i + 1) % size]}];
        begin += size;
    }
    int open = 0;
    for (const auto &[edge, count] : uses)
        open += count == 1 && uses.count({edge.second, edge.first}) ? 0 : 1;
    return open;
}

} // namespace

TEST_F(primitives, numbersVerticesAsMayaDoes)
{
    const struct {
        const char *command;
        unsigned vertices, faces;
        std::map<unsigned, const char *> points;
    } cases[] = {
        {"polyPlane -sx 2 -sy 1 -w 4",
         6,
         2,
         {{0, "-2.0000 0.0000 0.5000"},
          {2, "2.0000 0.0000 0.5000"},
          {3, "-2.0000 0.0000 -0.5000"}}},
        {"polyPlane", 121, 100, {}},
        {"polyPlane -sx 1 -sy 1 -ax 0 0 1",
         4,
         1,
         {{0, "-0.5000 -0.5000 0.0000"}, {3, "0.5000 0.5000 0.0000"}}},
        {"polyCube",
         8,
         6,
         {{0, "-0.5000 -0.5000 0.5000"},
          {3, "0.5000 0.5000 0.5000"},
          {5, "0.5000 0.5000 -0.5000"},
          {6, "-0.5000 -0.5000 -0.5000"}}},
        {"polyCube -w 5 -sx 5",
         24,
         22,
         {{1, "-1.5000 -0.5000 0.5000"}, {6, "-2.5000 0.5000 0.5000"}}},
        // A tall cube that Maya saved with its points: up the front, down the back.
        {"polyCube -sy 8",
         36,
         34,
         {{2, "-0.5000 -0.3750 0.5000"},
          {17, "0.5000 0.5000 0.5000"},
          {18, "-0.5000 0.5000 -0.5000"},
          {20, "-0.5000 0.3750 -0.5000"},
          {35, "0.5000 -0.5000 -0.5000"}}},
        {"polyCube -sx 2 -sy 3 -sz 4", 54, 52, {}},
        {"polyCylinder",
         42,
         60,
         {{19, "1.0000 -1.0000 0.0000"},
          {4, "0.0000 -1.0000 -1.0000"},
          {40, "0.0000 -1.0000 0.0000"},
          {41, "0.0000 1.0000 0.0000"}}},
        {"polyCylinder -r 0.2 -h 10 -sy 10", 222, 240, {}},
        {"polyCylinder -sx 6 -sz 3", 38, 42, {}},
        {"polyCylinder -sx 6 -sz 0", 12, 8, {}},
        {"polySphere", 382, 400, {{0, "0.1488 -0.9877 -0.0483"}, {380, "0.0000 -1.0000 0.0000"}}},
    };
    for (const auto &c : cases) {
        for (const char *history : {" -ch 1", " -ch 0"}) {
            SCOPED_TRACE(std::string(c.command) + history);
            mel("file -f -new");
            mel(std::string(c.command) + history + " -n made");
            const Mesh mesh = meshOf("made");
            EXPECT_EQ(mesh.points.length(), c.vertices);
            EXPECT_EQ(mesh.faceSizes.length(), c.faces);
            for (const auto &[vertex, position] : c.points)
                EXPECT_EQ(text(mesh.points[vertex]), position) << vertex;
            const bool isPlane = std::string(c.command).find("Plane") != std::string::npos;
            if (!isPlane) {
                EXPECT_EQ(openEdges(mesh.faceSizes, mesh.faceVertices), 0);
                EXPECT_GT(signedVolume(mesh.points, mesh.faceSizes, mesh.faceVertices), 0);
            }
        }
    }
}

TEST_F(primitives, followTheirAttributesUntilHistoryIsGone)
{
    EXPECT_EQ(melStrings("polyCube -n body"), "body polyCube1");
    EXPECT_EQ(melStrings("polyCube"), "pCube1 polyCube2");
    EXPECT_EQ(melStrings("listRelatives -s pCube1 body"), "pCubeShape1 bodyShape");
    EXPECT_EQ(melStrings("ls -sl"), "pCube1");
    mel("setAttr polyCube1.sw 3; polyCube -e -w 6 polyCube1");
    EXPECT_EQ(meshOf("body").points.length(), 16u);
    EXPECT_EQ(text(meshOf("body").points[1]), "-1.0000 -0.5000 0.5000");
    mel("undo");
    EXPECT_EQ(meshOf("body").points.length(), 8u);
    mel("polyCube -ch 0 -n box");
    mel("undo");
    EXPECT_EQ(melStrings("ls box*"), "");
    mel("redo");
    EXPECT_EQ(meshOf("box").points.length(), 8u);
    EXPECT_EQ(melStrings("polyCube -ch 0"), "pCube2");
    EXPECT_EQ(melError("polyCube -sx 0"), "Invalid value for flag 'subdivisionsX'.");
    mel("setAttr polyCube1.sw 100000000");
    EXPECT_EQ(meshOf("body").points.length(), 0u) << "what no memory could hold is not built";
}
