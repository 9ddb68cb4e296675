// SPDX-License-Identifier: Apache-2.0
// The fileInfo of a scene: texts by key, in the order in which they came.
#pragma once

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace host
{

class FileInfo
{
public:
    using Entry = std::pair<std::string, std::string>; // key and value

    std::vector<Entry>::const_iterator begin() const { return entries_.begin(); }
    std::vector<Entry>::const_iterator end() const { return entries_.end(); }

    // Null if there is no such key.
    const std::string *find(const std::string &key) const
    {
        const auto place = places_.find(key);
        return place == places_.end() ? nullptr : &entries_[place->second].second;
    }
    // In the place of an earlier value, or at the end.
    void set(const std::string &key, std::string value)
    {
        const auto [place, isNew] = places_.emplace(key, entries_.size());
        if (isNew)
            entries_.emplace_back(key, std::move(value));
        else
            entries_[place->second].second = std::move(value);
    }
    void remove(const std::string &key)
    {
        const auto place = places_.find(key);
        if (place == places_.end())
            return;
        entries_.erase(entries_.begin() + long(place->second));
        places_.clear();
        for (std::size_t i = 0; i < entries_.size(); ++i)
            places_.emplace(entries_[i].first, i);
    }

private:
    std::vector<Entry> entries_;
    std::unordered_map<std::string, std::size_t> places_; // in entries_, by key
};

} // namespace host
