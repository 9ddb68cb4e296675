// SPDX-License-Identifier: Apache-2.0
#include "model/emptyColumns.h"

#include <algorithm>

namespace
{

bool hasWeight(const weightRow &row, int column)
{
    return hasCell(row, column) && cellOf(row, column) > 0.0;
}

int firstRowWithWeight(const weightRows &rows, int column)
{
    for (int r = 0; r < rows.size(); ++r) {
        if (hasWeight(rows.at(r), column))
            return r;
    }
    return -1;
}

} // namespace

void emptyColumns::find(const weightRows &rows, int columnCount)
{
    witnesses_.fill(-1, columnCount);
    QVector<int> candidates(columnCount);
    for (int column = 0; column < columnCount; ++column)
        candidates[column] = column;
    for (int r = 0; r < rows.size() && !candidates.isEmpty(); ++r) {
        const auto isWitness = [this, &rows, r](int column) {
            if (hasWeight(rows.at(r), column))
                witnesses_[column] = r;
            return witnesses_.at(column) >= 0;
        };
        candidates.erase(std::remove_if(candidates.begin(), candidates.end(), isWitness),
                         candidates.end());
    }
}

void emptyColumns::follow(const weightRows &rows, int changedRow)
{
    const weightRow &row = rows.at(changedRow);
    for (int column = 0; column < witnesses_.size(); ++column) {
        const int witness = witnesses_.at(column);
        if (witness < 0 && hasWeight(row, column))
            witnesses_[column] = changedRow;
        else if (witness == changedRow && !hasWeight(row, column))
            witnesses_[column] = firstRowWithWeight(rows, column);
    }
}

QList<int> emptyColumns::columns() const
{
    QList<int> empty;
    for (int column = 0; column < witnesses_.size(); ++column) {
        if (witnesses_.at(column) < 0)
            empty.append(column);
    }
    return empty;
}
