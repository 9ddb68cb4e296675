// SPDX-License-Identifier: Apache-2.0
#include "support/editorScene.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include <QApplication>
#include <QHeaderView>
#include <QItemSelectionModel>

namespace
{

const char kPlugin[] = KORVEX_PLUGIN_DIR "/korvex.so";

QAbstractItemModel *modelOf(const QWidget &window)
{
    for (QObject *child : window.findChildren<QObject *>()) {
        if (child->inherits("weightTableModel"))
            return qobject_cast<QAbstractItemModel *>(child);
    }
    return nullptr;
}

std::string joined(const std::vector<std::string> &words)
{
    std::string text;
    for (const std::string &word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

using textTable = std::vector<std::vector<std::string>>;

// Left-aligned columns; no line ends in blanks.
std::string aligned(const textTable &table)
{
    std::string text;
    for (const std::vector<std::string> &row : table) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            std::size_t width = 0;
            for (const std::vector<std::string> &other : table)
                width = std::max(width, other[column].size());
            line += (column > 0 ? " | " : "") + row[column] +
                    std::string(width - row[column].size(), ' ');
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
    return text;
}

std::string text(const QVariant &value)
{
    return value.toString().toStdString();
}

} // namespace

EditorScene::EditorScene()
{
    mel(std::string("loadPlugin \"") + kPlugin + "\"; korvexCmd");
    const std::vector<QWidget *> opened = windows();
    if (opened.size() != 1)
        throw std::runtime_error("korvexCmd opened " + std::to_string(opened.size()) + " windows");
    window_ = opened.front();
    model_ = modelOf(*window_);
    view_ = window_->findChild<QTableView *>();
}

EditorScene::~EditorScene()
{
    mel("file -f -new; unloadPlugin korvex");
}

void EditorScene::makeSkin(const std::string &mesh, const std::vector<std::string> &joints,
                           const std::vector<std::vector<double>> &rows)
{
    std::ostringstream script;
    script.precision(17);
    for (const std::string &joint : joints) {
        if (melString("objExists " + joint) == "0")
            script << "select -cl; joint -n " << joint << ";\n";
    }
    const std::string skin = mesh + "Skin";
    script << "polyPlane -sx " << rows.size() / 2 - 1 << " -sy 1 -n " << mesh << ";\n"
           << "skinCluster -tsb -mi 5 -n " << skin << ' ' << joined(joints) << ' ' << mesh << ";\n"
           << "setAttr " << skin << ".nw 0;\n";
    for (std::size_t v = 0; v < rows.size(); ++v) {
        for (std::size_t i = 0; i < joints.size(); ++i)
            script << "setAttr " << skin << ".wl[" << v << "].w[" << i << "] " << rows[v][i]
                   << ";\n";
    }
    script << "setAttr " << skin << ".nw 1; select -cl;";
    mel(script.str());
}

std::string EditorScene::selectedInMaya()
{
    return melStrings("ls -sl");
}

std::string EditorScene::hilitedInMaya()
{
    return melStrings("ls -hl");
}

void EditorScene::load(const std::string &names)
{
    if (!names.empty())
        mel("select -r " + names);
    call("refreshSkinClusterData");
}

void EditorScene::call(const char *slot)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(model_, slot)) << slot;
}

void EditorScene::call(const char *slot, bool argument)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(model_, slot, Q_ARG(bool, argument))) << slot;
}

void EditorScene::call(const char *slot, int argument)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(model_, slot, Q_ARG(int, argument))) << slot;
}

void EditorScene::call(const char *slot, double argument)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(model_, slot, Q_ARG(double, argument))) << slot;
}

void EditorScene::call(const char *slot, double first, bool second)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(model_, slot, Q_ARG(double, first), Q_ARG(bool, second)))
        << slot;
}

void EditorScene::call(const char *slot, double first, int second)
{
    EXPECT_TRUE(QMetaObject::invokeMethod(model_, slot, Q_ARG(double, first), Q_ARG(int, second)))
        << slot;
}

std::string EditorScene::picture() const
{
    textTable table(1, {""});
    for (int column = 0; column < model_->columnCount(); ++column)
        table[0].push_back(text(model_->headerData(column, Qt::Horizontal)));
    for (int row = 0; row < model_->rowCount(); ++row) {
        table.push_back({text(model_->headerData(row, Qt::Vertical))});
        for (int column = 0; column < model_->columnCount(); ++column)
            table.back().push_back(cellText(row, column));
    }
    return aligned(table);
}

std::string EditorScene::rowNames() const
{
    std::vector<std::string> names;
    for (int row = 0; row < model_->rowCount(); ++row)
        names.push_back(text(model_->headerData(row, Qt::Vertical)));
    return joined(names);
}

std::string EditorScene::columnNames() const
{
    std::vector<std::string> names;
    for (int column = 0; column < model_->columnCount(); ++column)
        names.push_back(text(model_->headerData(column, Qt::Horizontal)));
    return joined(names);
}

std::string EditorScene::cellText(int row, int column) const
{
    return text(cell(row, column, Qt::DisplayRole));
}

QVariant EditorScene::cell(int row, int column, int role) const
{
    return model_->index(row, column).data(role);
}

std::string EditorScene::selectedRows() const
{
    std::vector<std::string> rows;
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (view_->selectionModel()->isRowSelected(row, QModelIndex()))
            rows.push_back(std::to_string(row));
    }
    return joined(rows);
}

std::string EditorScene::hiddenColumns() const
{
    std::vector<std::string> columns;
    for (int column = 0; column < model_->columnCount(); ++column) {
        if (view_->isColumnHidden(column))
            columns.push_back(text(model_->headerData(column, Qt::Horizontal)));
    }
    return joined(columns);
}

void EditorScene::selectCells(int top, int left, int bottom, int right)
{
    view_->selectionModel()->select(
        QItemSelection(model_->index(top, left), model_->index(bottom, right)),
        QItemSelectionModel::ClearAndSelect);
}

void EditorScene::selectRow(int row)
{
    selectCells(row, 0, row, model_->columnCount() - 1);
}

void EditorScene::selectColumn(int column)
{
    selectCells(0, column, model_->rowCount() - 1, column);
}

std::vector<QWidget *> EditorScene::windows()
{
    std::vector<QWidget *> found;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("korvexWindow"))
            found.push_back(widget);
    }
    return found;
}
