// SPDX-License-Identifier: Apache-2.0
// Maya's window and controls as Qt objects, and conversions of strings. Stands in for Maya's header
// of this name; declarations only. mainWindow() is null in batch and library mode.
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <maya/MString.h>
#include <maya/MTypes.h>

class QWidget;
class QObject;
class QAction;

MAYA_API_NAMESPACE_ENTER

class OPENMAYAUI_EXPORT MQtUtil
{
public:
    static QWidget *mainWindow();
    static QWidget *findControl(MString controlName, const QWidget *ancestor = nullptr);
    static QWidget *findWindow(MString windowName);
    static QAction *findMenuItem(MString itemName);
    static MString fullName(const QObject *uiElement);
    static MString toMString(const QString &qstr);
    static QString toQString(const MString &mstr);
    static const char *className();
};

MAYA_API_NAMESPACE_EXIT
