// SPDX-License-Identifier: Apache-2.0
// How the edits of weights lie on Maya's undo queue, so that the editor can tell whether its last
// action is still what Maya would undo, or redo, next.
//
// Maya does not let a plug-in look at the queue, but every command on it is told when it is done,
// undone and dropped: each reports here. What other commands lie between the edits is not known;
// the name of the queue's top item tells that. An action is what one use of a control did, which
// may be several edits. Needs neither Maya nor a widget.
#pragma once

#include <QVector>

class editTrail
{
public:
    enum effect { changedWeights, changedNothing };

    // A number for a new edit, greater than those before. No two edits of a process have the same,
    // whatever trail they report to.
    static int newEdit();

    // Edits done from now on belong to one action, until the call is balanced; calls nest.
    void openAction();
    void closeAction();

    // An edit was done, for the first time or again. Without effect it still lies on the queue.
    void done(int edit, effect what);
    void undone(int edit);
    // Maya has dropped the edit. If it was the last one done, it is undone by nobody any more:
    // those below it no longer fit the scene and count as not belonging to any action.
    void dropped(int edit);

    // The number of the newest edit that has changed weights, undone by now or not; 0 before the
    // first.
    int newestEffective() const { return newestEffective_; }

    // How many edits the action has that would be undone (redone) next, all of them effective. 0 if
    // the next edit belongs to none.
    int undoableCount() const { return countOnTop(done_); }
    int redoableCount() const { return countOnTop(undone_); }

private:
    struct entry {
        int edit;
        int action; // 0: none
        bool hasEffect;
    };
    typedef QVector<entry> stack; // the next one is last

    static int placeOf(int edit, const stack &entries);
    static int countOnTop(const stack &entries);
    static entry take(int place, stack &entries);

    stack done_;
    stack undone_;
    int openActions_ = 0;
    int lastAction_ = 0;
    int newestEffective_ = 0;
};

// Belongs to one action what is done while it lives.
class editAction
{
public:
    explicit editAction(editTrail &trail) : trail_(trail) { trail_.openAction(); }
    ~editAction() { trail_.closeAction(); }

private:
    editAction(const editAction &);            // not copied
    editAction &operator=(const editAction &); // not assigned

    editTrail &trail_;
};
