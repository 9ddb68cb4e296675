// SPDX-License-Identifier: Apache-2.0
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

#include "model/messages.h"
#include "support/windowScene.h"

class contextMenu : public WindowScene
{
protected:
    contextMenu() { loadBody(); }

    // The menu that a right click on the cell opens.
    QMenu *menuAt(int row, int column)
    {
        const QPoint point = view_->visualRect(model_->index(row, column)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, point,
                                view_->viewport()->mapToGlobal(point));
        QApplication::sendEvent(view_->viewport(), &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    void choose(QMenu &menu, const char *text)
    {
        for (QAction *action : menu.actions()) {
            if (action->text() == QLatin1String(text))
                QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                                  menu.actionGeometry(action).center());
        }
    }
};

TEST_F(contextMenu, locksAndUnlocksTheSelectedCells)
{
    selectCells(1, 0, 2, 0);
    QMenu *menu = menuAt(2, 0);
    ASSERT_NE(menu, nullptr);
    // Its height may be another one: Qt keeps a menu on the screen.
    const QPoint point = view_->visualRect(model_->index(2, 0)).center();
    EXPECT_NEAR(menu->x(), view_->viewport()->mapToGlobal(point).x(), 2);
    choose(*menu, "Lock");
    EXPECT_TRUE(isLocked(1, 0) && isLocked(2, 0));
    EXPECT_FALSE(isLocked(1, 1));
    selectCells(2, 0, 2, 0);
    EXPECT_EQ(menuAt(2, 0), menu) << "the same menu, each time";
    choose(*menu, "Unlock");
    EXPECT_TRUE(isLocked(1, 0) && !isLocked(2, 0));
    EXPECT_EQ(menu->actions().size(), 2);
}
