// SPDX-License-Identifier: Apache-2.0
#include "support/editScene.h"

#include <cmath>

void EditScene::loadBody()
{
    makeSkin("body", {"hip", "knee", "ankle"},
             {{0.5, 0.3, 0.2}, {0.25, 0.25, 0.5}, {0.334, 0.333, 0.333}, {1, 0, 0}});
    load("body");
}

bool EditScene::type(int row, int column, const std::string &text)
{
    selectCells(row, column, row, column);
    return typeIntoSelection(row, column, text);
}

bool EditScene::typeIntoSelection(int row, int column, const std::string &text)
{
    return model_->setData(model_->index(row, column), QString::fromStdString(text));
}

void EditScene::lockCell(int row, int column)
{
    selectCells(row, column, row, column);
    call("lockCell");
}

void EditScene::lockRow(int row)
{
    selectRow(row);
    call("newLockSelected");
}

void EditScene::lockColumn(int column)
{
    selectColumn(column);
    call("newLockSelected");
}

std::string EditScene::shown(int row) const
{
    std::string text;
    for (int column = 0; column < model_->columnCount(); ++column)
        text += (column > 0 ? " " : "") + cellText(row, column);
    return text;
}

std::string EditScene::shownColumn(int column) const
{
    std::string text;
    for (int row = 1; row < model_->rowCount(); ++row)
        text += (row > 1 ? " " : "") + cellText(row, column);
    return text;
}

std::string EditScene::disagreement() const
{
    std::string cells;
    for (int row = 1; row < model_->rowCount(); ++row) {
        const std::string name =
            model_->headerData(row, Qt::Vertical).toString().toStdString(); // "vtx[0]"
        const std::vector<double> held = melNumbers("skinPercent -q -v bodySkin body." + name);
        for (int column = 0; column < model_->columnCount(); ++column) {
            const QString text = model_->index(row, column).data().toString();
            const int digits = int(text.size()) - 2; // behind "0."
            // What rounding has left over is given to some cell.
            if (std::fabs(text.toDouble() - held[size_t(column)]) > 1.5 * std::pow(10, -digits))
                cells += std::to_string(row) + " " + std::to_string(column) + "\n";
        }
    }
    return cells;
}

std::string EditScene::undoItems()
{
    return melString("undoInfo -q");
}
