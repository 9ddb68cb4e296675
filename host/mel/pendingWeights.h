// SPDX-License-Identifier: Apache-2.0
// The weights of one vertex while a file sets them one by one.
//
// They reach the skin cluster together: a row that is lengthened weight by weight would be copied
// for each.
#pragma once

#include <vector>

#include "scene/scene.h"

namespace host::mel
{

class PendingWeights
{
public:
    // Adds to the weights of a vertex; those of another one are written first.
    void add(Scene &scene, const NodePtr &skinCluster, std::size_t vertex,
             const std::vector<skin::Entry> &entries)
    {
        if (skinCluster != skinCluster_ || vertex != vertex_)
            write(scene);
        skinCluster_ = skinCluster;
        vertex_ = vertex;
        entries_.insert(entries_.end(), entries.begin(), entries.end());
    }
    // Writes what is pending. Not recorded for undo.
    void write(Scene &scene)
    {
        if (!entries_.empty())
            scene.editWeights(skinCluster_).mergeRow(vertex_, entries_);
        entries_.clear();
    }

private:
    NodePtr skinCluster_;
    std::size_t vertex_ = 0;
    std::vector<skin::Entry> entries_;
};

} // namespace host::mel
