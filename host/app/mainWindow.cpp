// SPDX-License-Identifier: Apache-2.0
#include "app/mainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>

#include "api/process.h"
#include "app/outliner.h"
#include "app/recentFiles.h"
#include "app/scriptEditor.h"
#include "app/steps.h"
#include "scene/meshGeometry.h"

namespace host::app
{

namespace
{

// How often title, actions and Outliner look for changes, in milliseconds.
constexpr int kFollowInterval = 100;
// A file that takes longer than this shows its progress.
constexpr int kProgressDelay = 600;
constexpr int kOutlinerWidth = 300; // pixels

const char kSceneFilter[] = "Maya ASCII (*.ma)";

QString shown(const std::string &text)
{
    return QString::fromStdString(text);
}

} // namespace

MainWindow::MainWindow(Process &process) : process_(process)
{
    buildDocks();
    buildFileMenu();
    buildEditMenu();
    buildWindowMenu();
    connectSession();
    resize(900, 600);
    followSession();
    process_.mainWindow = this;
    connect(&followTimer_, &QTimer::timeout, this, &MainWindow::followSession);
    followTimer_.start(kFollowInterval);
}

MainWindow::~MainWindow()
{
    // The plug-ins' windows are children of this one: they go before Qt would delete them.
    Session &session = process_.session();
    session.undo().flush();
    process_.plugins().unloadAll();
    session.progress = nullptr;
    session.output().removeListener(outputListener_);
    session.events().remove(selectionListener_);
    process_.mainWindow = nullptr;
}

void MainWindow::buildDocks()
{
    scriptEditor_ = new ScriptEditor(this);
    setCentralWidget(scriptEditor_);
    connect(scriptEditor_, &ScriptEditor::commandEntered, this, &MainWindow::runMel);

    outliner_ = new Outliner(process_.session(), this);
    connect(outliner_, &Outliner::selectionPicked, this, &MainWindow::runMel);
    auto *dock = new QDockWidget(tr("Outliner"), this);
    dock->setObjectName("outlinerDock");
    dock->setWidget(outliner_);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    resizeDocks({dock}, {kOutlinerWidth}, Qt::Horizontal);
}

void MainWindow::buildFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    const auto add = [this, menu](const QString &text, QKeySequence::StandardKey key, auto slot) {
        QAction *action = menu->addAction(text);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, slot);
    };
    add(tr("&New Scene"), QKeySequence::New, &MainWindow::newScene);
    add(tr("&Open Scene..."), QKeySequence::Open, &MainWindow::chooseScene);
    recentFiles_ = new RecentFiles(this);
    menu->addMenu(recentFiles_);
    connect(recentFiles_, &RecentFiles::chosen, this, &MainWindow::openRecent);
    menu->addSeparator();
    add(tr("&Save Scene"), QKeySequence::Save, &MainWindow::saveScene);
    add(tr("Save Scene &As..."), QKeySequence::SaveAs, &MainWindow::saveSceneAs);
    menu->addSeparator();
    add(tr("&Quit"), QKeySequence::Quit, &MainWindow::close);
}

void MainWindow::buildEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    undoAction_ = menu->addAction(tr("&Undo"), this, &MainWindow::undo);
    undoAction_->setShortcut(QKeySequence::Undo);
    redoAction_ = menu->addAction(tr("&Redo"), this, &MainWindow::redo);
    redoAction_->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
}

void MainWindow::buildWindowMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Windows"));
    QAction *editor =
        menu->addAction(tr("&Weight Editor"), this, &MainWindow::openWeightEditorOnScene);
    editor->setShortcut(QKeySequence("Ctrl+W"));
    menu->addAction(tr("&Clear Script Editor"), scriptEditor_, &ScriptEditor::clear);
}

void MainWindow::connectSession()
{
    Session &session = process_.session();
    outputListener_ = session.output().addListener(
        [this](const std::string &text, MessageKind kind) { scriptEditor_->show(text, kind); });
    selectionListener_ =
        session.events().add("SelectionChanged", [this] { outliner_->followSelection(); });
    session.progress = [this](std::size_t done, std::size_t total) {
        return showProgress(done, total);
    };
}

bool MainWindow::showProgress(std::size_t done, std::size_t total)
{
    static constexpr int kSteps = 1000;
    auto *dialog = findChild<QProgressDialog *>();
    if (!dialog) {
        dialog = new QProgressDialog(tr("Reading the scene..."), tr("Cancel"), 0, kSteps, this);
        dialog->setWindowModality(Qt::WindowModal);
        dialog->setMinimumDuration(kProgressDelay);
        dialog->setAutoReset(false);
    }
    dialog->setValue(total == 0 ? 0 : int(double(done) / double(total) * kSteps));
    const bool goesOn = !dialog->wasCanceled();
    if (!goesOn || done >= total)
        delete dialog;
    return goesOn;
}

void MainWindow::followSession()
{
    process_.runIdleCommands();
    Session &session = process_.session();
    outliner_->followScene();
    const QString file = shown(session.fileName());
    setWindowTitle((file.isEmpty() ? tr("untitled") : QFileInfo(file).fileName()) + "[*]" +
                   QString::fromUtf8(" \xE2\x80\x93 Korvex"));
    setWindowModified(session.scene().isModified());
    const UndoQueue &queue = session.undo();
    undoAction_->setText(queue.undoCount() == 0 ? tr("&Undo")
                                                : tr("&Undo ") + shown(queue.undoName()));
    undoAction_->setEnabled(queue.undoCount() > 0);
    redoAction_->setText(queue.redoCount() == 0 ? tr("&Redo")
                                                : tr("&Redo ") + shown(queue.redoName()));
    redoAction_->setEnabled(queue.redoCount() > 0);
    if (process_.interpreter().quitRequested)
        QCoreApplication::exit(process_.interpreter().exitCode);
}

bool MainWindow::tryMel(const QString &mel)
{
    mel::RunOptions options;
    options.echo = true;
    options.undo = true;
    options.resultPrefix = true;
    const bool succeeded =
        process_.interpreter().run(mel.toUtf8().toStdString(), options).succeeded;
    followSession();
    return succeeded;
}

void MainWindow::runMel(const QString &mel)
{
    tryMel(mel);
}

bool MainWindow::mayLoseChanges()
{
    if (!process_.session().scene().isModified())
        return true;
    const auto answer = QMessageBox::question(
        this, tr("Korvex"), tr("Save the changes to the scene?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && saveScene());
}

void MainWindow::newScene()
{
    if (mayLoseChanges())
        tryMel("file -f -new;");
}

void MainWindow::chooseScene()
{
    if (!mayLoseChanges())
        return;
    const QString folder = QFileInfo(shown(process_.session().fileName())).path();
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Scene"), folder, kSceneFilter);
    if (!path.isEmpty())
        openScene(path);
}

void MainWindow::openRecent(const QString &path)
{
    if (mayLoseChanges())
        openScene(path);
}

bool MainWindow::openScene(const QString &path)
{
    const QString mel = "file -f -o " + melQuoted(path) + ";"; // what a script would do
    process_.session().output().send(MessageKind::history, mel.toStdString());
    const bool opened = app::openScene(process_, path);
    delete findChild<QProgressDialog *>();
    followSession();
    if (opened && QFileInfo::exists(path)) // standard input can't be opened again
        recentFiles_->add(path);
    return opened;
}

bool MainWindow::saveScene()
{
    if (process_.session().fileName().empty())
        return saveSceneAs();
    return tryMel("file -f -save;");
}

bool MainWindow::saveSceneAs()
{
    QString path = QFileDialog::getSaveFileName(this, tr("Save Scene"),
                                                shown(process_.session().fileName()), kSceneFilter);
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).suffix().isEmpty())
        path += ".ma";
    const bool saved = tryMel("file -rename " + melQuoted(path) + "; file -f -save;");
    if (saved)
        recentFiles_->add(path);
    return saved;
}

void MainWindow::undo()
{
    tryMel("undo;");
}

void MainWindow::redo()
{
    tryMel("redo;");
}

bool MainWindow::openWeightEditor()
{
    return tryMel("loadPlugin -quiet korvex;") && tryMel("korvexCmd;");
}

void MainWindow::openWeightEditorOnScene()
{
    openWeightEditor();
}

void MainWindow::loadSkinnedMeshes()
{
    QStringList shapes;
    for (const NodePtr &node : process_.session().scene().nodes()) {
        if (!node->isA("skinCluster"))
            continue;
        for (const NodePtr &shape : deformedShapes(*node)) {
            if (shape->isA("mesh"))
                shapes.append(melQuoted(shown(DagPath::first(shape).parent().fullName())));
        }
    }
    if (shapes.isEmpty())
        return;
    runMel("select -r " + shapes.join(' ') + ";");
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *load = window->findChild<QAbstractButton *>("LoadComponent"))
            load->click();
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayLoseChanges());
}

} // namespace host::app
