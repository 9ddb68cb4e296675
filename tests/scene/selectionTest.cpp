// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "scene/sampleScene.h"

using namespace host;

namespace
{

std::string namesOf(const SelectionList &list)
{
    std::string text;
    for (const SelectionItem &item : list.items()) {
        for (const std::string &name : item.names())
            text += (text.empty() ? "" : " ") + name;
    }
    return text;
}

class selection : public testing::Test
{
protected:
    selection() { buildSampleScene(session_); }

    void pick(const char *pattern, Session::Adjustment adjustment = Session::Adjustment::add)
    {
        session_.adjustSelection(requireName(session_.scene(), pattern), adjustment);
    }

    std::string selected() const { return namesOf(session_.selection()); }

    Session session_;
};

} // namespace

TEST_F(selection, findsWhatNamesAndPatternsMean)
{
    const struct {
        const char *pattern, *names;
    } cases[] = {
        {"hip", "hip"},
        {"h*", "hardwareRenderingGlobals hardwareRenderGlobals hyperGraphInfo hyperGraphLayout "
               "left|hand right|hand left|hand|handShape right|hand|handShape hip"},
        {"?nee", "knee"},
        {"right|h*", "right|hand"},
        {"*control", ""}, // the root namespace only
        {"rig:*", "rig:control"},
        {"body.vtx[3:5]", "body.vtx[3:5]"},
        {"bodyShape.vtx[3]", "body.vtx[3]"},
        {"body.vtx[*]", "body.vtx[0:7]"},
        {"body.e[11]", "body.e[11]"},
        {"body.f[5]", "body.f[5]"},
        {"hip.tx", "hip.translateX"},
        {"nob*", ""},
    };
    for (const auto &c : cases) {
        SelectionList list;
        for (const SelectionItem &item : matchName(session_.scene(), c.pattern))
            list.append(item);
        EXPECT_EQ(namesOf(list), c.names) << c.pattern;
    }
}

TEST_F(selection, forgetsWhatIsDeletedAndTellsOnce)
{
    int events = 0;
    session_.events().add("SelectionChanged", [&events] { ++events; });
    session_.adjustSelection({}, Session::Adjustment::replace);
    EXPECT_EQ(events, 0) << "an empty list stays empty";
    pick("skin");
    pick("body.vtx[0]");
    session_.scene().deleteNode(session_.scene().node("body"));
    session_.dropDeletedFromLists();
    session_.dropDeletedFromLists();
    EXPECT_EQ(selected(), "skin");
    EXPECT_TRUE(session_.hilited().isEmpty());
    EXPECT_EQ(events, 3);
}
