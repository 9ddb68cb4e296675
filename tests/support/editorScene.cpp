// SPDX-License-Identifier: Apache-2.0
#include "support/editorScene.h"

#include <algorithm>
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
