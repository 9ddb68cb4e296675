// SPDX-License-Identifier: Apache-2.0
#include "guide/guideScene.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>

namespace
{

const int kRowsShown = 8;
const int kGap = 12; // pixels between two shots
const int kMargin = 8;

} // namespace

GuideScene::GuideScene()
{
    mel("file -f -o \"" KORVEX_EXAMPLES_DIR "/two_mesh_character.ma\"; select -r body");
    click("LoadComponent");
}

QImage GuideScene::shot(const char *firstControl)
{
    QCoreApplication::processEvents();
    const QWidget *first =
        firstControl ? &control<QWidget>(firstControl) : static_cast<QWidget *>(nullptr);
    const int top = first ? first->mapTo(window_, QPoint()).y() - kMargin : 0;
    const QRect lastRow = view_->visualRect(model_->index(kRowsShown, 0));
    const int bottom = view_->viewport()->mapTo(window_, lastRow.bottomLeft()).y() + 1;
    return window_->grab(QRect(0, top, window_->width(), bottom - top)).toImage();
}

void GuideScene::save(const char *name, const QList<QImage> &shots)
{
    const QByteArray folder = qgetenv("KORVEX_GUIDE_PICTURES");
    if (folder.isEmpty())
        return;
    QSize size(-kGap, 0);
    for (const QImage &shot : shots)
        size = QSize(size.width() + kGap + shot.width(), qMax(size.height(), shot.height()));
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    int left = 0;
    for (const QImage &shot : shots) {
        painter.drawImage(left, 0, shot);
        left += shot.width() + kGap;
    }
    painter.end();
    const QString file = QDir(QFile::decodeName(folder)).filePath(QLatin1String(name) + ".png");
    EXPECT_TRUE(picture.save(file)) << file.toStdString();
}
