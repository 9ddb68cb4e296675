// SPDX-License-Identifier: Apache-2.0
// Which events Maya raises for what is done.
#include <maya/MEventMessage.h>
#include <maya/MGlobal.h>
#include <maya/MStringArray.h>

#include <deque>

#include "support/sceneFile.h"

namespace
{

class raisedEvents : public SceneFileTest
{
protected:
    raisedEvents()
    {
        MStringArray names;
        MEventMessage::getEventNames(names);
        for (unsigned int i = 0; i < names.length(); ++i) {
            listeners_.push_back({names[i].asChar(), &raised_});
            ids_.push_back(MEventMessage::addEventCallback(names[i], note, &listeners_.back()));
        }
    }
    ~raisedEvents() override
    {
        for (const MCallbackId id : ids_)
            MMessage::removeCallback(id);
    }
    std::string by(const std::string &script)
    {
        raised_.clear();
        mel(script);
        return raised_;
    }

private:
    struct Listener {
        std::string name;
        std::string *raised;
    };
    static void note(void *data)
    {
        const auto &listener = *static_cast<Listener *>(data);
        *listener.raised += (listener.raised->empty() ? "" : " ") + listener.name;
    }
    std::deque<Listener> listeners_;
    std::vector<MCallbackId> ids_;
    std::string raised_;
};

} // namespace

TEST_F(raisedEvents, areThoseOfWhatWasDone)
{
    const std::string file = write("inches.ma", "currentUnit -l inch -a degree -t pal;\n"
                                                "createNode joint -n \"hip\";\n");
    const std::pair<std::string, const char *> cases[] = {
        {"createNode -ss transform -n a", "DagObjectCreated"},
        {"createNode -ss transform -n b -p a; createNode -ss skinCluster -n c", "DagObjectCreated"},
        {"createNode -ss skinCluster -n d", ""},
        {"rename a top1", "NameChanged"},
        {"rename c c", ""},
        {"undo", "Undo NameChanged"},
        {"redo", "Redo NameChanged"},
        {"select -r b", "SelectionChanged"},
        {"select -cl; select -cl", "SelectionChanged"},
        {"setToolTo moveSuperContext", "ToolChanged PostToolChanged"},
        {"selectType -joint off", "SelectTypeChanged"},
        {"currentUnit -t ntsc", "timeUnitChanged"},
        {"currentUnit -t ntsc", ""},
        {"file -import \"" + file + "\"", "SceneImported DagObjectCreated"},
        {"file -f -open \"" + file + "\"",
         "deleteAll linearUnitChanged timeUnitChanged PostSceneRead SceneOpened"},
        {"file -f -new", "deleteAll linearUnitChanged timeUnitChanged NewSceneOpened"},
    };
    for (const auto &[script, expected] : cases)
        EXPECT_EQ(by(script), expected) << script;
    MStatus status;
    EXPECT_EQ(MEventMessage::addEventCallback(
                  "timeChanged", [](void *) {}, nullptr, &status),
              0u)
        << "there is no time that could change";
}
