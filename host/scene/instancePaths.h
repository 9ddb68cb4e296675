// SPDX-License-Identifier: Apache-2.0
// Instances multiply the ways down to what lies below them; this keeps their number in bounds.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace host
{

class Node;

// Paths that a node may have. Thirty nested instances would give it a thousand million, and listing
// them would never end.
constexpr std::size_t kMaxPathsPerNode = 10'000;

// True when `other` is `node` or lies below it.
bool isAtOrAbove(const Node &node, const Node &other);

// Whether the node, or one above it, has several parents.
bool hasSeveralPaths(const Node &node);

// Whether `node`, or one below it, would have too many paths with `parent` as a further parent.
bool wouldHaveTooManyPaths(const Node &node, const Node &parent);

// How many paths end with the names of `parts`, no more than `most`: up from a node that has the
// last name, or down from one that has the first. Both give the same sum over all nodes of that
// name.
std::size_t pathsEndingAt(const Node &last, const std::vector<std::string_view> &parts,
                          std::size_t most);
std::size_t pathsThrough(const Node &first, const std::vector<std::string_view> &parts,
                         std::size_t most);

} // namespace host
