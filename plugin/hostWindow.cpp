// SPDX-License-Identifier: Apache-2.0
// Alone with MQtUtil.h: on Linux older releases of it bring X11's macros (None, Bool, KeyPress),
// which no Qt header survives that comes later.
#include "plugin/hostWindow.h"

#include <QWidget>

#include <maya/MQtUtil.h>

QWidget *hostWindow()
{
    return MQtUtil::mainWindow();
}
