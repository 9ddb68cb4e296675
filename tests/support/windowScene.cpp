// SPDX-License-Identifier: Apache-2.0
#include "support/windowScene.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSlider>

WindowScene::WindowScene()
{
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_));
}

void WindowScene::enter(const char *name, const QString &text)
{
    QLineEdit &edit = control<QLineEdit>(name);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QTest::keyClicks(&edit, text);
    QTest::keyClick(&edit, Qt::Key_Return);
}

std::string WindowScene::textOf(const char *edit)
{
    return control<QLineEdit>(edit).text().toStdString();
}

void WindowScene::click(const char *button)
{
    QTest::mouseClick(&control<QAbstractButton>(button), Qt::LeftButton);
}

void WindowScene::clickCell(int row, int column, Qt::KeyboardModifiers modifiers)
{
    const QPoint centre = view_->visualRect(model_->index(row, column)).center();
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, modifiers, centre);
}

void WindowScene::clickHeader(Qt::Orientation orientation, int section)
{
    QHeaderView &header =
        *(orientation == Qt::Vertical ? view_->verticalHeader() : view_->horizontalHeader());
    const int at = header.sectionViewportPosition(section) + header.sectionSize(section) / 2;
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier,
                      orientation == Qt::Vertical ? QPoint(5, at) : QPoint(at, 5));
}

void WindowScene::chooseOperation(int operation)
{
    control<QComboBox>("floodOperation").setCurrentIndex(operation);
}

bool WindowScene::isLocked(int row, int column) const
{
    return !(model_->flags(model_->index(row, column)) & Qt::ItemIsEditable);
}

void WindowScene::dragTo(const char *name, int step)
{
    QSlider &slider = control<QSlider>(name);
    slider.setSliderDown(true);
    slider.setSliderPosition(step);
    slider.setSliderDown(false);
}

int WindowScene::stepOf(const char *slider)
{
    return control<QSlider>(slider).value();
}

void WindowScene::typeKeys(const QString &keys, Qt::Key confirm)
{
    view_->setFocus();
    for (const QChar key : keys)
        QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
    QTest::keyClick(QApplication::focusWidget(), confirm);
    QTest::qWait(1);
}
