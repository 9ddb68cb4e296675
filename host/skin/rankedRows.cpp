// SPDX-License-Identifier: Apache-2.0

#include "skin/rankedRows.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace host::skin
{

RankedRows::RankedRows(const WeightStore &weights, std::vector<std::uint32_t> vertices,
                       std::size_t vertexCount)
    : vertices_(std::move(vertices)), spans_(vertexCount)
{
    std::unordered_map<std::uint32_t, std::uint32_t> ranks;
    for (const std::uint32_t vertex : vertices_) {
        const RowView row = weights.row(vertex);
        spans_[vertex] = {static_cast<std::uint32_t>(entries_.size()),
                          static_cast<std::uint32_t>(row.size())};
        entries_.insert(entries_.end(), row.begin(), row.end());
        for (const Entry &entry : row)
            ranks.emplace(entry.influence, 0);
    }
    for (const auto &known : ranks)
        influences_.push_back(known.first);
    std::sort(influences_.begin(), influences_.end());
    for (std::uint32_t rank = 0; rank < influences_.size(); ++rank)
        ranks[influences_[rank]] = rank;
    for (Entry &entry : entries_)
        entry.influence = ranks.find(entry.influence)->second;
}

void RankedRows::replace(const std::vector<NewRow> &rows, std::vector<Entry> &entries)
{
    auto next = rows.begin();
    for (const std::uint32_t vertex : vertices_) {
        Span &span = spans_[vertex];
        if (next != rows.end() && next->vertex == vertex) {
            span = {next->first, next->count};
            ++next;
            continue;
        }
        const RowView kept = row(vertex);
        span.first = static_cast<std::uint32_t>(entries.size());
        entries.insert(entries.end(), kept.begin(), kept.end());
    }
    std::swap(entries_, entries);
}

void RankedRows::copyTo(WeightStore &weights, const std::vector<std::uint32_t> &vertices) const
{
    std::vector<Entry> entries;
    for (const std::uint32_t vertex : vertices) {
        const RowView ranked = row(vertex);
        entries.assign(ranked.begin(), ranked.end());
        for (Entry &entry : entries)
            entry.influence = influences_[entry.influence];
        weights.setRow(vertex, entries);
    }
}

} // namespace host::skin
