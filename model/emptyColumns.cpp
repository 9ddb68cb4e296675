// SPDX-License-Identifier: Apache-2.0
#include "model/emptyColumns.h"

#include <algorithm>

QList<int> emptyColumns(const weightRows &rows, int columnCount)
{
    QVector<int> candidates(columnCount);
    for (int column = 0; column < columnCount; ++column)
        candidates[column] = column;

    for (int r = 0; r < rows.size() && !candidates.isEmpty(); ++r) {
        const weightRow &row = rows.at(r);
        const auto hasWeight = [&row](int column) {
            return hasCell(row, column) && cellOf(row, column) > 0.0;
        };
        candidates.erase(std::remove_if(candidates.begin(), candidates.end(), hasWeight),
                         candidates.end());
    }

    QList<int> empty;
    for (int i = 0; i < candidates.size(); ++i)
        empty.append(candidates.at(i));
    return empty;
}
