// SPDX-License-Identifier: Apache-2.0
// Dynamic attributes: made, added, filled.
#include <maya/MFnCompoundAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnStringArrayData.h>
#include <maya/MFnStringData.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPlug.h>
#include <maya/MStringArray.h>

#include "api/boundBody.h"

namespace
{

class dynamicAttribute : public BoundBody
{
protected:
    MStatus addString(const char *name, bool isArray)
    {
        MFnTypedAttribute attribute;
        const MObject object = attribute.create(name, name, MFnData::kString, MObject::kNullObj);
        attribute.setArray(isArray);
        return skin_.addAttribute(object);
    }
    MStatus addStringArray(const char *name)
    {
        MFnTypedAttribute attribute;
        return skin_.addAttribute(
            attribute.create(name, name, MFnData::kStringArray, MObject::kNullObj));
    }
    // A multi of compounds with one child, a multi of strings.
    void addCells()
    {
        MFnTypedAttribute joints;
        const MObject child =
            joints.create("cellJoints", "cellJoints", MFnData::kString, MObject::kNullObj);
        joints.setArray(true);
        MFnCompoundAttribute cells;
        const MObject compound = cells.create("cells", "cells");
        EXPECT_TRUE(cells.addChild(child));
        cells.setArray(true);
        EXPECT_TRUE(skin_.addAttribute(compound));
        EXPECT_FALSE(skin_.addAttribute(child)) << "a child comes with its parent";
    }
};

} // namespace

TEST_F(dynamicAttribute, isAddedOnceUnderItsName)
{
    EXPECT_TRUE(addString("note", false));
    EXPECT_TRUE(skin_.hasAttribute("note"));
    takeErrors();
    EXPECT_FALSE(addString("note", false));
    EXPECT_FALSE(addString("envelope", false));
    EXPECT_NE(takeErrors(), "");
    MFnNumericAttribute flag;
    const MObject object = flag.create("flag", "fl", MFnNumericData::kBoolean, true);
    EXPECT_TRUE(skin_.addAttribute(object));
    MFnDependencyNode joint(node("joint1"));
    EXPECT_FALSE(joint.addAttribute(object)) << "an attribute belongs to one node";
    EXPECT_TRUE(skin_.findPlug("fl", false).asBool());
    EXPECT_TRUE(skin_.removeAttribute(skin_.attribute("flag")));
    EXPECT_FALSE(skin_.hasAttribute("flag"));
}

TEST_F(dynamicAttribute, holdsStringsOnceTheyAreSet)
{
    addStringArray("names");
    MPlug plug = skin_.findPlug("names", false);
    MObject data;
    EXPECT_FALSE(plug.getValue(data));
    EXPECT_TRUE(data.isNull());
    EXPECT_EQ(MFnStringArrayData(data).array().length(), 0u);
    MStringArray strings;
    strings.append("hip");
    strings.append("a \"b\" \\ c");
    MFnStringArrayData maker;
    MObject made = maker.create(strings);
    EXPECT_TRUE(plug.setMObject(made));
    strings[0] = "changed afterwards";
    const MObject read = plug.asMObject();
    MFnStringArrayData reader(read);
    ASSERT_EQ(reader.length(), 2u);
    EXPECT_TRUE(reader[0] == "hip");
    MFnStringData text;
    MObject wrong = text.create("x");
    EXPECT_FALSE(plug.setMObject(wrong)) << "one string is no string array";
}

TEST_F(dynamicAttribute, clearsAStringWithANullObject)
{
    addString("note", false);
    MPlug plug = skin_.findPlug("note", false);
    EXPECT_TRUE(plug.asString() == "");
    EXPECT_TRUE(plug.setString("x"));
    EXPECT_TRUE(plug.asString() == "x");
    EXPECT_TRUE(plug.setMObject(MObject::kNullObj));
    EXPECT_TRUE(plug.asString() == "");
    EXPECT_TRUE(plug.asMObject().isNull());
}

TEST_F(dynamicAttribute, nestsArraysAndKeepsTheirHoles)
{
    addCells();
    const MPlug cells = skin_.findPlug("cells", false);
    MPlug cell = cells.elementByLogicalIndex(5).child(0).elementByLogicalIndex(2);
    EXPECT_TRUE(cell.name() == "skinCluster1.cells[5].cellJoints[2]") << cell.name();
    EXPECT_TRUE(cell.setString("hip"));
    EXPECT_EQ(cells.numElements(), 1u);
    MPlug byIndex = skin_.findPlug("cellJoints", false);
    EXPECT_TRUE(byIndex.selectAncestorLogicalIndex(5, skin_.attribute("cells")));
    EXPECT_TRUE(byIndex.selectAncestorLogicalIndex(2));
    EXPECT_TRUE(byIndex == cell);
    EXPECT_TRUE(byIndex.asString() == "hip");
}
