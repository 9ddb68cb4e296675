// SPDX-License-Identifier: Apache-2.0
// The example character with its body in the table, and the pictures that are taken meanwhile.
#pragma once

#include <QImage>

#include "support/windowScene.h"

class GuideScene : public WindowScene
{
protected:
    GuideScene();

    // The window from a control down to and with the table's first rows; without a control from the
    // top.
    QImage shot(const char *firstControl = nullptr);
    // Writes them side by side to "NAME.png" in the folder that KORVEX_GUIDE_PICTURES names.
    static void save(const char *name, const QList<QImage> &shots);
};
