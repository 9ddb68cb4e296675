// SPDX-License-Identifier: Apache-2.0
// Selection lists, the active list and its events.
#include <maya/MEventMessage.h>
#include <maya/MGlobal.h>
#include <maya/MItSelectionList.h>
#include <maya/MPlug.h>
#include <maya/MStringArray.h>

#include "api/boundBody.h"

namespace
{

std::string names(const MSelectionList &list)
{
    MStringArray strings;
    list.getSelectionStrings(strings);
    std::string text;
    for (unsigned int i = 0; i < strings.length(); ++i)
        text += (i ? " " : "") + std::string(strings[i].asChar());
    return text;
}

MSelectionList listOf(std::initializer_list<const char *> items)
{
    MSelectionList list;
    for (const char *item : items)
        EXPECT_TRUE(list.add(item)) << item;
    return list;
}

class selectionList : public BoundBody
{
protected:
    selectionList()
    {
        mel("select -cl");
        callback_ = MEventMessage::addEventCallback("SelectionChanged", count, &events_);
    }
    ~selectionList() override { MMessage::removeCallback(callback_); }

    static std::string active()
    {
        MSelectionList list;
        MGlobal::getActiveSelectionList(list);
        return names(list);
    }
    static void count(void *events) { ++*static_cast<int *>(events); }

    int events_ = 0;
    MCallbackId callback_;
};

} // namespace

TEST_F(selectionList, givesComponentsWithTheirShape)
{
    MSelectionList list = listOf({"body.vtx[3:5]", "body", "joint1.tx", "skinCluster1"});
    ASSERT_EQ(list.length(), 4u);
    MDagPath path;
    MObject component;
    EXPECT_TRUE(list.getDagPath(0, path, component));
    EXPECT_TRUE(path.fullPathName() == "|body|bodyShape");
    EXPECT_EQ(MFnSingleIndexedComponent(component).elementCount(), 3);
    MObject node;
    EXPECT_FALSE(list.getDependNode(0, node));
    EXPECT_TRUE(list.getDagPath(1, path, component));
    EXPECT_TRUE(component.isNull());
    EXPECT_TRUE(list.getDagPath(0, path)) << "without a place for the component";
    EXPECT_TRUE(MObject::kNullObj.isNull());
    MPlug plug;
    EXPECT_TRUE(list.getPlug(2, plug));
    EXPECT_TRUE(plug.name() == "joint1.translateX");
    EXPECT_FALSE(list.getDagPath(3, path, component));
    EXPECT_EQ(list.add("nobody"), MStatus::kInvalidParameter);
    EXPECT_EQ(list.length(), 4u);
    EXPECT_EQ(list.getDagPath(9, path), MStatus::kInvalidParameter);
}

TEST_F(selectionList, mergesOnlyWhenAsked)
{
    MSelectionList list = listOf({"body.vtx[1]"});
    list.add(shape_, vertices({2}));
    EXPECT_EQ(list.length(), 2u);
    MSelectionList merged = listOf({"body.vtx[1]"});
    merged.add(shape_, vertices({2, 7}), true);
    EXPECT_EQ(names(merged), "body.vtx[1:2] body.vtx[7]");
    EXPECT_TRUE(merged.hasItem(shape_, vertices({7})));
    EXPECT_FALSE(merged.hasItem(shape_, vertices({7, 8})));
    EXPECT_TRUE(merged.hasItemPartly(shape_, vertices({7, 8})));
    merged.merge(listOf({"body.vtx[1]", "joint1"}), MSelectionList::kRemoveFromList);
    EXPECT_EQ(names(merged), "body.vtx[2] body.vtx[7]");
}

TEST_F(selectionList, isWalkedWithAFilter)
{
    const MSelectionList list = listOf({"body", "joint1", "skinCluster1"});
    std::string found;
    for (MItSelectionList it(list, MFn::kJoint); !it.isDone(); it.next()) {
        MDagPath path;
        EXPECT_TRUE(it.getDagPath(path));
        found += path.partialPathName().asChar();
    }
    EXPECT_EQ(found, "joint1") << "its children are searched only if it does not pass itself";
    MItSelectionList mesh(list, MFn::kMesh);
    MDagPath path;
    EXPECT_TRUE(mesh.getDagPath(path));
    EXPECT_TRUE(path.fullPathName() == "|body|bodyShape");
    MItSelectionList all(list);
    all.next();
    all.next();
    EXPECT_EQ(all.itemType(), MItSelectionList::kDNselectionItem);
    MObject component;
    EXPECT_FALSE(all.getDagPath(path, component));
}

TEST_F(selectionList, becomesTheActiveOneWithOneEventAndNoUndo)
{
    const std::string before = melString("undoInfo -q");
    EXPECT_TRUE(MGlobal::setActiveSelectionList(listOf({"joint1", "body.vtx[2]"})));
    EXPECT_EQ(active(), "joint1 body.vtx[2]");
    EXPECT_EQ(events_, 1);
    MGlobal::setActiveSelectionList(listOf({"joint1", "body.vtx[2]"}));
    EXPECT_EQ(events_, 2) << "an equal list is announced too";
    EXPECT_EQ(melString("undoInfo -q"), before);
    MSelectionList hilited;
    MGlobal::getHiliteList(hilited);
    EXPECT_EQ(hilited.length(), 1u) << "components hilite their object";
    MGlobal::clearSelectionList();
    MGlobal::clearSelectionList();
    EXPECT_EQ(events_, 3) << "an empty list that stays empty is not announced";
    MGlobal::selectCommand(listOf({"joint2"}));
    MGlobal::setActiveSelectionList(listOf({"joint3"}), MGlobal::kAddToList);
    EXPECT_EQ(active(), "joint2 joint3");
}

TEST_F(selectionList, removesCallbacksOnce)
{
    MStatus status;
    EXPECT_EQ(MEventMessage::addEventCallback("NoSuchEvent", count, &events_, &status), 0u);
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    const MCallbackId id = MEventMessage::addEventCallback("Undo", count, &events_);
    EXPECT_TRUE(MMessage::removeCallback(id));
    EXPECT_FALSE(MMessage::removeCallback(id));
}
