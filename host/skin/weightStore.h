// SPDX-License-Identifier: Apache-2.0
//
// The weights of one skin cluster: for each vertex a row of the influences that have a weight.
//
// Influences are LOGICAL indices (of the skin cluster's "matrix" multi) and ascend within a row. A
// weight of exactly 0 is never stored: what is missing reads as 0, as Maya does with
// weightList[v].weights[i]. Anything else is kept to the last bit, negative values and NaN too. A
// row may exist and be empty (an element of weightList without weights), and rows may have gaps.
//
// Rows lie 32 to a page, each page one block without slack between its rows:
//
//   page n    | row 32n: 1 .5, 7 .5 | row 32n + 1: 7 1.0 | ... | row 32n + 31: ... |
//
// so that reading a row touches one place in memory, a changed row moves at most the rest of its
// page (about 2 KB), and gaps of any size cost nothing. A page is shared between copies of a store
// until one of them changes it: a copy, for undo or for "the values at the start of this round",
// costs 24 bytes per page. 500,000 rows of 8 weights take 68 MB.
//
// Not safe to change from several threads, not even through copies that still share pages.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace host::skin
{

// One stored weight of a vertex.
struct Entry {
    std::uint32_t influence; // logical index
    double weight;
};

// The stored weights of one vertex, influences ascending. Valid until the store is next changed.
class RowView
{
public:
    RowView() = default;
    RowView(const Entry *first, const Entry *last) : first_(first), last_(last) {}
    const Entry *begin() const { return first_; }
    const Entry *end() const { return last_; }
    std::size_t size() const { return static_cast<std::size_t>(last_ - first_); }
    bool empty() const { return first_ == last_; }
    const Entry &operator[](std::size_t position) const { return first_[position]; }

private:
    const Entry *first_ = nullptr;
    const Entry *last_ = nullptr;
};

class WeightStore
{
public:
    using Entry = skin::Entry;
    using RowView = skin::RowView;

    // The highest existing vertex + 1; 0 for an empty store.
    std::size_t vertexCount() const;

    // How many rows exist: an empty row counts, a gap does not.
    std::size_t rowCount() const;

    bool hasRow(std::size_t vertex) const;

    // The first existing row at or after `vertex`, vertexCount() if there is none. To visit all
    // rows without visiting gaps: for (v = nextRow(0); v < vertexCount(); v = nextRow(v + 1)).
    std::size_t nextRow(std::size_t vertex) const;

    // The row of a vertex; empty if it does not exist.
    RowView row(std::size_t vertex) const;

    // One weight; 0 if it is not stored.
    double weight(std::size_t vertex, std::uint32_t influence) const;

    // Growing appends empty rows that exist (gaps below the old size stay gaps), shrinking drops
    // rows. Takes time and memory in proportion to the rows it makes: not meant for the unchecked
    // size hint of a file.
    void resize(std::size_t vertexCount);

    // Makes an empty row if the vertex has none.
    void addRow(std::size_t vertex);

    // Drops a row: the vertex becomes a gap.
    void removeRow(std::size_t vertex);

    // Stores one weight and makes the row if need be. 0.0 erases the weight; the row, if there is
    // one, stays, and none is made.
    void setWeight(std::size_t vertex, std::uint32_t influence, double weight);

    // Replaces a row (makes it if need be, also when nothing is left to store). Exact zeros are
    // dropped. Ascending entries are quickest; others are sorted, and of equal influences the last
    // one counts.
    void setRow(std::size_t vertex, const std::vector<Entry> &entries)
    {
        setRowFrom(vertex, {entries.data(), entries.data() + entries.size()});
    }
    void setRowFrom(std::size_t vertex, const RowView &entries); // not of this store

    // Adds entries to a row, as files do that set the weights of one vertex in several statements:
    // an influence that is already there is replaced, and erased by a 0.
    void mergeRow(std::size_t vertex, const std::vector<Entry> &entries);

    // Drops an influence from every row.
    void removeInfluence(std::uint32_t influence);

    void clear();

    // Fills `out` with a dense table, a line of `columns` values per vertex: 0, or what the row
    // stores for the column. columnOfInfluence[logical index] is the column of an influence, -1 to
    // leave it out; influences beyond its end are left out too. REQUIRES: columns listed are below
    // `columns`; `out` has room for all lines.
    void readDense(const std::vector<std::uint32_t> &vertices,
                   const std::vector<std::int32_t> &columnOfInfluence, std::size_t columns,
                   double *out) const;

    // The same for the vertices [first, last), existing or not.
    void readDense(std::size_t first, std::size_t last,
                   const std::vector<std::int32_t> &columnOfInfluence, std::size_t columns,
                   double *out) const;

    // Equal: the same rows exist and hold the same influences with the same bits (a NaN equals
    // itself).
    bool operator==(const WeightStore &other) const;
    bool operator!=(const WeightStore &other) const { return !(*this == other); }

private:
    static constexpr std::size_t kPageRows = 32;

    // Row s of a page is entries [starts[s], starts[s + 1]); it exists if bit s of existing is set.
    struct Page {
        std::uint32_t existing = 0;
        std::array<std::uint32_t, kPageRows + 1> starts{};
        std::vector<Entry> entries;

        bool operator==(const Page &other) const;
    };
    struct PageSlot {
        std::size_t number; // of the page: its first row is number * kPageRows
        std::shared_ptr<Page> page;
    };

    // Where the page with this number is in pages_, or would have to be inserted.
    std::size_t findSlot(std::size_t number) const;
    const Page *findPage(std::size_t number) const;

    // The page as one that belongs to this store alone; made if it does not exist.
    Page &writablePage(std::size_t number);
    static Page &unshare(PageSlot &slot);

    // Makes entries [first, first + count) the row of a vertex. REQUIRES: ascending, no zeros.
    void replaceRow(std::size_t vertex, const Entry *first, std::size_t count);

    std::vector<PageSlot> pages_; // ascending numbers, no page without an existing row
};

} // namespace host::skin
