// SPDX-License-Identifier: Apache-2.0
// A scene with the Korvex window open on it. The window and the model are found as any script would
// find them, by their class names, and driven through their slots and Qt's interfaces.
#pragma once

#include <string>
#include <vector>

#include <QAbstractTableModel>
#include <QTableView>
#include <QWidget>

#include "support/mayaSession.h"

class EditorScene : public MayaSession
{
protected:
    // Loads the plug-in and opens the window.
    EditorScene();
    // Closes it and unloads the plug-in, which thus starts anew for each test.
    ~EditorScene() override;

    // --- The scene ----------------------------------------------------------------------------
    static std::string selectedInMaya(); // "body.vtx[3] hip"
    static std::string hilitedInMaya();

    // --- The table ----------------------------------------------------------------------------
    // Selects and loads. Without names: loads what is selected.
    void load(const std::string &names = std::string());
    // Calls a slot of the model; returns nothing because none of them does.
    template <typename... Types>
    void call(const char *slot, Types... arguments)
    {
        EXPECT_TRUE(QMetaObject::invokeMethod(
            model_, slot, QArgument<Types>(QMetaType::fromType<Types>().name(), arguments)...))
            << slot;
        becomeIdle();
    }

    // Headers and cells:
    //              | hip   | knee
    //     bodyShape|       |
    //     vtx[0]   | 0.250 | 0.750
    std::string picture() const;
    std::string rowNames() const; // "bodyShape vtx[0] vtx[1]"
    std::string columnNames() const;
    std::string cellText(int row, int column) const;
    QVariant cell(int row, int column, int role) const;
    // "0 3": rows of which every cell is selected; columns that are hidden.
    std::string selectedRows() const;
    std::string hiddenColumns() const;
    void selectCells(int top, int left, int bottom, int right);
    void selectRow(int row);
    void selectColumn(int column);

    // All windows of the plug-in there are: 0 or 1.
    static std::vector<QWidget *> windows();

    QWidget *window_ = nullptr;
    QAbstractItemModel *model_ = nullptr;
    QTableView *view_ = nullptr;
};
