// SPDX-License-Identifier: Apache-2.0
// One running Maya: its scene, selection, undo queue, events and output.
//
// Everything that a Maya process would keep in globals hangs here, so that a second session in the
// same process starts from nothing. One thread.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "scene/events.h"
#include "scene/output.h"
#include "scene/scene.h"
#include "scene/selection.h"
#include "scene/undoQueue.h"

namespace host
{

class AdjacencyCache;
class ToolState;

// Called while a long file is read or written: bytes done and in all. False cancels.
using ProgressFunction = std::function<bool(std::size_t done, std::size_t total)>;

class Session
{
public:
    enum class Mode { interactive, batch, library };
    explicit Session(Mode mode = Mode::library);
    ~Session();

    Mode mode() const { return mode_; }
    Scene &scene() { return *scene_; }
    UndoQueue &undo() { return undo_; }
    Events &events() { return events_; }
    Output &output() { return output_; }
    ToolState &tools() { return *tools_; }                  // scene/toolState.h
    AdjacencyCache &adjacencies() { return *adjacencies_; } // scene/adjacencyCache.h
    ProgressFunction progress;                              // may be empty

    // --- The file -----------------------------------------------------------------------------
    // Empty for a scene that has no file yet. An absolute path otherwise.
    const std::string &fileName() const { return fileName_; }
    // The name for the next save. It holds once the scene was saved there and the name confirmed; a
    // save that fails takes it back, so that the scene is again that of the file it came from.
    void setFileName(std::string name) { fileName_ = std::move(name); }
    void confirmFileName() { confirmedFileName_ = fileName_; }
    void takeBackFileName() { fileName_ = confirmedFileName_; }
    // Replaces the scene: the undo queue is flushed, selection and hilite list emptied, and
    // "SelectionChanged" (if there was a selection) and "deleteAll" raised; then either
    // "NewSceneOpened" or "PostSceneRead" and "SceneOpened".
    enum class Replacement { newScene, openedFile };
    void replaceScene(std::unique_ptr<Scene> scene, std::string fileName, Replacement kind);
    bool isReadingFile = false;
    bool isWritingFile = false;
    bool isOpeningFile = false;
    bool isNewingFile = false;

    // --- Selection ----------------------------------------------------------------------------
    const SelectionList &selection() const { return selection_; }
    // As picked: components not merged across picks. The plain list unless order is tracked.
    const SelectionList &orderedSelection() const;
    const SelectionList &hilited() const { return hilited_; }
    bool isSelectionOrderTracked() const { return tracksOrder_; }
    void setSelectionOrderTracked(bool tracked) { tracksOrder_ = tracked; }

    enum class Adjustment { replace, toggle, add, remove, addToHead };
    // Recorded when a chunk records (the select command); raises "SelectionChanged" afterwards
    // unless an empty list stays empty. Selecting components hilites their object.
    void adjustSelection(const std::vector<SelectionItem> &items, Adjustment adjustment);
    void setHilited(SelectionList list); // recorded when a chunk records
    // After nodes were deleted: drops them from both lists, raises the event if that changed.
    void dropDeletedFromLists();

    // --- Events -------------------------------------------------------------------------------
    // Raises "NameChanged" and "DagObjectCreated" for what happened in the scene since the last
    // call, each once; called at the end of each command. Not while a file is read.
    void announceChanges();
    // "linearUnitChanged" and its like, for units that are not as in `before`.
    void raiseUnitChanges(const FileFacts &before);

    // --- Undo ---------------------------------------------------------------------------------
    // With the messages and events of Maya's undo and redo. False if the step failed.
    bool undoOnce();
    bool redoOnce();

private:
    // Keeps the way back to lists that have just been replaced.
    void recordSelection(const SelectionList &before, const SelectionList &orderedBefore);
    // Shows and raises what belongs to an undo or redo; false if it failed.
    bool reportReplay(UndoQueue::Outcome outcome, const std::string &event, const std::string &verb,
                      const std::string &name);
    void restoreSelection(const SelectionList &list, const SelectionList &ordered);

    Mode mode_;
    std::unique_ptr<Scene> scene_;
    UndoQueue undo_;
    Events events_;
    Output output_;
    std::unique_ptr<ToolState> tools_;
    std::unique_ptr<AdjacencyCache> adjacencies_;
    std::string fileName_;
    std::string confirmedFileName_;
    SelectionList selection_;
    SelectionList ordered_;
    SelectionList hilited_;
    bool tracksOrder_ = false;
    unsigned long announcedRenames_ = 0;
    unsigned long announcedDagNodes_ = 0;
};

} // namespace host
