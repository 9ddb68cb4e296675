// SPDX-License-Identifier: Apache-2.0
// polyEvaluate: how many vertices, edges, faces, ... meshes have, and how many are selected.
// Several meshes are counted together (a guess).
#include <algorithm>
#include <numeric>
#include <optional>
#include <unordered_set>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/skinClusterCommand.h"
#include "scene/meshGeometry.h"

namespace host::mel
{

namespace
{

// What is counted: the meshes, decoded once, and the components that were named or are selected.
struct Counted {
    struct Mesh {
        NodePtr node;
        MeshGeometry geometry;
    };
    std::vector<Mesh> meshes;
    std::vector<SelectionItem> items;
    std::string uvSet; // empty: the current one of each mesh
};

// Nothing where history that the host can not run hides the answer.
using Count = std::optional<long long>;

bool hasFaces(const MeshGeometry &geometry)
{
    return !geometry.points.empty() || geometry.vertexCount == 0;
}

Count vertices(const Counted &counted)
{
    long long count = 0;
    for (const Counted::Mesh &mesh : counted.meshes)
        count += mesh.geometry.vertexCount;
    return count;
}

// The sum over the meshes of what `ofOne` counts in faces and edges.
template <typename Function>
Count sum(const Counted &counted, Function ofOne)
{
    long long count = 0;
    for (const Counted::Mesh &mesh : counted.meshes) {
        if (!hasFaces(mesh.geometry))
            return std::nullopt;
        count += static_cast<long long>(ofOne(mesh.geometry));
    }
    return count;
}

Count edges(const Counted &counted)
{
    return sum(counted, [](const MeshGeometry &geometry) { return geometry.edgeCount; });
}

Count faces(const Counted &counted)
{
    return sum(counted, [](const MeshGeometry &geometry) { return geometry.faceSizes.size(); });
}

// A face of n corners falls into n - 2 triangles.
Count triangles(const Counted &counted)
{
    return sum(counted, [](const MeshGeometry &geometry) {
        return geometry.faceVertices.size() - 2 * geometry.faceSizes.size();
    });
}

// Pieces that share no vertex. Vertices without a face belong to none.
long long shellsOf(const MeshGeometry &geometry)
{
    std::vector<unsigned> leader(geometry.vertexCount);
    std::iota(leader.begin(), leader.end(), 0u);
    const auto find = [&leader](unsigned vertex) {
        while (leader[vertex] != vertex)
            vertex = leader[vertex] = leader[leader[vertex]];
        return vertex;
    };
    long long shells = 0;
    std::vector<bool> isUsed(geometry.vertexCount);
    const unsigned *corner = geometry.faceVertices.data();
    for (const unsigned size : geometry.faceSizes) {
        for (unsigned i = 0; i < size; ++i) {
            if (!isUsed[corner[i]]) {
                isUsed[corner[i]] = true;
                ++shells;
            }
            const unsigned first = find(corner[0]);
            const unsigned other = find(corner[i]);
            shells -= first != other ? 1 : 0;
            leader[other] = first;
        }
        corner += size;
    }
    return shells;
}

Count shells(const Counted &counted)
{
    return sum(counted, shellsOf);
}

// The UVs of a set as the mesh stores them; nothing where they are made by a primitive.
Count uvsOf(const Node &mesh, const std::string &wantedSet)
{
    const NodePtr source = geometrySource(mesh);
    if (!source || !source->isA("mesh"))
        return std::nullopt;
    const auto text = [](const Plug &plug) {
        const Value value = plug.node->storedValue(plug);
        const auto *string = std::get_if<std::string>(&value);
        return string ? *string : std::string();
    };
    const std::string name = wantedSet.empty() ? text(mesh.plug("currentUVSet")) : wantedSet;
    const Plug sets = source->plug("uvSet");
    for (const int index : source->elementIndices(sets)) {
        const Plug set = sets.element(index);
        if (!name.empty() && text(set.child(set.attribute->child("uvSetName"))) != name)
            continue;
        const PackedNumbers *points =
            source->numbers(set.child(set.attribute->child("uvSetPoints")));
        return points ? points->highestIndex() + 1 : 0;
    }
    if (!wantedSet.empty())
        throw Error("polyEvaluate: '" + mesh.uniqueName() + "' has no UV set '" + wantedSet + "'.");
    return 0;
}

Count uvs(const Counted &counted)
{
    long long count = 0;
    for (const Counted::Mesh &mesh : counted.meshes) {
        const Count own = uvsOf(*mesh.node, counted.uvSet);
        if (!own)
            return own;
        count += *own;
    }
    return count;
}

template <ComponentKind kind>
Count components(const Counted &counted)
{
    long long count = 0;
    for (const SelectionItem &item : counted.items) {
        if (item.component && item.component->kind == kind)
            count += static_cast<long long>(item.component->elements.size());
    }
    return count;
}

struct Question {
    Flag flag;
    const char *label; // in formatted answers
    Count (*count)(const Counted &counted);
};

const Question kQuestions[] = {
    {{"v", "vertex"}, "vertex", vertices},
    {{"e", "edge"}, "edge", edges},
    {{"f", "face"}, "face", faces},
    {{"uv", "uvcoord"}, "uv", uvs},
    {{"s", "shell"}, "shell", shells},
    {{"t", "triangle"}, "triangle", triangles},
    {{"vc", "vertexComponent"}, "vertexComponent", components<ComponentKind::vertex>},
    {{"ec", "edgeComponent"}, "edgeComponent", components<ComponentKind::edge>},
    {{"fc", "faceComponent"}, "faceComponent", components<ComponentKind::face>},
    {{"uvc", "uvComponent"}, "uvComponent", components<ComponentKind::uv>},
};

Counted countedBy(Context &context, const Arguments &arguments)
{
    Counted counted;
    counted.items = objectsOrSelection(context, arguments);
    counted.uvSet = arguments.string("uvSetName");
    std::unordered_set<const Node *> seen;
    for (const SelectionItem &item : counted.items) {
        const DagPath shape = visibleShape(item);
        if (!shape.isNull() && shape.node()->isA("mesh") && seen.insert(shape.node().get()).second)
            counted.meshes.push_back({shape.node(), meshGeometry(*shape.node())});
    }
    return counted;
}

// Maya's layout of the whole answer is not published: one "name=count" per thing that is counted,
// without what can not be counted here.
std::string formatted(const Counted &counted, const std::vector<const Question *> &asked)
{
    std::string text;
    for (const Question *question : asked) {
        if (const Count count = question->count(counted))
            text += (text.empty() ? "" : " ") + std::string(question->label) + '=' +
                    std::to_string(*count);
    }
    return text;
}

MelValue polyEvaluate(Context &context, const Arguments &arguments)
{
    std::vector<const Question *> asked;
    for (const Question &question : kQuestions) {
        if (arguments.has(question.flag.longName))
            asked.push_back(&question);
    }
    const Counted counted = countedBy(context, arguments);
    if (counted.meshes.empty())
        return std::string("Nothing counted : no polygonal object is selected.");
    if (asked.empty()) {
        for (const Question &question : kQuestions)
            asked.push_back(&question);
        return formatted(counted, asked);
    }
    if (arguments.has("format"))
        return formatted(counted, asked);
    std::vector<long long> counts;
    for (const Question *question : asked) {
        const Count count = question->count(counted);
        if (!count)
            throw Error("polyEvaluate: '" + counted.meshes.front().node->uniqueName() +
                        "' is made by history that is not evaluated; -" + question->flag.longName +
                        " is not known.");
        counts.push_back(*count);
    }
    if (counts.size() == 1)
        return counts.front();
    return counts;
}

} // namespace

void addPolyEvaluateCommand(CommandTable &table)
{
    Command command{"polyEvaluate", {{"fmt", "format"}, {"uvs", "uvSetName", "s"}}, polyEvaluate};
    for (const Question &question : kQuestions)
        command.flags.push_back(question.flag);
    table.add(std::move(command));
}

} // namespace host::mel
