// SPDX-License-Identifier: Apache-2.0

#include "skin/weightStore.h"

#include <algorithm>
#include <bitset>

namespace host::skin
{

namespace
{

bool comesBefore(const Entry &entry, std::uint32_t influence)
{
    return entry.influence < influence;
}

// What a row may hold as it stands: influences ascending, no zeros.
bool isStorable(const RowView &entries)
{
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].weight == 0.0)
            return false;
        if (i > 0 && entries[i - 1].influence >= entries[i].influence)
            return false;
    }
    return true;
}

// Sorts entries, keeps the last one of equal influences, then drops zeros: in this order, so that a
// later 0 erases an earlier weight.
void makeStorable(std::vector<Entry> &entries)
{
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &a, const Entry &b) { return a.influence < b.influence; });
    std::size_t kept = 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const bool isLast =
            i + 1 == entries.size() || entries[i + 1].influence != entries[i].influence;
        if (isLast && entries[i].weight != 0.0)
            entries[kept++] = entries[i];
    }
    entries.resize(kept);
}

void fillLine(const RowView &row, const std::vector<std::int32_t> &columnOfInfluence,
              std::size_t columns, double *line)
{
    std::fill_n(line, columns, 0.0);
    for (const Entry &entry : row) {
        if (entry.influence >= columnOfInfluence.size())
            break; // The influences after it are larger still.
        const std::int32_t column = columnOfInfluence[entry.influence];
        if (column >= 0)
            line[column] = entry.weight;
    }
}

} // namespace

std::size_t WeightStore::vertexCount() const
{
    if (pages_.empty())
        return 0;
    std::size_t highest = kPageRows - 1;
    while ((pages_.back().page->existing >> highest & 1u) == 0)
        --highest;
    return pages_.back().number * kPageRows + highest + 1;
}

std::size_t WeightStore::rowCount() const
{
    std::size_t count = 0;
    for (const PageSlot &slot : pages_)
        count += std::bitset<kPageRows>(slot.page->existing).count();
    return count;
}

bool WeightStore::hasRow(std::size_t vertex) const
{
    const Page *page = findPage(vertex / kPageRows);
    return page && (page->existing >> vertex % kPageRows & 1u) != 0;
}

std::size_t WeightStore::nextRow(std::size_t vertex) const
{
    for (std::size_t slot = findSlot(vertex / kPageRows); slot < pages_.size(); ++slot) {
        const std::size_t firstRow = pages_[slot].number * kPageRows;
        const std::size_t start = vertex > firstRow ? vertex - firstRow : 0;
        for (std::size_t s = start; s < kPageRows; ++s) {
            if (pages_[slot].page->existing >> s & 1u)
                return firstRow + s;
        }
    }
    return vertexCount();
}

RowView WeightStore::row(std::size_t vertex) const
{
    const Page *page = findPage(vertex / kPageRows);
    if (!page)
        return {};
    const std::size_t s = vertex % kPageRows;
    const Entry *entries = page->entries.data();
    return {entries + page->starts[s], entries + page->starts[s + 1]};
}

double WeightStore::weight(std::size_t vertex, std::uint32_t influence) const
{
    const RowView view = row(vertex);
    const Entry *found = std::lower_bound(view.begin(), view.end(), influence, comesBefore);
    return found != view.end() && found->influence == influence ? found->weight : 0.0;
}

void WeightStore::resize(std::size_t vertexCount)
{
    const std::size_t oldCount = this->vertexCount();
    if (vertexCount >= oldCount) {
        for (std::size_t vertex = oldCount; vertex < vertexCount; ++vertex)
            addRow(vertex);
        return;
    }
    const std::size_t number = vertexCount / kPageRows;
    const std::size_t keptRows = vertexCount % kPageRows;
    const std::size_t slot = findSlot(number);
    const bool isCut = slot < pages_.size() && pages_[slot].number == number;
    pages_.erase(pages_.begin() + static_cast<std::ptrdiff_t>(slot + isCut), pages_.end());
    if (!isCut)
        return;
    Page &page = unshare(pages_[slot]);
    page.existing &= (1u << keptRows) - 1u;
    page.entries.resize(page.starts[keptRows]);
    std::fill(page.starts.begin() + static_cast<std::ptrdiff_t>(keptRows), page.starts.end(),
              page.starts[keptRows]);
    if (page.existing == 0)
        pages_.pop_back();
}

void WeightStore::addRow(std::size_t vertex)
{
    if (!hasRow(vertex))
        writablePage(vertex / kPageRows).existing |= 1u << vertex % kPageRows;
}

void WeightStore::removeRow(std::size_t vertex)
{
    if (!hasRow(vertex))
        return;
    replaceRow(vertex, nullptr, 0);
    const std::size_t slot = findSlot(vertex / kPageRows);
    Page &page = unshare(pages_[slot]);
    page.existing &= ~(1u << vertex % kPageRows);
    if (page.existing == 0)
        pages_.erase(pages_.begin() + static_cast<std::ptrdiff_t>(slot));
}

void WeightStore::setWeight(std::size_t vertex, std::uint32_t influence, double weight)
{
    if (weight == 0.0 && this->weight(vertex, influence) == 0.0)
        return; // Erases nothing, and makes neither page nor row.

    Page &page = writablePage(vertex / kPageRows);
    const std::size_t s = vertex % kPageRows;
    page.existing |= 1u << s;
    const auto first = page.entries.begin() + page.starts[s];
    const auto last = page.entries.begin() + page.starts[s + 1];
    const auto position = std::lower_bound(first, last, influence, comesBefore);
    const bool isStored = position != last && position->influence == influence;
    if (isStored && weight != 0.0) {
        position->weight = weight;
        return;
    }
    if (isStored)
        page.entries.erase(position);
    else
        page.entries.insert(position, {influence, weight});
    for (std::size_t after = s + 1; after <= kPageRows; ++after)
        page.starts[after] = isStored ? page.starts[after] - 1 : page.starts[after] + 1;
}

void WeightStore::setRowFrom(std::size_t vertex, const RowView &entries)
{
    if (isStorable(entries)) {
        replaceRow(vertex, entries.begin(), entries.size());
        return;
    }
    std::vector<Entry> storable(entries.begin(), entries.end());
    makeStorable(storable);
    replaceRow(vertex, storable.data(), storable.size());
}

void WeightStore::mergeRow(std::size_t vertex, const std::vector<Entry> &entries)
{
    const RowView old = row(vertex);
    if (old.empty()) {
        setRow(vertex, entries);
        return;
    }
    std::vector<Entry> merged(old.begin(), old.end());
    merged.insert(merged.end(), entries.begin(), entries.end());
    setRow(vertex, merged);
}

void WeightStore::removeInfluence(std::uint32_t influence)
{
    const auto isRemoved = [influence](const Entry &entry) { return entry.influence == influence; };
    for (PageSlot &slot : pages_) {
        const std::vector<Entry> &entries = slot.page->entries;
        if (std::none_of(entries.begin(), entries.end(), isRemoved))
            continue;
        Page &page = unshare(slot);
        std::uint32_t kept = 0;
        std::uint32_t next = 0;
        for (std::size_t s = 0; s < kPageRows; ++s) {
            page.starts[s] = kept;
            for (; next < page.starts[s + 1]; ++next) {
                if (!isRemoved(page.entries[next]))
                    page.entries[kept++] = page.entries[next];
            }
        }
        page.starts[kPageRows] = kept;
        page.entries.resize(kept);
    }
}

void WeightStore::clear()
{
    pages_.clear();
}

void WeightStore::readDense(const std::vector<std::uint32_t> &vertices,
                            const std::vector<std::int32_t> &columnOfInfluence, std::size_t columns,
                            double *out) const
{
    for (std::size_t line = 0; line < vertices.size(); ++line)
        fillLine(row(vertices[line]), columnOfInfluence, columns, out + line * columns);
}

void WeightStore::readDense(std::size_t first, std::size_t last,
                            const std::vector<std::int32_t> &columnOfInfluence, std::size_t columns,
                            double *out) const
{
    for (std::size_t vertex = first; vertex < last; ++vertex)
        fillLine(row(vertex), columnOfInfluence, columns, out + (vertex - first) * columns);
}

} // namespace host::skin
