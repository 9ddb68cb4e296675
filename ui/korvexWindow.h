// SPDX-License-Identifier: Apache-2.0
// The editor window: the table of weights and the controls around it.
//
// The window owns the model and the view, checks what the user enters, and hands it to the model's
// slots, which do the work. It is built once, shown and hidden from then on, and deleted with the
// plug-in or with Maya's main window.
#pragma once

#include <QItemSelection>
#include <QMainWindow>
#include <QModelIndex>

class QLayout;
class weightColumnHeaderView;
class weightTableModel;
class weightTableView;

class korvexWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit korvexWindow(QWidget *parent);

    // The window keeps it.
    weightTableModel *model() const { return model_; }

public slots:
    void loadWeightData();
    void toggleFilter(bool on);
    void toggleHilight(bool on);

    // What follows a click on a cell, a change of the selected cells, a click on a header.
    void tableCellSelected(const QModelIndex &index);
    void tableSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void columnHeaderClicked(int column);
    void rowHeaderClicked(int row);

private:
    // korvexWindowLayout.cpp: a region of the window each.
    void buildTable();
    void buildColumnHeader();
    void connectTable();
    void buildOptionsMenu();
    QLayout *buildButtons();
    void assembleCentralWidget(QLayout *buttons);

    weightTableView *tableView_ = nullptr;
    weightTableModel *model_ = nullptr;
    weightColumnHeaderView *columnHeader_ = nullptr;
};
