// SPDX-License-Identifier: Apache-2.0
//
// The pages of a WeightStore: finding, making, unsharing, comparing and editing them.

#include "skin/weightStore.h"

#include <algorithm>
#include <cstring>

namespace host::skin
{

namespace
{

bool haveSameBits(const Entry &a, const Entry &b)
{
    return a.influence == b.influence && std::memcmp(&a.weight, &b.weight, sizeof a.weight) == 0;
}

} // namespace

bool WeightStore::operator==(const WeightStore &other) const
{
    return std::equal(pages_.begin(), pages_.end(), other.pages_.begin(), other.pages_.end(),
                      [](const PageSlot &a, const PageSlot &b) {
                          return a.number == b.number && (a.page == b.page || *a.page == *b.page);
                      });
}

bool WeightStore::Page::operator==(const Page &other) const
{
    return existing == other.existing && starts == other.starts &&
           std::equal(entries.begin(), entries.end(), other.entries.begin(), other.entries.end(),
                      haveSameBits);
}

std::size_t WeightStore::findSlot(std::size_t number) const
{
    // Without gaps below it a page stands at its own number, with gaps before that.
    if (number < pages_.size() && pages_[number].number == number)
        return number;
    if (pages_.empty() || pages_.back().number < number)
        return pages_.size();
    const auto last =
        pages_.begin() + static_cast<std::ptrdiff_t>(std::min(number + 1, pages_.size()));
    const auto found =
        std::lower_bound(pages_.begin(), last, number,
                         [](const PageSlot &slot, std::size_t n) { return slot.number < n; });
    return static_cast<std::size_t>(found - pages_.begin());
}

const WeightStore::Page *WeightStore::findPage(std::size_t number) const
{
    const std::size_t slot = findSlot(number);
    return slot < pages_.size() && pages_[slot].number == number ? pages_[slot].page.get()
                                                                 : nullptr;
}

WeightStore::Page &WeightStore::writablePage(std::size_t number)
{
    const std::size_t slot = findSlot(number);
    if (slot < pages_.size() && pages_[slot].number == number)
        return unshare(pages_[slot]);
    const auto position = pages_.begin() + static_cast<std::ptrdiff_t>(slot);
    return *pages_.insert(position, {number, std::make_shared<Page>()})->page;
}

WeightStore::Page &WeightStore::unshare(PageSlot &slot)
{
    if (slot.page.use_count() > 1)
        slot.page = std::make_shared<Page>(*slot.page);
    return *slot.page;
}

void WeightStore::replaceRow(std::size_t vertex, const Entry *first, std::size_t count)
{
    Page &page = writablePage(vertex / kPageRows);
    const std::size_t s = vertex % kPageRows;
    page.existing |= 1u << s;
    const std::size_t oldCount = page.starts[s + 1] - page.starts[s];
    const auto end = page.entries.begin() + page.starts[s + 1];
    if (count < oldCount)
        page.entries.erase(end - static_cast<std::ptrdiff_t>(oldCount - count), end);
    else if (count > oldCount)
        page.entries.insert(end, count - oldCount, Entry());
    std::copy_n(first, count, page.entries.begin() + page.starts[s]);
    for (std::size_t after = s + 1; after <= kPageRows; ++after)
        page.starts[after] += static_cast<std::uint32_t>(count - oldCount);
}

} // namespace host::skin
