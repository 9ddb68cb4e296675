// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <string>
#include <unordered_map>

#include "scene/primitives.h"
#include "scene/scene.h"

namespace host
{

namespace
{

// Maya ASCII keeps at most this many faces in one value.
constexpr int kFacesPerValue = 500;

// Numbers the edges in the order in which the faces meet them.
class EdgeTable
{
public:
    std::vector<double> triples; // start, end, smooth

    // The edge as a face names it: its number, or -(number + 1) where it runs the other way.
    long directed(unsigned from, unsigned to)
    {
        const unsigned long long key = from < to
                                           ? (static_cast<unsigned long long>(from) << 32) | to
                                           : (static_cast<unsigned long long>(to) << 32) | from;
        const auto [place, isNew] = numbers_.emplace(key, long(numbers_.size()));
        if (isNew)
            triples.insert(triples.end(), {double(from), double(to), 0.0});
        const bool isForward = triples[std::size_t(place->second) * 3] == from;
        return isForward ? place->second : -(place->second + 1);
    }
    std::size_t size() const { return numbers_.size(); }

private:
    std::unordered_map<unsigned long long, long> numbers_;
};

// "f 4 0 5 -2 -5": one face by its directed edges.
std::string faceText(const unsigned *vertices, unsigned size, EdgeTable &edges)
{
    std::string text = "f " + std::to_string(size);
    for (unsigned i = 0; i < size; ++i)
        text += " " + std::to_string(edges.directed(vertices[i], vertices[(i + 1) % size]));
    return text;
}

} // namespace

void storeGeometry(Scene &scene, const NodePtr &mesh, const MeshGeometry &geometry)
{
    std::vector<double> coordinates;
    coordinates.reserve(geometry.points.size() * 3);
    for (const skin::Vec3 &point : geometry.points)
        coordinates.insert(coordinates.end(), {point.x, point.y, point.z});
    scene.setNumbers(mesh->plug("vrts"), 0, coordinates);

    EdgeTable edges;
    const unsigned *vertices = geometry.faceVertices.data();
    const int faceCount = int(geometry.faceSizes.size());
    const Plug face = mesh->plug("face");
    for (int first = 0; first < faceCount; first += kFacesPerValue) {
        const int last = std::min(first + kFacesPerValue, faceCount) - 1;
        std::string text;
        for (int i = first; i <= last; ++i) {
            const unsigned size = geometry.faceSizes[std::size_t(i)];
            text += (text.empty() ? "" : " ") + faceText(vertices, size, edges);
            vertices += size;
        }
        scene.setOpaqueRange(face, first, last, {"polyFaces", text});
    }
    scene.setNumbers(mesh->plug("edge"), 0, edges.triples);
}

} // namespace host
