// SPDX-License-Identifier: Apache-2.0
// The program `korvex`.
#include <QApplication>
#include <QTimer>
#include <cstdio>

#include "api/process.h"
#include "app/batch.h"
#include "app/mainWindow.h"
#include "app/options.h"

using host::Process;
using host::app::MainWindow;
using host::app::Options;

namespace
{

void nameApplication()
{
    QCoreApplication::setApplicationName("Korvex");
    QCoreApplication::setOrganizationName("Korvex");
    QCoreApplication::setApplicationVersion(KORVEX_VERSION);
}

int runInBatch(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    nameApplication();
    const Options options = host::app::readOptions();
    const int exitCode =
        host::app::runBatch(Process::start(host::Session::Mode::batch, false), options);
    Process::stop();
    return exitCode;
}

// The window that a picture is wanted of: the weight editor if it is open.
QWidget *windowToShow(MainWindow &mainWindow)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle() == "Korvex")
            return window;
    }
    return &mainWindow;
}

bool writePicture(MainWindow &mainWindow, const QString &file)
{
    QApplication::processEvents();
    if (windowToShow(mainWindow)->grab().save(file))
        return true;
    std::fprintf(stderr, "korvex: cannot write the picture %s\n", qPrintable(file));
    return false;
}

int runInWindow(int argumentCount, char **arguments)
{
    QApplication application(argumentCount, arguments);
    nameApplication();
    QApplication::setStyle("Fusion");
    const Options options = host::app::readOptions();
    Process &maya = Process::start(host::Session::Mode::interactive, false);
    int exitCode = 0;
    {
        MainWindow window(maya);
        window.show();
        bool succeeded = options.file.isEmpty() || window.openScene(options.file);
        if (options.opensEditor && window.openWeightEditor())
            window.loadSkinnedMeshes();
        host::app::runScripts(maya, options);
        if (!options.picture.isEmpty()) {
            succeeded = writePicture(window, options.picture) && succeeded;
            exitCode = succeeded ? 0 : 1;
        } else if (!maya.interpreter().quitRequested) {
            exitCode = QApplication::exec();
        }
    }
    Process::stop();
    return exitCode;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    return host::app::wantsBatch(argumentCount, arguments) ? runInBatch(argumentCount, arguments)
                                                           : runInWindow(argumentCount, arguments);
}
