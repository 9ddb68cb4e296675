// SPDX-License-Identifier: Apache-2.0
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#else
#include <QtGui/QApplication>
#include <QtGui/QMainWindow>
#endif
// QAction moved from QtWidgets to QtGui with Qt 6; the header without its module is in all.
#include <QAction>

#include <maya/MQtUtil.h>

#include "api/process.h"

namespace
{

// The widget of that object name below `ancestor`, or below any window when there is none.
QWidget *findWidget(const QString &name, const QWidget *ancestor)
{
    if (ancestor)
        return ancestor->objectName() == name ? const_cast<QWidget *>(ancestor)
                                              : ancestor->findChild<QWidget *>(name);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (int i = 0; i < windows.size(); ++i)
        if (QWidget *found = findWidget(name, windows.at(i)))
            return found;
    return nullptr;
}

// "field" of "window|form|field".
QString lastPart(const MString &fullName)
{
    return MQtUtil::toQString(fullName).section(QLatin1Char('|'), -1);
}

} // namespace

const char *MQtUtil::className()
{
    return "MQtUtil";
}

QWidget *MQtUtil::mainWindow()
{
    const host::Process *process = host::Process::current();
    return process ? process->mainWindow : nullptr;
}

QWidget *MQtUtil::findControl(MString controlName, const QWidget *ancestor)
{
    return qApp ? findWidget(lastPart(controlName), ancestor) : nullptr;
}

QWidget *MQtUtil::findWindow(MString windowName)
{
    QWidget *found = findControl(windowName);
    return found && found->isWindow() ? found : nullptr;
}

QAction *MQtUtil::findMenuItem(MString itemName)
{
    QWidget *window = mainWindow();
    return window ? window->findChild<QAction *>(lastPart(itemName)) : nullptr;
}

MString MQtUtil::fullName(const QObject *uiElement)
{
    QStringList names;
    for (const QObject *step = uiElement; step; step = step->parent())
        if (!step->objectName().isEmpty())
            names.prepend(step->objectName());
    return toMString(names.join(QLatin1String("|")));
}

MString MQtUtil::toMString(const QString &qstr)
{
    const QByteArray utf8 = qstr.toUtf8();
    return MString(utf8.constData(), utf8.size());
}

QString MQtUtil::toQString(const MString &mstr)
{
    return QString::fromUtf8(mstr.asUTF8(), static_cast<int>(mstr.length()));
}
