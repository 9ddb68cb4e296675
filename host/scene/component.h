// SPDX-License-Identifier: Apache-2.0
// A set of vertices, edges, faces or UVs of one mesh.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host
{

enum class ComponentKind { vertex, edge, face, uv };

struct Component {
    ComponentKind kind = ComponentKind::vertex;
    std::vector<int> elements; // ascending, each once

    // Ascending ranges as Maya writes them: "vtx[0]", "vtx[50:60]".
    std::vector<std::string> ranges() const;
    std::vector<std::string> singles() const; // "vtx[50]", "vtx[51]", ...
    // Takes the elements of `other` in. REQUIRES: the same kind.
    void merge(const Component &other);
    void remove(const Component &other);
    // Sorts and drops repetitions after elements were appended in any order.
    void normalize();
    bool operator==(const Component &other) const
    {
        return kind == other.kind && elements == other.elements;
    }
};

// "vtx", "e", "f", "map": the words of component names and back.
const char *componentWord(ComponentKind kind);
bool parseComponentWord(std::string_view word, ComponentKind &kind);

} // namespace host
