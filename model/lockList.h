// SPDX-License-Identifier: Apache-2.0
// What is locked of one kind: entries in locking order, of which one may stand more than once.
//
// Asking and adding cost the same however long the list is, and taking out nearly so: an operation
// on 10,000 cells must not search the list for each. Needs neither Maya nor a widget.
#pragma once

#include <QHash>
#include <QList>
#include <QMap>

template <typename Entry>
class lockList
{
public:
    void append(const Entry &entry)
    {
        entries_.insert(nextPlace_, entry);
        places_[entry].append(nextPlace_);
        ++nextPlace_;
    }

    // Removes every entry that is equal.
    void removeAll(const Entry &entry)
    {
        const QList<int> places = places_.take(entry);
        for (int i = 0; i < places.size(); ++i)
            entries_.remove(places.at(i));
    }

    bool contains(const Entry &entry) const { return places_.contains(entry); }
    bool isEmpty() const { return entries_.isEmpty(); }
    // Costs a copy.
    QList<Entry> entries() const { return entries_.values(); }

private:
    QMap<int, Entry> entries_; // by place, a number that rises with each entry
    QHash<Entry, QList<int>> places_;
    int nextPlace_ = 0;
};
