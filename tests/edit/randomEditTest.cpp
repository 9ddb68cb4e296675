// SPDX-License-Identifier: Apache-2.0
//
// Hundreds of random typed edits, undone and redone, beside twins of the meshes on which
// skinPercent writes the same, a value at a time.

#include <cmath>
#include <random>
#include <sstream>

#include <QItemSelectionModel>

#include <maya/MGlobal.h>

#include "model/weightTableModel.h"
#include "support/editScene.h"

namespace
{

const int kVertices = 6;

struct twinWrite {
    std::string twin; // mesh
    int vertex;
    std::string joint;
    double value;
    std::string heldJoints; // as "b d "
};

// An edit and what it displaced when it was last done.
struct twinEdit {
    std::vector<twinWrite> writes;
    std::vector<std::vector<double>> displaced;
};

struct twinMesh {
    std::string name, mode;
    std::vector<std::string> joints;
    std::string twin() const { return name + "Twin"; }
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
        static const std::vector<std::string> joints = {"a", "b", "c", "d"};
        mel("file -f -new; select -cl");
        meshes_.clear();
        loaded_.clear();
        for (int m = 1 + pick(3); m > 0; --m) {
            const auto first = joints.begin() + pick(2);
            const twinMesh mesh = {
                "mesh" + std::to_string(m), std::to_string(pick(3)), {first, first + 2 + pick(2)}};
            std::vector<std::vector<double>> weights;
            for (int v = 0; v < kVertices; ++v)
                weights.push_back(randomWeights(mesh.joints.size()));
            makeSkin(mesh.name, mesh.joints, weights);
            makeSkin(mesh.twin(), mesh.joints, weights);
            mel("setAttr " + mesh.name + "Skin.nw " + mesh.mode); // the editor switches 0 to 1
            mel("setAttr " + mesh.twin() + "Skin.nw " + (mesh.mode == "2" ? "2" : "1"));
            meshes_.push_back(mesh);
            loaded_ += ' ' + mesh.name;
        }
        load(loaded_);
        isFiltering_ = pick(2) == 0;
        call("toggleFilter", isFiltering_);
        for (int i = pick(4); i > 0; --i) {
            const int row = pick(model_->rowCount());
            const int column = pick(model_->columnCount());
            if (!cellText(row, column).empty())
                lockCell(row, column);
        }
        takeErrors();
    }

    std::string joint(int column) const
    {
        return model_->headerData(column, Qt::Horizontal).toString().toStdString();
    }

    // The other locked cells of the row.
    std::string heldBeside(const QModelIndex &edited) const
    {
        std::string held;
        for (int column = 0; column < model_->columnCount(); ++column) {
            const QModelIndex index = edited.sibling(edited.row(), column);
            if (index != edited && !index.data().toString().isEmpty() &&
                !index.flags().testFlag(Qt::ItemIsEditable))
                held += joint(column) + ' ';
        }
        return held;
    }

    void select()
    {
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
        for (const QModelIndex &index : view_->selectionModel()->selectedIndexes()) {
            const std::string before = index.data().toString().toStdString();
            if (before.empty())
                continue;
            const double weight = std::stod(before);
            const double operand = std::stod(text[1] == '=' ? text.substr(2) : text);
            const double value = text[1] != '='   ? operand
                                 : text[0] == '+' ? weight + operand
                                 : text[0] == '-' ? weight - operand
                                                  : weight * operand;
            edit.writes.push_back({meshes_[size_t(index.row() / (kVertices + 1))].twin(),
                                   index.row() % (kVertices + 1) - 1, joint(index.column()),
                                   std::min(1.0, std::max(0.0, value)), heldBeside(index)});
        }
        return edit;
    }

    // Off the undo queue, which is the editor's.
    static void writeTwin(const std::string &twin, int vertex,
                          const std::vector<std::string> &joints, const std::vector<double> &values,
                          const std::string &held)
    {
        std::ostringstream script;
        script.precision(17);
        const auto hold = [&](const char *isHeld) {
            std::istringstream names(held);
            for (std::string name; names >> name;)
                script << "setAttr " << name << ".liw " << isHeld << ';';
        };
        hold("1");
        script << "skinPercent";
        for (size_t i = 0; i < joints.size(); ++i)
            script << " -tv " << joints[i] << ' ' << values[i];
        script << ' ' << twin << "Skin " << twin << ".vtx[" << vertex << "];";
        hold("0");
        EXPECT_TRUE(MGlobal::executeCommand(script.str().c_str())) << script.str();
    }
    static void redo(twinEdit &edit)
    {
        edit.displaced.clear();
        for (const twinWrite &one : edit.writes) {
            edit.displaced.push_back(exactWeights(one.vertex, one.twin));
            writeTwin(one.twin, one.vertex, {one.joint}, {one.value}, one.heldJoints);
        }
    }
    void undo(const twinEdit &edit) const
    {
        for (size_t i = 0; i < edit.writes.size(); ++i) {
            for (const twinMesh &mesh : meshes_) {
                if (mesh.twin() == edit.writes[i].twin)
                    writeTwin(mesh.twin(), edit.writes[i].vertex, mesh.joints, edit.displaced[i],
                              "");
            }
        }
    }

    void expectTwin(const std::string &what) const
    {
        for (const twinMesh &mesh : meshes_) {
            EXPECT_EQ(melString("getAttr " + mesh.name + "Skin.nw"), mesh.mode);
            for (int v = 0; v < kVertices; ++v) {
                const std::vector<double> weights = exactWeights(v, mesh.name);
                const std::vector<double> expected = exactWeights(v, mesh.twin());
                for (size_t i = 0; i < weights.size(); ++i)
                    ASSERT_NEAR(weights[i], expected[i], 1e-9)
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
        for (int column = 0; column < fresh.columnCount(); ++column) {
            bool hasWeight = false;
            for (int row = 0; row < fresh.rowCount(); ++row) {
                hasWeight = hasWeight || (isVertexRow(fresh.weights().rows.at(row)) &&
                                          cellOf(fresh.weights().rows.at(row), column) > 0.0);
                for (const int role : {Qt::DisplayRole, Qt::BackgroundRole, Qt::ForegroundRole}) {
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

TEST_F(randomEdits, doWhatSkinPercentDoes)
{
    const std::vector<std::string> texts = {"0",     "1",     "0.25",    "0.333",  "0.5",
                                            "0.9",   "+=0.1", "+=0.5",   "-=0.2",  "-=1",
                                            "*=0.5", "*=3",   "+=0.003", "0.1235", "-=0.001"};
    const int kEdits = 16;
    for (unsigned seed = 20240607; seed < 20240607 + 25; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random_.seed(seed);
        makeScene();
        std::vector<twinEdit> edits;
        for (int e = 0; e < kEdits; ++e) {
            const std::string text = texts[size_t(pick(int(texts.size())))];
            select();
            twinEdit edit = expectedEdit(text);
            const QModelIndex first = view_->selectionModel()->selectedIndexes().first();
            ASSERT_TRUE(typeIntoSelection(first.row(), first.column(), text));
            if (edit.writes.empty())
                continue;
            redo(edit);
            edits.push_back(edit);
            expectTwin("edit " + std::to_string(e) + " " + text);
            if (HasFatalFailure())
                return;
        }
        for (const bool isRedo : {false, true, false}) {
            for (size_t i = 0; i < edits.size(); ++i) {
                twinEdit &edit = edits[isRedo ? i : edits.size() - 1 - i];
                mel(isRedo ? "redo" : "undo");
                isRedo ? redo(edit) : undo(edit);
                const std::string what = (isRedo ? "redo " : "undo ") + std::to_string(i);
                expectTwin(what);
                expectFreshLoad(what);
                if (HasFatalFailure())
                    return;
            }
        }
    }
}
