// SPDX-License-Identifier: Apache-2.0
#include "commands/shapeWriter.h"
#include "commands/writers.h"

#include "model/limitRows.h"
#include "model/messages.h"
#include "model/vertexComponents.h"

#include <maya/MGlobal.h>

namespace
{

// The leftmost column of the smallest weight; -1 if the row has none.
int smallestWeight(const weightRow &row)
{
    int smallest = -1;
    for (int column = 0; hasCell(row, column); ++column) {
        const double weight = cellOf(row, column);
        if (weight > 0.0 && (smallest < 0 || weight < cellOf(row, smallest)))
            smallest = column;
    }
    return smallest;
}

void layOut(const double *weights, const editedShape &shape, weightRow &row)
{
    double *cells = row.data();
    const int *influences = shape.influenceOfColumn.constData();
    for (int column = 0; hasCell(row, column); ++column) {
        if (influences[column] >= 0)
            cells[entryOf(column)] = weights[influences[column]];
    }
}

// A vertex that may have more influences than it should.
struct limitedVertex {
    int place; // in the write's vertices
    int drops; // it takes, as far as its row of the table tells, or as what is stored does
    bool isRecounted;
};

// The vertices of one write, round by round: in each of them all lose their smallest weight, those
// that lose it to the same influence by one call.
class limitRounds
{
public:
    limitRounds(shapeWriter &writer, const editedShape &shape, weightWrite &write)
        : writer_(writer), shape_(shape), write_(write), row_(write.limitedRows.first().row)
    {
        write.displaced = MObject();
        for (int place = 0; place < write.limitedRows.size(); ++place) {
            const weightRow &row = write.limitedRows.at(place).row;
            left_.append({place, influencesBeyond(write.maximum, row), false});
        }
    }

    // `old` gets the weights from before the first round. False at a weight whose joint is no
    // influence.
    bool run(cellQuestion mayChange, MDoubleArray &old, MStatus &status);

private:
    bool chooseDrops(cellQuestion mayChange);
    const weightRow &rowOf(int k);
    void readDisplaced(MDoubleArray &old);
    MObject componentOfLeft() const;

    shapeWriter &writer_;
    const editedShape &shape_;
    weightWrite &write_;
    int round_ = 0;
    QVector<limitedVertex> left_;
    QVector<QVector<int>> drops_; // vertices by influence
    MDoubleArray weights_;        // of left_, after the first round
    weightRow row_;               // as stored, of the vertex being looked at
};

// As the table shows it, then as it is stored. Where other joints than the skin cluster's hold
// weight in the table, the vertex is the only one of its write.
const weightRow &limitRounds::rowOf(int k)
{
    if (round_ == 0)
        return write_.limitedRows.at(left_.at(k).place).row;
    layOut(&weights_[static_cast<unsigned int>(k) * shape_.influenceCount], shape_, row_);
    return row_;
}

// Fills drops_, and leaves in left_ the vertices that may need another round.
bool limitRounds::chooseDrops(cellQuestion mayChange)
{
    drops_ = QVector<QVector<int>>(static_cast<int>(shape_.influenceCount));
    QVector<limitedVertex> next;
    for (int k = 0; k < left_.size(); ++k) {
        limitedVertex vertex = left_.at(k);
        const weightRow &row = rowOf(k);
        if (round_ == 1 && vertex.isRecounted) // the weights that the table rounds away as well
            vertex.drops = 1 + influencesBeyond(write_.maximum, row);
        const int column = round_ < vertex.drops ? smallestWeight(row) : -1;
        if (column < 0)
            continue;
        const cellIndex cell = {write_.limitedRows.at(vertex.place).index, column};
        if (mayChange(cell)) {
            const int influence = shape_.influenceOfColumn.at(column);
            if (influence < 0)
                return false;
            drops_[influence].append(write_.vertices.at(vertex.place));
            vertex.isRecounted = round_ == 0;
        }
        next.append(vertex);
    }
    left_ = next;
    return true;
}

MObject limitRounds::componentOfLeft() const
{
    if (left_.size() == write_.vertices.size())
        return write_.component;
    QVector<int> vertices;
    for (int k = 0; k < left_.size(); ++k)
        vertices.append(write_.vertices.at(left_.at(k).place));
    return componentOf(vertices);
}

// Of those that the first round changes: no other round changes more.
void limitRounds::readDisplaced(MDoubleArray &old)
{
    QVector<int> changed;
    for (int influence = 0; influence < drops_.size(); ++influence)
        changed += drops_.at(influence);
    if (changed.isEmpty())
        return;
    if (changed.size() < write_.vertices.size())
        write_.displaced = componentOf(changed);
    writer_.read(write_.displaced.isNull() ? write_.component : write_.displaced, old);
}

bool limitRounds::run(cellQuestion mayChange, MDoubleArray &old, MStatus &status)
{
    for (; !left_.isEmpty(); ++round_) {
        if (!chooseDrops(mayChange))
            return false;
        if (round_ == 0)
            readDisplaced(old);
        for (int influence = 0; influence < drops_.size(); ++influence) {
            if (!drops_.at(influence).isEmpty())
                status = writer_.setInfluence(componentOf(drops_.at(influence)), influence, 0.0,
                                              nullptr);
        }
        if (!left_.isEmpty() && !writer_.read(componentOfLeft(), weights_))
            return true;
    }
    return true;
}

bool always(const cellIndex &)
{
    return true;
}

} // namespace

MStatus writeMaxInfluences(preparedEdit &edit)
{
    return writeMaxInfluencesAsking(edit, always);
}

MStatus writeMaxInfluencesAsking(preparedEdit &edit, cellQuestion mayChange)
{
    edit.oldWeights.clear();
    shapeWriters writers(edit);
    if (!writers.areReady())
        return MStatus::kFailure;
    MStatus status;
    edit.oldWeights.reserve(edit.writes.size());
    for (int i = 0; i < edit.writes.size(); ++i) {
        weightWrite &write = edit.writes[i];
        edit.oldWeights.append(MDoubleArray());
        limitRounds rounds(writers.of(write), edit.shapes.at(write.shape), write);
        if (!rounds.run(mayChange, edit.oldWeights.last(), status)) {
            MGlobal::displayInfo(kNoInfluence);
            return MStatus::kFailure;
        }
    }
    return status;
}
