// SPDX-License-Identifier: Apache-2.0
// The program `korvex`.
#include <QApplication>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "api/process.h"
#include "app/batch.h"
#include "app/mainWindow.h"
#include "app/options.h"
#include "app/steps.h"

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

int runInBatch(int argumentCount, char **arguments, const Options &options)
{
    QCoreApplication application(argumentCount, arguments);
    const int exitCode =
        host::app::runBatch(Process::start(host::Session::Mode::batch, false), options);
    Process::stop();
    return exitCode;
}

// What the user does comes from here: of what an event's work throws, nothing may reach Qt.
class Application : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject *receiver, QEvent *event) override
    {
        Process *maya = Process::current();
        bool isDone = false;
        const auto work = [&] { isDone = QApplication::notify(receiver, event); };
        if (!maya)
            work();
        else
            host::app::succeeds(*maya, work);
        return isDone;
    }
};

// What Qt says while it looks for a display; when it finds none it would abort.
void reportNoDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    std::fputs("korvex: no display: use --batch or --picture\n", stderr);
    std::_Exit(1);
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
    std::fprintf(stderr, "korvex: cannot write the picture %s\n", file.toUtf8().constData());
    return false;
}

// Who waits for a picture sees no Script Editor.
void printProblems(Process &maya)
{
    maya.session().output().addListener([](const std::string &text, host::MessageKind kind) {
        if (kind == host::MessageKind::warning || kind == host::MessageKind::error)
            host::app::printMessage(text, kind, stderr);
    });
}

bool doSteps(Process &maya, MainWindow &window, const Options &options)
{
    if (!options.file.isEmpty() && !window.openScene(options.file))
        return false;
    if (options.opensEditor) {
        if (!window.openWeightEditor())
            return false;
        window.loadSkinnedMeshes();
    }
    return host::app::runScripts(maya, options);
}

int runWindow(Process &maya, const Options &options)
{
    const bool drawsPicture = !options.picture.isEmpty();
    if (drawsPicture)
        printProblems(maya);
    MainWindow window(maya);
    window.show();
    bool succeeded = false;
    host::app::succeeds(maya, [&] { succeeded = doSteps(maya, window, options); });
    if (drawsPicture)
        return succeeded && writePicture(window, options.picture) ? 0 : 1;
    return maya.interpreter().quitRequested ? maya.interpreter().exitCode : QApplication::exec();
}

int runInWindow(int argumentCount, char **arguments, const Options &options)
{
    // A picture needs no display, and looks the same with and without one.
    const bool choosesPlatform =
        options.choosesPlatform || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (!options.picture.isEmpty() && !choosesPlatform)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtMessageHandler usual = qInstallMessageHandler(reportNoDisplay);
    Application application(argumentCount, arguments);
    qInstallMessageHandler(usual);
    QApplication::setStyle("Fusion");
    const int exitCode =
        runWindow(Process::start(host::Session::Mode::interactive, false), options);
    Process::stop();
    return exitCode;
}

} // namespace

int main(int argumentCount, char **arguments)
{
#ifdef SIGXFSZ
    // A file that grows beyond what the user may write is an error of saving, not the end.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    nameApplication();
    const Options options = host::app::readOptions(argumentCount, arguments);
    return options.isBatch ? runInBatch(argumentCount, arguments, options)
                           : runInWindow(argumentCount, arguments, options);
}
