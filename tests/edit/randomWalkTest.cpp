// SPDX-License-Identifier: Apache-2.0
//
// All operations in any order, undone and redone in between: what must hold after each step,
// whatever came before.

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <random>

#include <QItemSelectionModel>

#include "support/componentTags.h"
#include "support/editScene.h"

namespace
{

const std::vector<std::string> kMeshes = {"body", "hat"};
const int kVertices = 12;
const double kNoise = 1e-9;

typedef std::vector<std::vector<double>> tableWeights; // a row per vertex of all meshes

} // namespace

class randomWalk : public EditScene
{
protected:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
    double pickWeight() { return pick(21) / 20.0; }

    std::vector<std::vector<double>> randomRows(int joints)
    {
        std::vector<std::vector<double>> rows;
        for (int v = 0; v < kVertices; ++v) {
            std::vector<double> row(size_t(joints), 0.0);
            double left = 1.0;
            for (int i = 0; i + 1 < joints; ++i) {
                row[size_t(i)] = left * pick(5) / 4.0;
                left -= row[size_t(i)];
            }
            row.back() = left;
            rows.push_back(row);
        }
        return rows;
    }

    void makeScene(unsigned seed)
    {
        random_.seed(seed);
        mel("file -f -new; select -cl");
        makeSkin("body", {"a", "b", "c", "d"}, randomRows(4));
        makeSkin("hat", {"c", "d", "e"}, randomRows(3));
        removeDeformerSet("hat"); // as Maya binds today, beside one bound as it did before
        load("body hat");
        call("toggleFilter", pick(2) == 0);
    }

    static tableWeights weightsInScene()
    {
        tableWeights all;
        for (const std::string &mesh : kMeshes) {
            for (int v = 0; v < kVertices; ++v)
                all.push_back(exactWeights(v, mesh));
        }
        return all;
    }

    // The table's vertex row behind a row of weightsInScene(), and its columns behind the
    // influences there.
    static int tableRow(size_t vertex) { return int(vertex) + 1 + int(vertex) / kVertices; }
    int columnOf(size_t vertex, size_t influence) const
    {
        static const std::vector<std::vector<std::string>> names = {{"a", "b", "c", "d"},
                                                                    {"c", "d", "e"}};
        for (int column = 0; column < model_->columnCount(); ++column) {
            if (model_->headerData(column, Qt::Horizontal).toString().toStdString() ==
                names[vertex / size_t(kVertices)][influence])
                return column;
        }
        return -1;
    }
    double shownWeight(size_t vertex, size_t influence) const
    {
        return cell(tableRow(vertex), columnOf(vertex, influence), Qt::DisplayRole)
            .toString()
            .toDouble();
    }

    // Cells of one column, so that no vertex is written to twice in an edit: those end between the
    // two when they are undone.
    void selectSomeCells()
    {
        const int column = pick(model_->columnCount());
        const int top = 1 + pick(model_->rowCount() - 1);
        selectCells(top, column, std::min(model_->rowCount() - 1, top + pick(4)), column);
    }
    void selectSomething()
    {
        switch (pick(4)) {
        case 0:
            view_->clearSelection();
            break;
        case 1:
            selectRow(pick(model_->rowCount()));
            break;
        case 2:
            selectColumn(pick(model_->columnCount()));
            break;
        default:
            selectSomeCells();
        }
    }

    void smooth() { call("applySmoothSkinWeights", pickWeight() * 0.3, 1 + pick(3)); }
    int undoCount() const { return std::stoi(undoItems()); }
    void undoSteps()
    {
        for (int i = pick(4); i > 0 && undoCount() > firstItem_; --i)
            mel("undo");
    }

    // The name of the step that was taken.
    std::string step()
    {
        const auto type = [this] {
            static const char *const texts[] = {"0",     "1",     "0.25", "0.333",
                                                "+=0.1", "-=0.2", "*=0.5"};
            selectSomeCells();
            const QModelIndex first = view_->selectionModel()->selectedIndexes().first();
            typeIntoSelection(first.row(), first.column(), texts[pick(int(std::size(texts)))]);
        };
        const auto selectSomeColumn = [this] { selectColumn(pick(model_->columnCount())); };
        const auto drag = [this] { call("dragSlider", pickWeight() - 0.5, pick(2) == 0); };
        const std::pair<const char *, std::function<void()>> steps[] = {
            {"type", type},
            {"type", type},
            {"drag",
             [&] {
                 selectSomeCells();
                 drag();
             }},
            {"drag column",
             [&] {
                 selectSomeColumn();
                 drag();
             }},
            {"limit",
             [&] {
                 selectSomething();
                 call("setMaxValue", 1 + pick(3));
                 call("applyMaxInfluence");
             }},
            {"flood",
             [&] {
                 selectSomeColumn();
                 call("replaceValue", pickWeight());
             }},
            {"smooth all",
             [&] {
                 view_->clearSelection();
                 smooth();
             }},
            {"smooth vertices",
             [&] {
                 selectSomeCells();
                 smooth();
             }},
            {"paint smooth",
             [&] {
                 pick(2) == 0 ? selectSomeColumn() : selectSomeCells();
                 call("applySkinPaintSmooth", pickWeight());
             }},
            {"round", [&] { call("applyPrecision"); }},
            {"lock",
             [&] {
                 selectSomething();
                 call(pick(3) == 0 ? "newLockSelected" : "lockCell");
             }},
            {"unlock",
             [&] {
                 static const char *const unlocks[] = {"newUnlockAll", "newUnlockSelected",
                                                       "unlockCell"};
                 selectSomething();
                 call(unlocks[pick(3)]);
             }},
            {"undo", [&] { undoSteps(); }},
            {"undo and redo",
             [&] {
                 undoSteps();
                 for (int i = pick(4); i > 0 && melString("undoInfo -q -redoName") != ""; --i)
                     mel("redo");
             }},
        };
        const auto &chosen = steps[pick(int(std::size(steps)))];
        chosen.second();
        return chosen.first;
    }

    // Weights add up to one, and the table shows them: of each row one cell may hold what rounding
    // left over, up to a unit per joint.
    void expectSound(const tableWeights &weights) const
    {
        const double unit = 0.001;
        for (size_t v = 0; v < weights.size(); ++v) {
            SCOPED_TRACE("vertex " + std::to_string(v));
            double sum = 0.0;
            int off = 0;
            for (size_t i = 0; i < weights[v].size(); ++i) {
                const double weight = weights[v][i];
                const double difference = std::abs(shownWeight(v, i) - weight);
                sum += weight;
                off += difference > 0.52 * unit ? 1 : 0;
                ASSERT_TRUE(weight >= 0.0 && weight <= 1.0) << weight;
                ASSERT_LE(difference, double(weights[v].size()) * unit) << "influence " << i;
            }
            ASSERT_NEAR(sum, 1.0, kNoise);
            ASSERT_LE(off, 1);
        }
    }

    // Which cells are locked otherwise than by their joint, by vertex and influence. A joint's lock
    // is Maya's, and any edit that holds joints ends with them free.
    std::vector<std::vector<bool>> lockedCells() const
    {
        std::vector<std::vector<bool>> locked;
        for (size_t v = 0; v < 2 * size_t(kVertices); ++v) {
            locked.emplace_back();
            for (size_t i = 0; i < (v < size_t(kVertices) ? 4u : 3u); ++i) {
                const QModelIndex index = model_->index(tableRow(v), columnOf(v, i));
                const bool isJointLocked =
                    model_->headerData(index.column(), Qt::Horizontal, Qt::BackgroundRole)
                        .isValid();
                locked.back().push_back(!index.flags().testFlag(Qt::ItemIsEditable) &&
                                        !isJointLocked);
            }
        }
        return locked;
    }

    // A drag holds each locked cell; floods and paint smoothing pass over vertices that are locked
    // as a whole.
    void expectLocked(const std::string &step, const std::vector<std::vector<bool>> &locked,
                      const tableWeights &before, const tableWeights &after) const
    {
        const bool isDrag = step == "drag" || step == "drag column";
        const bool passesRowsOver = step == "flood" || step == "paint smooth";
        for (size_t v = 0; v < before.size(); ++v) {
            const bool isWholeRow =
                std::find(locked[v].begin(), locked[v].end(), false) == locked[v].end();
            for (size_t i = 0; i < before[v].size(); ++i) {
                if (!(isDrag && locked[v][i]) && !(passesRowsOver && isWholeRow))
                    continue;
                ASSERT_NEAR(after[v][i], before[v][i], kNoise)
                    << "vertex " << v << ", influence " << i;
            }
        }
    }

    std::mt19937 random_;
    int firstItem_ = 0;
};

TEST_F(randomWalk, keepsWeightsTableAndUndoSound)
{
    const unsigned kSeed = 20241103;
    const int kWalks = 12;
    const int kSteps = 60;
    std::map<std::string, int> changes; // how often each kind of step changed weights
    for (int w = 0; w < kWalks; ++w) {
        SCOPED_TRACE("seed " + std::to_string(kSeed + unsigned(w)));
        makeScene(kSeed + unsigned(w));
        const tableWeights start = weightsInScene();
        firstItem_ = undoCount();
        for (int s = 0; s < kSteps; ++s) {
            const tableWeights before = weightsInScene();
            const std::vector<std::vector<bool>> locked = lockedCells();
            const std::string name = step();
            SCOPED_TRACE("step " + std::to_string(s) + ", " + name);
            const tableWeights after = weightsInScene();
            changes[name] += after == before ? 0 : 1;
            expectSound(after);
            expectLocked(name, locked, before, after);
            if (HasFatalFailure())
                return;
        }
        while (undoCount() > firstItem_)
            mel("undo");
        const tableWeights end = weightsInScene();
        for (size_t v = 0; v < start.size(); ++v) {
            for (size_t i = 0; i < start[v].size(); ++i)
                ASSERT_NEAR(end[v][i], start[v][i], kNoise) << "vertex " << v << ", all undone";
        }
        expectSound(end);
        takeErrors();
        takeInfos();
    }
    for (const char *name : {"type", "drag", "drag column", "limit", "flood", "smooth all",
                             "smooth vertices", "paint smooth", "round", "undo", "undo and redo"})
        EXPECT_GT(changes[name], 5) << name;
}
