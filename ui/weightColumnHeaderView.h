// SPDX-License-Identifier: Apache-2.0
// A header that writes its titles upwards: many narrow columns fit beside one another, and a long
// title makes the header taller, not its column wider. Titles start at the table, stand in the
// middle of their column and are never cut short.
#pragma once

#include <QHeaderView>

class weightColumnHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    explicit weightColumnHeaderView(Qt::Orientation orientation, QWidget *parent = nullptr);

protected:
    // QHeaderView.
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;
    QSize sectionSizeFromContents(int logicalIndex) const override;
};
