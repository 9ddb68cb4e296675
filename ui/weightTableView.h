// SPDX-License-Identifier: Apache-2.0
// The spreadsheet. A table view under a name of its own, so that the window and its tests can tell
// it from others; what it does comes from the model and from the window's settings.
#pragma once

#include <QTableView>

class weightTableView : public QTableView
{
    Q_OBJECT

public:
    explicit weightTableView(QWidget *parent = nullptr) : QTableView(parent) {}
};
