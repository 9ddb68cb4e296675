// SPDX-License-Identifier: Apache-2.0
#include "scene/component.h"

#include <algorithm>
#include <iterator>

namespace host
{

namespace
{

struct WordRow {
    std::string_view word;
    ComponentKind kind;
};

constexpr WordRow kWords[] = {
    {"vtx", ComponentKind::vertex},
    {"e", ComponentKind::edge},
    {"f", ComponentKind::face},
    {"map", ComponentKind::uv},
};

} // namespace

std::vector<std::string> Component::ranges() const
{
    std::vector<std::string> result;
    const std::string word = componentWord(kind);
    for (std::size_t i = 0; i < elements.size();) {
        std::size_t last = i;
        while (last + 1 < elements.size() && elements[last + 1] == elements[last] + 1)
            ++last;
        std::string text = word + '[' + std::to_string(elements[i]);
        if (last > i)
            text += ':' + std::to_string(elements[last]);
        result.push_back(text + ']');
        i = last + 1;
    }
    return result;
}

std::vector<std::string> Component::singles() const
{
    std::vector<std::string> result;
    result.reserve(elements.size());
    const std::string start = std::string(componentWord(kind)) + '[';
    for (const int element : elements)
        result.push_back(start + std::to_string(element) + ']');
    return result;
}

void Component::merge(const Component &other)
{
    // Vertices that are named one by one mostly ascend.
    if (elements.empty() || other.elements.empty() || elements.back() < other.elements.front()) {
        elements.insert(elements.end(), other.elements.begin(), other.elements.end());
        return;
    }
    std::vector<int> all;
    all.reserve(elements.size() + other.elements.size());
    std::set_union(elements.begin(), elements.end(), other.elements.begin(), other.elements.end(),
                   std::back_inserter(all));
    elements.swap(all);
}

void Component::remove(const Component &other)
{
    const auto isTaken = [&other](int element) {
        return std::binary_search(other.elements.begin(), other.elements.end(), element);
    };
    elements.erase(std::remove_if(elements.begin(), elements.end(), isTaken), elements.end());
}

void Component::normalize()
{
    std::sort(elements.begin(), elements.end());
    elements.erase(std::unique(elements.begin(), elements.end()), elements.end());
}

const char *componentWord(ComponentKind kind)
{
    for (const WordRow &row : kWords) {
        if (row.kind == kind)
            return row.word.data();
    }
    return "";
}

bool parseComponentWord(std::string_view word, ComponentKind &kind)
{
    for (const WordRow &row : kWords) {
        if (row.word == word) {
            kind = row.kind;
            return true;
        }
    }
    return false;
}

} // namespace host
