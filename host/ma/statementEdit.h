// SPDX-License-Identifier: Apache-2.0
// Changes words of a statement and leaves everything between them as it is.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace host::ma
{

// Words are views into the text that is edited, in any order; none may be given twice.
class StatementEdit
{
public:
    explicit StatementEdit(std::string_view text) : text_(text) {}

    void replace(std::string_view word, std::string with)
    {
        changes_.push_back({position(word), word.size(), std::move(with)});
    }
    void insertBehind(std::string_view word, std::string text)
    {
        changes_.push_back({position(word) + word.size(), 0, std::move(text)});
    }
    // With the blanks before it.
    void remove(std::string_view word)
    {
        const std::size_t begin = text_.find_last_not_of(" \t\r\n", position(word) - 1) + 1;
        changes_.push_back({begin, position(word) + word.size() - begin, {}});
    }
    std::string result()
    {
        // At one place what is inserted comes first.
        std::stable_sort(changes_.begin(), changes_.end(), [](const Change &a, const Change &b) {
            return std::make_pair(a.begin, a.size) < std::make_pair(b.begin, b.size);
        });
        std::string text;
        std::size_t done = 0;
        for (const Change &change : changes_) {
            text.append(text_.substr(done, change.begin - done)).append(change.with);
            done = change.begin + change.size;
        }
        return text.append(text_.substr(done));
    }

private:
    struct Change {
        std::size_t begin;
        std::size_t size;
        std::string with;
    };
    std::size_t position(std::string_view word) const
    {
        return std::size_t(word.data() - text_.data());
    }

    std::string_view text_;
    std::vector<Change> changes_;
};

} // namespace host::ma
