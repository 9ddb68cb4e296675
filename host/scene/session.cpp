// SPDX-License-Identifier: Apache-2.0
#include "scene/session.h"

#include <unordered_set>
#include <utility>

#include "scene/adjacencyCache.h"
#include "scene/toolState.h"

namespace host
{

Session::Session(Mode mode)
    : mode_(mode), scene_(std::make_unique<Scene>()),
      tools_(std::make_unique<ToolState>(undo_, events_)),
      adjacencies_(std::make_unique<AdjacencyCache>())
{
    scene_->setRecorder(&undo_);
    announcedDagNodes_ = scene_->dagNodesCreated();
}

Session::~Session()
{
    // Steps and lists hold nodes: they go before the scene.
    undo_.flush();
    selection_.clear();
    ordered_.clear();
    hilited_.clear();
}

void Session::replaceScene(std::unique_ptr<Scene> scene, std::string fileName, Replacement kind)
{
    const bool hadSelection = !selection_.isEmpty();
    const FileFacts before = scene_->facts;
    undo_.flush();
    selection_.clear();
    ordered_.clear();
    hilited_.clear();
    scene_ = std::move(scene);
    scene_->setRecorder(&undo_);
    scene_->setModified(false);
    announcedRenames_ = scene_->renames();
    announcedDagNodes_ = scene_->dagNodesCreated();
    fileName_ = std::move(fileName);
    confirmFileName();
    if (hadSelection)
        events_.raise("SelectionChanged");
    events_.raise("deleteAll");
    raiseUnitChanges(before);
    if (kind == Replacement::newScene) {
        events_.raise("NewSceneOpened");
    } else {
        events_.raise("PostSceneRead");
        events_.raise("SceneOpened");
    }
}

void Session::raiseUnitChanges(const FileFacts &before)
{
    const struct {
        std::string FileFacts::*unit;
        const char *event;
    } units[] = {{&FileFacts::linearUnit, "linearUnitChanged"},
                 {&FileFacts::angularUnit, "angularUnitChanged"},
                 {&FileFacts::timeUnit, "timeUnitChanged"}};
    for (const auto &[unit, event] : units) {
        if (before.*unit != scene_->facts.*unit)
            events_.raise(event);
    }
}

void Session::announceChanges()
{
    if (isReadingFile)
        return;
    const bool wasRenamed =
        std::exchange(announcedRenames_, scene_->renames()) != scene_->renames();
    const bool wasCreated =
        std::exchange(announcedDagNodes_, scene_->dagNodesCreated()) != scene_->dagNodesCreated();
    if (wasRenamed)
        events_.raise("NameChanged");
    if (wasCreated)
        events_.raise("DagObjectCreated");
}

const SelectionList &Session::orderedSelection() const
{
    return tracksOrder_ ? ordered_ : selection_;
}

namespace
{

// Merges many items into a list: only one of a node that the list has is compared with the others.
class Merging
{
public:
    explicit Merging(SelectionList &list) : list_(list)
    {
        for (const SelectionItem &item : list.items())
            nodes_.insert(item.node.get());
    }
    bool hasNodeOf(const SelectionItem &item) const { return nodes_.count(item.node.get()) > 0; }
    void add(const SelectionItem &item)
    {
        if (nodes_.insert(item.node.get()).second)
            list_.append(item);
        else
            list_.merge(item);
    }

private:
    SelectionList &list_;
    std::unordered_set<const Node *> nodes_;
};

void adjust(SelectionList &list, const std::vector<SelectionItem> &items,
            Session::Adjustment adjustment)
{
    switch (adjustment) {
    case Session::Adjustment::replace:
        list.clear();
        [[fallthrough]];
    case Session::Adjustment::add: {
        Merging merging(list);
        for (const SelectionItem &item : items)
            merging.add(item);
        break;
    }
    case Session::Adjustment::remove:
        for (const SelectionItem &item : items)
            list.remove(item);
        break;
    case Session::Adjustment::toggle:
        for (const SelectionItem &item : items)
            list.toggle(item);
        break;
    case Session::Adjustment::addToHead: {
        SelectionList head;
        for (const SelectionItem &item : items)
            head.merge(item);
        for (const SelectionItem &item : list.items())
            head.merge(item);
        list = head;
        break;
    }
    }
}

// Picks stay apart in the ordered list: what is added comes as an item of its own, without the
// elements that are selected already.
void adjustOrdered(SelectionList &ordered, const std::vector<SelectionItem> &items,
                   Session::Adjustment adjustment)
{
    if (adjustment != Session::Adjustment::add && adjustment != Session::Adjustment::replace) {
        adjust(ordered, items, adjustment);
        return;
    }
    if (adjustment == Session::Adjustment::replace)
        ordered.clear();
    static const std::vector<SelectionItem> kNothing;
    SelectionList merged;
    Merging merging(merged);
    for (const SelectionItem &item : ordered.items())
        merging.add(item);
    for (SelectionItem item : items) {
        const bool isKnown = merging.hasNodeOf(item);
        for (const SelectionItem &existing : isKnown ? merged.items() : kNothing) {
            if (item.component && existing.component && existing.sameObject(item) &&
                existing.component->kind == item.component->kind)
                item.component->remove(*existing.component);
        }
        const bool isNew =
            item.component ? !item.component->elements.empty() : !isKnown || !merged.has(item);
        if (!isNew)
            continue;
        merging.add(item);
        ordered.append(std::move(item));
    }
}

} // namespace

void Session::adjustSelection(const std::vector<SelectionItem> &items, Adjustment adjustment)
{
    const SelectionList before = selection_;
    const SelectionList orderedBefore = ordered_;
    adjust(selection_, items, adjustment);
    adjustOrdered(ordered_, items, adjustment);
    // Which object Maya puts on the hilite list for picked components is a guess: their shape. The
    // hilite command puts there what it is given.
    for (const SelectionItem &item : selection_.items()) {
        if (item.component) {
            SelectionItem object = item;
            object.component.reset();
            hilited_.merge(object);
        }
    }
    recordSelection(before, orderedBefore);
    if (!before.isEmpty() || !selection_.isEmpty())
        events_.raise("SelectionChanged");
}

void Session::recordSelection(const SelectionList &before, const SelectionList &orderedBefore)
{
    undo_.record({[this, before, orderedBefore] { restoreSelection(before, orderedBefore); },
                  [this, after = selection_, orderedAfter = ordered_] {
                      restoreSelection(after, orderedAfter);
                  }});
}

void Session::restoreSelection(const SelectionList &list, const SelectionList &ordered)
{
    selection_ = list;
    ordered_ = ordered;
    events_.raise("SelectionChanged");
}

void Session::setHilited(SelectionList list)
{
    const auto set = [this](const SelectionList &value) { hilited_ = value; };
    undo_.record({[set, before = hilited_] { set(before); }, [set, list] { set(list); }});
    hilited_ = std::move(list);
}

void Session::dropDeletedFromLists()
{
    const SelectionList before = selection_;
    const SelectionList orderedBefore = ordered_;
    hilited_.dropDeleted();
    ordered_.dropDeleted();
    if (!selection_.dropDeleted())
        return;
    recordSelection(before, orderedBefore);
    events_.raise("SelectionChanged");
}

namespace
{

constexpr char kDamagedUndo[] =
    "Undo was not successful.  Damaged undo/redo information has been flushed.";

} // namespace

bool Session::undoOnce()
{
    const std::string name = undo_.undoName();
    return reportReplay(undo_.undo(), "Undo", "undo", name);
}

bool Session::redoOnce()
{
    const std::string name = undo_.redoName();
    return reportReplay(undo_.redo(), "Redo", "redo", name);
}

bool Session::reportReplay(UndoQueue::Outcome outcome, const std::string &event,
                           const std::string &verb, const std::string &name)
{
    switch (outcome) {
    case UndoQueue::Outcome::nothingLeft:
        output_.warning("There are no more commands to " + verb + ".");
        return true;
    case UndoQueue::Outcome::failed:
        output_.error(kDamagedUndo);
        return false;
    case UndoQueue::Outcome::done:
        break;
    }
    output_.send(MessageKind::history, "// " + event + ": " + name);
    events_.raise(event);
    return true;
}

} // namespace host
