// SPDX-License-Identifier: Apache-2.0
#include "support/editScene.h"

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

std::string EditScene::undoItems()
{
    return melString("undoInfo -q");
}
