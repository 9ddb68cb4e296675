// SPDX-License-Identifier: Apache-2.0
// Reading rows again after an edit: some of them, at a price that does not depend on the others,
// and with the same outcome as reading all.
#include "model/weightTableModel.h"

#include "model/messages.h"
#include "model/precisionRounding.h"
#include "model/shapeReader.h"
#include "model/vertexRowFinder.h"

#include <maya/MGlobal.h>

#include <algorithm>
#include <iterator>

namespace
{

struct shapeRows {
    int shape;
    QVector<int> rows;     // of one shape, ascending
    QVector<int> vertices; // theirs
};

void sortAndUnite(QVector<int> &rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
}

// Both ascend.
QVector<int> without(const QVector<int> &left, const QVector<int> &rows)
{
    QVector<int> rest;
    std::set_difference(rows.begin(), rows.end(), left.begin(), left.end(),
                        std::back_inserter(rest));
    return rest;
}

// The vertex rows among `rows`, which ascend.
QVector<shapeRows> groupedByShape(const weightList &weights, const QVector<int> &rows)
{
    QVector<shapeRows> groups;
    for (int i = 0; i < rows.size(); ++i) {
        if (rows.at(i) >= weights.rows.size() || !isVertexRow(weights.rows.at(rows.at(i))))
            continue;
        const int shape = shapeIndexOf(weights.rows.at(rows.at(i)));
        if (groups.isEmpty() || groups.last().shape != shape) {
            groups.append(shapeRows());
            groups.last().shape = shape;
        }
        groups.last().rows.append(rows.at(i));
        groups.last().vertices.append(weights.rowNames.vertex(rows.at(i)));
    }
    return groups;
}

// Appends the rows that show one of the vertices: two for a vertex that was loaded twice.
void appendRowsShowing(const writtenVertices &written, const weightList &weights,
                       QVector<int> &rows)
{
    for (int shape = 0; shape < weights.shapeCount(); ++shape) {
        if (weights.skinClusters[shape] != written.skinCluster)
            continue;
        const int first = weights.firstVertexRow(shape);
        const int end = weights.endOfVertexRows(shape);
        for (int row = first; written.allVertices && row < end; ++row)
            rows.append(row);
        vertexRowFinder finder(weights.rowNames, first, end);
        for (int i = 0; i < written.vertices.size(); ++i) {
            const int row = finder.rowOf(written.vertices.at(i));
            if (row >= 0)
                rows.append(row);
        }
    }
}

bool hasWeight(const weightRow &row)
{
    for (int column = 0; hasCell(row, column); ++column) {
        if (cellOf(row, column) > 0.0)
            return true;
    }
    return false;
}

// Whether a row that now holds `weights` changes which is the first row without weight.
bool movesFirstWithoutWeight(const refreshNotes &notes, int row, const weightRow &weights)
{
    const int first = notes.firstRowWithoutWeight;
    return row == first ? hasWeight(weights) : (first < 0 || row < first) && !hasWeight(weights);
}

// Most of the rows stand for all: that costs nothing more when they are read again.
void noteOtherwiseRounded(const QVector<int> &rows, int rowCount, refreshNotes &notes)
{
    if (rows.size() > rowCount / 2)
        notes.allOtherwiseRounded = true;
    for (int i = 0; i < rows.size() && !notes.allOtherwiseRounded; ++i)
        notes.otherwiseRoundedRows.insert(rows.at(i));
}

// Each row's joint column that was edited last.
QHash<int, int> lastColumns(const QVector<cellIndex> &edited)
{
    QHash<int, int> columns;
    for (int i = 0; i < edited.size(); ++i)
        columns.insert(edited.at(i).row, edited.at(i).column);
    return columns;
}

} // namespace

void weightTableModel::refreshWritten(const QVector<writtenVertices> &written)
{
    if (rowCount() == 0 || columnCount() == 0) {
        MGlobal::displayError(kNothingToUndo);
        return;
    }
    refreshNotes &notes = weights_.notes;
    if (rowsReadAfterwards_.size() == rowCount() - weights_.shapeCount()) {
        notes.allOtherwiseRounded = true;
        return;
    }
    QVector<int> rows;
    for (int i = 0; i < written.size(); ++i)
        appendRowsShowing(written.at(i), weights_, rows);
    const QList<int> others = notes.otherwiseRoundedRows.values();
    for (int i = 0; i < others.size(); ++i)
        rows.append(others.at(i));
    sortAndUnite(rows);
    rows = without(rowsReadAfterwards_, rows);

    const bool allChange = notes.allOtherwiseRounded || notes.precision != settings_.precision;
    if (allChange || !refreshListRows(rows))
        refreshAllRows();
    notes.otherwiseRoundedRows.clear();
    notes.allOtherwiseRounded = false;
    showFilteredColumns();
    announceRows(rows);
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    if (notes.firstRowWithoutWeight >= 0)
        MGlobal::displayError(kRowWithoutWeight);
}

// False where rows that were not asked for change too: those below another first row without
// weight. The rows are then not all read.
bool weightTableModel::refreshListRows(const QVector<int> &rows)
{
    wholeListRounding rounding(settings_.precision);
    wholeListRounding roundingBelow(settings_.precision);
    roundingBelow.endResiduals();
    const int firstWithout = weights_.notes.firstRowWithoutWeight;

    const QVector<shapeRows> groups = groupedByShape(weights_, rows);
    for (int g = 0; g < groups.size(); ++g) {
        const shapeRows &group = groups.at(g);
        shapeReader reader(weights_, group.shape, group.vertices);
        for (int k = 0; k < reader.vertexCount(); ++k) {
            const int row = group.rows.at(k);
            double sum = 0.0;
            weightRow weights = reader.row(k, &sum);
            const bool isBelow = firstWithout >= 0 && row > firstWithout;
            (isBelow ? roundingBelow : rounding).apply(weights);
            if (movesFirstWithoutWeight(weights_.notes, row, weights))
                return false;
            storeRow(row, weights, sum);
        }
    }
    return true;
}

void weightTableModel::refreshAllRows()
{
    wholeListRounding rounding(settings_.precision);
    int &firstWithout = weights_.notes.firstRowWithoutWeight;
    firstWithout = -1;
    weights_.notes.precision = settings_.precision;
    for (int shape = 0; shape < weights_.shapeCount(); ++shape) {
        const int first = weights_.firstVertexRow(shape);
        shapeReader reader(weights_, shape);
        if (reader.vertexCount() != weights_.endOfVertexRows(shape) - first)
            continue; // not the shape that was loaded
        for (int k = 0; k < reader.vertexCount(); ++k) {
            double sum = 0.0;
            weightRow weights = reader.row(k, &sum);
            rounding.apply(weights);
            if (rounding.metRowWithoutWeight() && firstWithout < 0)
                firstWithout = first + k;
            storeRow(first + k, weights, sum);
        }
    }
    emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

void weightTableModel::refreshEditedRows(const QVector<cellIndex> &edited)
{
    const QHash<int, int> columns = lastColumns(edited);
    QVector<int> rows;
    for (QHash<int, int>::const_iterator i = columns.constBegin(); i != columns.constEnd(); ++i)
        rows.append(i.key());
    refreshOneByOne(rows, [&columns](int row) { return columns.value(row); });
}

void weightTableModel::refreshRowsEditedAt(const QVector<int> &rows, int column)
{
    refreshOneByOne(rows, [column](int) { return column; });
}

void weightTableModel::refreshOneByOne(QVector<int> rows,
                                       const std::function<int(int row)> &editedColumn)
{
    sortAndUnite(rows);
    const weightRounder rounder(settings_.precision);
    bool isEachComplete = true;
    const QVector<shapeRows> groups = groupedByShape(weights_, rows);
    for (int g = 0; g < groups.size(); ++g) {
        const shapeRows &group = groups.at(g);
        shapeReader reader(weights_, group.shape, group.vertices);
        for (int k = 0; k < reader.vertexCount(); ++k) {
            const int row = group.rows.at(k);
            const int edited = editedColumn(row);
            const auto mayTake = [this, row, edited](int column) {
                return column != edited && !locks_.isJointLocked(column) &&
                       !locks_.isCellLocked(row, column);
            };
            double sum = 0.0;
            weightRow weights = reader.row(k, &sum);
            isEachComplete = roundEditedRow(weights, rounder, mayTake) && isEachComplete;
            if (movesFirstWithoutWeight(weights_.notes, row, weights))
                weights_.notes.allOtherwiseRounded = true;
            storeRow(row, weights, sum);
        }
    }
    noteOtherwiseRounded(rows, rowCount(), weights_.notes);
    announceRows(rows);
    if (!isEachComplete)
        MGlobal::displayError(kNoCellToDeductFrom); // once, however many rows are like that
}

QVector<int> weightTableModel::allVertexRows() const
{
    QVector<int> rows;
    for (int row = 0; row < weights_.rows.size(); ++row) {
        if (isVertexRow(weights_.rows.at(row)))
            rows.append(row);
    }
    return rows;
}

// `sum` is that of the weights before they were rounded.
void weightTableModel::storeRow(int row, const weightRow &weights, double sum)
{
    if (weights_.rows.at(row) != weights)
        weights_.rows[row] = weights;
    if (isFiltering_)
        emptyColumns_.follow(weights_.rows, row);

    const int shape = shapeIndexOf(weights);
    QSet<int> &unnormalized = weights_.notes.unnormalizedRows[shape];
    if (isNormalized(sum, normalizationTolerance(settings_.precision)))
        unnormalized.remove(row);
    else
        unnormalized.insert(row);
    const int head = weights_.shapeRows.at(shape);
    const double tag = unnormalized.isEmpty() ? kShapeRowTag : kUnnormalizedShapeTag;
    if (rowTag(weights_.rows.at(head)) != tag) {
        weights_.rows[head][0] = tag;
        emit headerDataChanged(Qt::Vertical, head, head);
    }
}

// A run of rows is announced as one.
void weightTableModel::announceRows(const QVector<int> &rows)
{
    for (int first = 0; first < rows.size();) {
        int last = first;
        while (last + 1 < rows.size() && rows.at(last + 1) == rows.at(last) + 1)
            ++last;
        emit dataChanged(index(rows.at(first), 0), index(rows.at(last), columnCount() - 1));
        emit headerDataChanged(Qt::Vertical, rows.at(first), rows.at(last));
        first = last + 1;
    }
}
