// SPDX-License-Identifier: Apache-2.0
// Cells that one call of setWeights can write: of one influence, no two of them at the same vertex.
//
// A skin cluster takes a thousand vertices in one call many times faster than in a thousand, and
// warns once instead of a thousand times. What is written to one vertex does not depend on others,
// so that only the order of the cells of each vertex counts, and that is kept. Needs neither Maya
// nor a widget.
#pragma once

#include <QHash>
#include <QPair>
#include <QVector>

enum class cellGrouping {
    together, // with cells of the same influence
    alone,    // in a group of its own
    inOrder   // alone, and behind all cells before it, whatever their vertices
};

// A cell of the table as its skin cluster knows it.
struct influenceCell {
    int place;  // of the shape in the edit
    int vertex; // of that shape
    int influence;
    double value;
    int row;    // of the table
    int column; // of the table
};

typedef QVector<influenceCell> cellGroup;

class cellGroups
{
public:
    void append(const influenceCell &cell, cellGrouping grouping);

    // In the order in which they are to be written. None is empty.
    QVector<cellGroup> inOrder() const;

private:
    typedef QPair<int, int> groupKey; // place, influence
    // The first cells of all vertices, the second cells, ...: no vertex is in a rank twice.
    struct rank {
        QVector<cellGroup> groups;
        QHash<groupKey, int> groupByKey;
    };

    rank &rankFor(const influenceCell &cell, cellGrouping grouping);

    QVector<rank> ranks_;
    QHash<QPair<int, int>, int> cellCounts_; // of a place and vertex
    int firstRank_ = 0;                      // that takes cells
};
