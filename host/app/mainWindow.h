// SPDX-License-Identifier: Apache-2.0
// The program's window: menus, Outliner, Script Editor, and the weight editor opened from it.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "app/options.h"

class QAction;

namespace host
{
class Process;
}

namespace host::app
{

class Outliner;
class RecentFiles;
class ScriptEditor;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Becomes the main window that plug-ins find through the API.
    explicit MainWindow(Process &process);
    ~MainWindow() override;

    // True if the scene was opened; otherwise the Script Editor says why.
    bool openScene(const QString &path);
    // Loads the plug-in if need be and shows its window.
    bool openWeightEditor();
    // Selects every skinned mesh of the scene and loads it into the weight editor.
    void loadSkinnedMeshes();
    // Runs MEL as if it had been typed: echoed, one undo item, with its result.
    void runMel(const QString &mel);

protected:
    // Asks about unsaved changes.
    void closeEvent(QCloseEvent *event) override;

private slots:
    void newScene();
    void chooseScene();
    bool saveScene();
    bool saveSceneAs();
    void undo();
    void redo();
    void openWeightEditorOnScene();
    void openRecent(const QString &path);
    // Runs what waits for an idle moment, then brings title, actions and Outliner in line.
    void followSession();

private:
    void buildFileMenu();
    void buildEditMenu();
    void buildWindowMenu();
    void buildDocks();
    void connectSession();
    bool mayLoseChanges();
    bool showProgress(std::size_t done, std::size_t total);
    // Runs MEL and tells whether it worked.
    bool tryMel(const QString &mel);

    Process &process_;
    Outliner *outliner_ = nullptr;
    ScriptEditor *scriptEditor_ = nullptr;
    RecentFiles *recentFiles_ = nullptr;
    QAction *undoAction_ = nullptr;
    QAction *redoAction_ = nullptr;
    QTimer followTimer_;
    unsigned long outputListener_ = 0;
    unsigned long selectionListener_ = 0;
};

} // namespace host::app
