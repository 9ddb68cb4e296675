// SPDX-License-Identifier: Apache-2.0
#include "commands/editedShapes.h"
#include "commands/preparers.h"

#include "model/limitRows.h"
#include "model/messages.h"

#include <algorithm>

#include <maya/MGlobal.h>

namespace
{

preparation fail(const char *message)
{
    MGlobal::displayError(message);
    return preparation::failed;
}

void findInfluences(const editedShapes &shapes, int place, int columnCount, editedShape &shape)
{
    if (!shape.influenceOfColumn.isEmpty())
        return;
    for (int column = 0; column < columnCount; ++column)
        shape.influenceOfColumn.append(shapes.influenceOf(place, column));
}

// Whether a weight's joint is no influence: such a vertex stops all that come after it.
bool holdsUnknownWeight(const weightRow &row, const editedShape &shape)
{
    for (int column = 0; hasCell(row, column); ++column) {
        if (cellOf(row, column) > 0.0 && shape.influenceOfColumn.at(column) < 0)
            return true;
    }
    return false;
}

struct limitedVertex {
    int vertex;
    limitedRow row;

    bool operator<(const limitedVertex &other) const { return vertex < other.vertex; }
};

// Vertices of one shape in a row become one write, as they do not depend on each other.
class limitedRun
{
public:
    limitedRun(int maximum, editedShapes &shapes) : maximum_(maximum), shapes_(shapes) {}
    ~limitedRun() { end(); }

    void append(int place, const limitedVertex &vertex, bool isAlone)
    {
        if (place != place_ || isAlone || isAlone_)
            end();
        place_ = place;
        isAlone_ = isAlone;
        run_.append(vertex);
    }

private:
    void end()
    {
        if (run_.isEmpty())
            return;
        std::sort(run_.begin(), run_.end());
        QVector<int> vertices;
        QVector<limitedRow> rows;
        for (int i = 0; i < run_.size(); ++i) {
            vertices.append(run_.at(i).vertex);
            rows.append(run_.at(i).row);
        }
        weightWrite &write = shapes_.appendWrite(place_, vertices);
        write.limitedRows = rows;
        write.maximum = maximum_;
        run_.clear();
    }

    int maximum_;
    editedShapes &shapes_;
    QVector<limitedVertex> run_;
    int place_ = -1;
    bool isAlone_ = false;
};

} // namespace

preparation prepareMaxInfluences(const editSource &source, preparedEdit &edit)
{
    const weightList &weights = source.weights;
    editedShapes shapes(source, edit);
    limitedRun run(source.maxInfluences, shapes);
    const QVector<int> &rows = source.handOver.maxInfluenceRows;
    for (int i = 0; i < rows.size(); ++i) {
        const int r = rows.at(i);
        if (r < 0 || r >= weights.rows.size())
            return preparation::outdated;
        const weightRow &row = weights.rows.at(r);
        if (!isVertexRow(row))
            return fail(kNoShapeIndex);
        const int vertex = weights.rowNames.vertex(r);
        if (vertex < 0)
            return fail(kUnreadableVertexIndex);
        if (influencesBeyond(source.maxInfluences, row) == 0 ||
            !shapes.isNew(shapeIndexOf(row), vertex))
            continue;
        const int place = shapes.enter(shapeIndexOf(row));
        if (place < 0)
            return preparation::outdated;
        findInfluences(shapes, place, weights.jointCount(), edit.shapes[place]);
        const bool isAlone =
            shapes.readsNeighbours(place) || holdsUnknownWeight(row, edit.shapes.at(place));
        run.append(place, {vertex, {row, r}}, isAlone);
    }
    return preparation::ready;
}
