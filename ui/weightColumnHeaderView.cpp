// SPDX-License-Identifier: Apache-2.0
#include "ui/weightColumnHeaderView.h"

#include <QPainter>

weightColumnHeaderView::weightColumnHeaderView(Qt::Orientation orientation, QWidget *parent)
    : QHeaderView(orientation, parent)
{
    // As the text sees it, before it is turned: left is the side of the table.
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setTextElideMode(Qt::ElideNone);
}

void weightColumnHeaderView::paintSection(QPainter *painter, const QRect &rect,
                                          int logicalIndex) const
{
    painter->save();
    // To the lower edge of the section: bottom() is the row of pixels above it.
    painter->translate(QPointF(rect.left(), rect.bottom() + 1));
    painter->rotate(-90.0);
    const QRect lyingDown(QPoint(0, 0),
                          QPoint(rect.bottom() - rect.top(), rect.right() - rect.left()));
    QHeaderView::paintSection(painter, lyingDown, logicalIndex);
    painter->restore();
}

QSize weightColumnHeaderView::sectionSizeFromContents(int logicalIndex) const
{
    QSize size = QHeaderView::sectionSizeFromContents(logicalIndex);
    size.transpose();
    return size;
}
