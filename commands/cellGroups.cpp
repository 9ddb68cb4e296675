// SPDX-License-Identifier: Apache-2.0
#include "commands/cellGroups.h"

cellGroups::rank &cellGroups::rankFor(const influenceCell &cell, cellGrouping grouping)
{
    int &nextRank = cellCounts_[qMakePair(cell.place, cell.vertex)];
    int number = qMax(nextRank, firstRank_);
    if (grouping == cellGrouping::inOrder) {
        number = static_cast<int>(ranks_.size());
        firstRank_ = number + 1;
    }
    nextRank = number + 1;
    if (number >= ranks_.size())
        ranks_.resize(number + 1);
    return ranks_[number];
}

void cellGroups::append(const influenceCell &cell, cellGrouping grouping)
{
    rank &taken = rankFor(cell, grouping);
    const groupKey key = qMakePair(cell.place, cell.influence);
    int group = -1;
    if (grouping == cellGrouping::together) {
        group = taken.groupByKey.value(key, static_cast<int>(taken.groups.size()));
        taken.groupByKey.insert(key, group);
    }
    if (group < 0 || group == taken.groups.size())
        taken.groups.append(cellGroup());
    (group < 0 ? taken.groups.last() : taken.groups[group]).append(cell);
}

QVector<cellGroup> cellGroups::inOrder() const
{
    QVector<cellGroup> groups;
    for (int i = 0; i < ranks_.size(); ++i)
        groups += ranks_.at(i).groups;
    return groups;
}
