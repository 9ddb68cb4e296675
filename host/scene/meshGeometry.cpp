// SPDX-License-Identifier: Apache-2.0
#include "scene/meshGeometry.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "scene/history.h"
#include "scene/primitives.h"

namespace host
{

namespace
{

bool storesPoints(const Node &mesh)
{
    const PackedNumbers *points = mesh.numbers(mesh.plug("vrts"));
    return points && points->elementCount() > 0;
}

} // namespace

NodePtr geometrySource(const Node &mesh)
{
    NodePtr shape = std::const_pointer_cast<Node>(mesh.shared_from_this());
    for (int guard = 0; guard < 100; ++guard) {
        const std::vector<NodePtr> history = geometryHistory(shapeInput(*shape));
        if (history.empty() || storesPoints(*shape))
            return shape;
        const NodePtr &start = history.back();
        if (!start->isA("mesh"))
            return start->isA("polyPrimitive") ? start : nullptr;
        shape = start;
    }
    return nullptr;
}

namespace
{

// As many vertices as the nearest skin cluster has rows; 0 without one.
unsigned weightListCount(const Node &mesh)
{
    const std::vector<NodePtr> clusters = skinClustersOf(mesh);
    return clusters.empty() ? 0 : unsigned(clusters.front()->weights()->vertexCount());
}

void addTuples(std::vector<skin::Vec3> &points, const PackedNumbers *offsets)
{
    if (!offsets)
        return;
    for (const auto &run : offsets->runs()) {
        for (std::size_t i = 0; i * 3 < run.second.size(); ++i) {
            const std::size_t vertex = std::size_t(run.first) + i;
            if (vertex >= points.size())
                return;
            points[vertex].x += run.second[i * 3];
            points[vertex].y += run.second[i * 3 + 1];
            points[vertex].z += run.second[i * 3 + 2];
        }
    }
}

// Reads "f 4 0 1 2 -4 mu 0 4 0 1 3 2 f ...": only what follows "f" matters here.
class FaceReader
{
public:
    FaceReader(const PackedNumbers *edges, MeshGeometry &geometry)
        : edges_(edges), geometry_(geometry)
    {
    }

    void read(std::string_view text)
    {
        rest_ = text;
        std::string_view word;
        while (!(word = next()).empty()) {
            if (word == "f")
                readFace();
        }
    }

private:
    std::string_view next()
    {
        const std::size_t begin = rest_.find_first_not_of(" \t\r\n");
        if (begin == std::string_view::npos)
            return {};
        const std::size_t end = std::min(rest_.find_first_of(" \t\r\n", begin), rest_.size());
        const std::string_view word = rest_.substr(begin, end - begin);
        rest_.remove_prefix(end);
        return word;
    }

    bool nextNumber(int &number)
    {
        const std::string_view word = next();
        return std::from_chars(word.data(), word.data() + word.size(), number).ec == std::errc();
    }

    void readFace()
    {
        int size = 0;
        if (!nextNumber(size) || size < 3)
            return;
        const std::size_t before = geometry_.faceVertices.size();
        for (int i = 0; i < size; ++i) {
            int edge = 0;
            if (!nextNumber(edge))
                break;
            // A negative number -(k + 1) is edge k run through backwards.
            const double *ends = edges_ ? edges_->find(edge < 0 ? -(edge + 1) : edge) : nullptr;
            const double vertex = ends ? ends[edge < 0 ? 1 : 0] : -1.0;
            if (vertex < 0 || vertex >= geometry_.vertexCount)
                break;
            geometry_.faceVertices.push_back(unsigned(vertex));
        }
        if (geometry_.faceVertices.size() == before + std::size_t(size))
            geometry_.faceSizes.push_back(unsigned(size));
        else
            geometry_.faceVertices.resize(before); // a face that names no such edge or vertex
    }

    const PackedNumbers *edges_;
    MeshGeometry &geometry_;
    std::string_view rest_;
};

MeshGeometry storedGeometry(const Node &mesh)
{
    MeshGeometry geometry;
    const PackedNumbers *points = mesh.numbers(mesh.plug("vrts"));
    geometry.vertexCount = points ? unsigned(points->highestIndex() + 1) : 0;
    geometry.points.resize(geometry.vertexCount, skin::Vec3{0, 0, 0});
    addTuples(geometry.points, points);
    addTuples(geometry.points, mesh.numbers(mesh.plug("pnts")));
    const PackedNumbers *edges = mesh.numbers(mesh.plug("edge"));
    geometry.edgeCount = edges ? unsigned(edges->highestIndex() + 1) : 0;
    if (const Datum *faces = mesh.datum(mesh.plug("face"))) {
        FaceReader reader(edges, geometry);
        for (const auto &element : faces->elements) {
            if (const OpaqueValue *value = std::get_if<OpaqueValue>(&element.second.value))
                reader.read(value->text);
        }
    }
    return geometry;
}

} // namespace

MeshGeometry meshGeometry(const Node &mesh)
{
    MeshGeometry geometry;
    const NodePtr source = geometrySource(mesh);
    if (source && source->isA("mesh"))
        geometry = storedGeometry(*source);
    else if (source)
        geometry = primitiveGeometry(*source);
    const unsigned count = vertexCount(mesh);
    if (count != geometry.vertexCount) {
        // History that the host cannot run changed the topology: only the count is known.
        geometry = MeshGeometry();
        geometry.vertexCount = count;
    }
    return geometry;
}

unsigned vertexCount(const Node &mesh)
{
    const NodePtr source = geometrySource(mesh);
    if (source && source->isA("mesh") && storesPoints(*source))
        return unsigned(source->numbers(source->plug("vrts"))->highestIndex() + 1);
    if (const unsigned rows = weightListCount(mesh))
        return rows;
    return source && source->isA("polyPrimitive") ? primitiveVertexCount(*source) : 0;
}

skin::Adjacency meshAdjacency(const MeshGeometry &geometry)
{
    std::vector<std::pair<std::uint32_t, std::uint32_t>> edges;
    edges.reserve(geometry.faceVertices.size());
    std::size_t begin = 0;
    for (const unsigned size : geometry.faceSizes) {
        for (unsigned i = 0; i < size; ++i)
            edges.emplace_back(geometry.faceVertices[begin + i],
                               geometry.faceVertices[begin + (i + 1) % size]);
        begin += size;
    }
    return skin::buildAdjacency(geometry.vertexCount, edges);
}

std::vector<NodePtr> skinClustersOf(const Node &mesh)
{
    std::vector<NodePtr> clusters;
    for (const NodePtr &node : geometryHistory(shapeInput(mesh))) {
        if (node->isA("skinCluster"))
            clusters.push_back(node);
    }
    return clusters;
}

std::vector<NodePtr> deformedShapes(const Node &deformer)
{
    std::vector<NodePtr> shapes;
    const AttributePtr geometry = geometryAttribute(deformer, "outputGeometry");
    for (const auto &output : deformer.allDestinations()) {
        if (output.first.attribute != geometry.get())
            continue;
        for (const NodePtr &shape : shapesFedBy(deformer.plugOf(output.first))) {
            if (std::find(shapes.begin(), shapes.end(), shape) == shapes.end())
                shapes.push_back(shape);
        }
    }
    return shapes;
}

NodePtr deformedShape(const Node &deformer)
{
    const std::vector<NodePtr> shapes = deformedShapes(deformer);
    return shapes.empty() ? nullptr : shapes.front();
}

} // namespace host
