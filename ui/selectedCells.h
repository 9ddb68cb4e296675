// SPDX-License-Identifier: Apache-2.0
// Looking for a cell among those selected without a list of all of them: a selection may be a
// column of 100,000 rows.
#pragma once

#include <QAbstractItemModel>
#include <QItemSelection>
#include <QModelIndex>

// The first selected index, in the selection's own order, that `isWanted`; invalid if there is
// none.
template <typename Predicate>
QModelIndex firstSelected(const QItemSelection &selection, Predicate isWanted)
{
    for (int i = 0; i < selection.size(); ++i) {
        const QItemSelectionRange &range = selection.at(i);
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= range.right(); ++column) {
                const QModelIndex index = range.model()->index(row, column);
                if (isWanted(index))
                    return index;
            }
        }
    }
    return QModelIndex();
}

// The selected index if there is exactly one; invalid otherwise.
inline QModelIndex onlySelected(const QItemSelection &selection)
{
    const bool isSingle =
        selection.size() == 1 && selection.at(0).width() == 1 && selection.at(0).height() == 1;
    return isSingle ? QModelIndex(selection.at(0).topLeft()) : QModelIndex();
}
