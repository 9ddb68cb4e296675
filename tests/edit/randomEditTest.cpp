// SPDX-License-Identifier: Apache-2.0
//
// Hundreds of random typed edits, undone and redone, beside a second reckoning of each.

#include <cmath>
#include <memory>
#include <random>

#include <QHeaderView>
#include <QItemSelectionModel>

#include <maya/MGlobal.h>

#include "edit/naiveWrite.h"
#include "model/weightTableModel.h"
#include "support/editScene.h"

namespace
{

const std::vector<std::string> kJoints = {"a", "b", "c", "d"};
const int kVertices = 6;

struct twinMesh {
    std::string name;
    int mode;
    std::vector<int> joints; // in kJoints, by influence
    std::vector<std::vector<double>> weights;
};

struct twinWrite {
    int mesh, vertex, influence;
    double value;
    std::vector<bool> held;
};

// An edit and what it displaced when it was last done.
struct twinEdit {
    std::vector<twinWrite> writes;
    std::vector<std::vector<double>> displaced;
};

} // namespace

class randomEdits : public EditScene
{
protected:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    std::vector<double> randomWeights(size_t count)
    {
        std::vector<double> weights(count, 0.0);
        double left = 1.0;
        for (size_t i = 0; i + 1 < count; ++i) {
            weights[i] = std::round(left * pick(4) / 3.0 * 1000.0) / 1000.0;
            left -= weights[i];
        }
        weights.back() = left < 1e-9 ? 0.0 : left;
        return weights;
    }

    void makeScene()
    {
        mel("file -f -new; select -cl");
        meshes_.clear();
        const int count = 1 + pick(3);
        for (int m = 0; m < count; ++m) {
            twinMesh mesh = {"mesh" + std::to_string(m), pick(3), {}, {}};
            std::vector<std::string> names;
            const int first = pick(2);
            for (int j = first; j < first + 2 + pick(2); ++j) {
                if (j < int(kJoints.size())) {
                    mesh.joints.push_back(j);
                    names.push_back(kJoints[size_t(j)]);
                }
            }
            for (int v = 0; v < kVertices; ++v)
                mesh.weights.push_back(randomWeights(names.size()));
            makeSkin(mesh.name, names, mesh.weights);
            mel("setAttr " + mesh.name + "Skin.nw " + std::to_string(mesh.mode));
            meshes_.push_back(mesh);
        }
        loaded_.clear();
        for (const twinMesh &mesh : meshes_)
            loaded_ += (loaded_.empty() ? "" : " ") + mesh.name;
        load(loaded_);
        isFiltering_ = pick(2) == 0;
        call("toggleFilter", isFiltering_);
        for (int i = pick(4); i > 0; --i) {
            const int row = pick(model_->rowCount());
            const int column = pick(model_->columnCount());
            selectCells(row, column, row, column);
            if (!cell(row, column, Qt::DisplayRole).toString().isEmpty())
                call("lockCell");
        }
        takeErrors();
    }

    // The influence that a column is on a mesh; -1 for none.
    int influenceOf(int column, const twinMesh &mesh) const
    {
        const std::string name =
            model_->headerData(column, Qt::Horizontal).toString().toStdString();
        for (size_t i = 0; i < mesh.joints.size(); ++i) {
            if (kJoints[size_t(mesh.joints[i])] == name)
                return int(i);
        }
        return -1;
    }

    // Held: the other locked cells of the row that belong to the mesh.
    std::vector<bool> heldBeside(int row, int edited, const twinMesh &mesh) const
    {
        std::vector<bool> held(mesh.joints.size(), false);
        for (int column = 0; column < model_->columnCount(); ++column) {
            const int influence = influenceOf(column, mesh);
            if (influence >= 0 && column != edited &&
                !model_->flags(model_->index(row, column)).testFlag(Qt::ItemIsEditable))
                held[size_t(influence)] = true;
        }
        return held;
    }

    void select()
    {
        selectCells(0, 0, 0, 0);
        view_->clearSelection();
        for (int i = 1 + pick(3); i > 0; --i) {
            const int top = pick(model_->rowCount());
            const int left = pick(model_->columnCount());
            const int bottom = std::min(model_->rowCount() - 1, top + pick(3));
            const int right = std::min(model_->columnCount() - 1, left + pick(2));
            view_->selectionModel()->select(
                QItemSelection(model_->index(top, left), model_->index(bottom, right)),
                QItemSelectionModel::Select);
        }
    }

    twinEdit expectedEdit(const std::string &text) const
    {
        twinEdit edit;
        const QModelIndexList indexes = view_->selectionModel()->selectedIndexes();
        for (const QModelIndex &index : indexes) {
            const std::string before = index.data().toString().toStdString();
            if (before.empty())
                continue;
            const int m = index.row() / (kVertices + 1);
            const double weight = std::stod(before);
            const double operand = std::stod(text[1] == '=' ? text.substr(2) : text);
            const double value = text[1] != '='   ? operand
                                 : text[0] == '+' ? weight + operand
                                 : text[0] == '-' ? weight - operand
                                                  : weight * operand;
            const twinMesh &mesh = meshes_[size_t(m)];
            edit.writes.push_back({m, index.row() % (kVertices + 1) - 1,
                                   influenceOf(index.column(), mesh),
                                   std::min(1.0, std::max(0.0, value)),
                                   heldBeside(index.row(), index.column(), mesh)});
        }
        return edit;
    }

    std::vector<double> actual(const twinMesh &mesh, int vertex) const
    {
        return melNumbers("skinPercent -q -v " + mesh.name + "Skin " + mesh.name + ".vtx[" +
                          std::to_string(vertex) + "]");
    }

    // `isUnknown` becomes true where weights are made up.
    void write(twinMesh &mesh, int vertex, const std::map<int, double> &given,
               const std::vector<bool> &held, bool *isUnknown)
    {
        std::vector<double> &weights = mesh.weights[size_t(vertex)];
        const naiveVertex after = naiveWrite(weights, given, held, mesh.mode == 0 ? 1 : mesh.mode);
        weights = after.weights;
        *isUnknown = *isUnknown || after.isUnknown;
    }

    bool redo(twinEdit &edit)
    {
        bool isUnknown = false;
        edit.displaced.clear();
        for (const twinWrite &one : edit.writes) {
            twinMesh &mesh = meshes_[size_t(one.mesh)];
            edit.displaced.push_back(mesh.weights[size_t(one.vertex)]);
            write(mesh, one.vertex, {{one.influence, one.value}}, one.held, &isUnknown);
        }
        return !isUnknown;
    }

    bool undo(const twinEdit &edit)
    {
        bool isUnknown = false;
        for (size_t i = 0; i < edit.writes.size(); ++i) {
            const twinWrite &one = edit.writes[i];
            std::map<int, double> given;
            for (size_t n = 0; n < edit.displaced[i].size(); ++n)
                given[int(n)] = edit.displaced[i][n];
            write(meshes_[size_t(one.mesh)], one.vertex, given,
                  std::vector<bool>(given.size(), false), &isUnknown);
        }
        return !isUnknown;
    }

    void expectTwin(const std::string &what) const
    {
        for (const twinMesh &mesh : meshes_) {
            EXPECT_EQ(melString("getAttr " + mesh.name + "Skin.nw"), std::to_string(mesh.mode));
            for (int v = 0; v < kVertices; ++v) {
                const std::vector<double> weights = actual(mesh, v);
                for (size_t i = 0; i < weights.size(); ++i)
                    ASSERT_NEAR(weights[i], mesh.weights[size_t(v)][i], 1e-9)
                        << what << ": " << mesh.name << ".vtx[" << v << "], mode " << mesh.mode;
            }
        }
    }

    // Another table loads the same, and must look the same.
    void expectFreshLoad(const std::string &what)
    {
        weightTableModel fresh(nullptr);
        MGlobal::executeCommand(("select -r " + loaded_).c_str());
        fresh.refreshSkinClusterData();
        fresh.checkLockAttr();
        takeErrors();
        ASSERT_EQ(model_->rowCount(), fresh.rowCount());
        const int roles[] = {Qt::DisplayRole, Qt::BackgroundRole, Qt::ForegroundRole};
        for (int column = 0; column < fresh.columnCount(); ++column) {
            bool hasWeight = false;
            for (int row = 0; row < fresh.rowCount(); ++row) {
                hasWeight = hasWeight || (isVertexRow(fresh.weights().rows.at(row)) &&
                                          cellOf(fresh.weights().rows.at(row), column) > 0.0);
                for (const int role : roles) {
                    ASSERT_EQ(cell(row, column, role), fresh.index(row, column).data(role))
                        << what << ": cell " << row << ", " << column << ", role " << role;
                    ASSERT_EQ(model_->headerData(row, Qt::Vertical, role),
                              fresh.headerData(row, Qt::Vertical, role))
                        << what << ": header of row " << row << ", role " << role;
                }
            }
            EXPECT_EQ(view_->isColumnHidden(column), isFiltering_ && !hasWeight) << what;
        }
    }

    std::mt19937 random_;
    std::vector<twinMesh> meshes_;
    std::string loaded_;
    bool isFiltering_ = false;
};

TEST_F(randomEdits, agreeWithASecondReckoning)
{
    const char *const kTexts[] = {"0",     "1",     "0.25",    "0.333",  "0.5",
                                  "0.9",   "+=0.1", "+=0.5",   "-=0.2",  "-=1",
                                  "*=0.5", "*=3",   "+=0.003", "0.1235", "-=0.001"};
    const unsigned kSeed = 20240607;
    const int kScenes = 25;
    const int kEdits = 16;
    for (int s = 0; s < kScenes; ++s) {
        random_.seed(kSeed + unsigned(s));
        makeScene();
        std::vector<twinEdit> edits;
        for (int e = 0; e < kEdits; ++e) {
            const std::string text = kTexts[pick(int(std::size(kTexts)))];
            const std::string what = "seed " + std::to_string(kSeed + unsigned(s)) + ", edit " +
                                     std::to_string(e) + " " + text;
            select();
            twinEdit edit = expectedEdit(text);
            const std::vector<twinMesh> before = meshes_;
            if (!redo(edit)) { // Maya would make up weights
                meshes_ = before;
                continue;
            }
            const QModelIndexList indexes = view_->selectionModel()->selectedIndexes();
            ASSERT_TRUE(typeIntoSelection(indexes.first().row(), indexes.first().column(), text));
            if (edit.writes.empty())
                continue;
            edits.push_back(edit);
            expectTwin(what);
            if (HasFatalFailure())
                return;
        }
        bool isKnown = true; // a redo of what undo left otherwise may have weights made up too
        for (int pass = 0; pass < 3 && isKnown; ++pass) {
            for (size_t i = 0; i < edits.size() && isKnown; ++i) {
                twinEdit &edit = edits[pass == 1 ? i : edits.size() - 1 - i];
                const std::string what = "seed " + std::to_string(kSeed + unsigned(s)) + ", pass " +
                                         std::to_string(pass) + ", step " + std::to_string(i);
                mel(pass == 1 ? "redo" : "undo");
                isKnown = pass == 1 ? redo(edit) : undo(edit);
                if (isKnown)
                    expectTwin(what);
                expectFreshLoad(what);
                if (HasFatalFailure())
                    return;
            }
        }
    }
}
