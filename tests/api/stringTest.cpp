// SPDX-License-Identifier: Apache-2.0
// What needs no scene: strings, arrays, components, colours.
#include <clocale>

#include <maya/MColor.h>
#include <maya/MDoubleArray.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MIntArray.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include <gtest/gtest.h>

TEST(string, turnsNumbersIntoTextThatMelReads)
{
    MString text("w");
    text += 3;
    text += 0.1;
    text += 1e-7;
    text += 0.25f;
    text += 4000000000u;
    EXPECT_STREQ(text.asChar(), "w30.11e-070.254000000000");
    EXPECT_STREQ((MString("x") + 3).asChar(), "x3");
    text = 1.0 / 3.0;
    EXPECT_STREQ(text.asChar(), "0.333333");
    text.set(1.0 / 3.0, 10);
    EXPECT_STREQ(text.asChar(), "0.3333333333");
}

TEST(string, writesAPointInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char *name : {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8"})
        if (std::setlocale(LC_ALL, name))
            break;
    MString text;
    text += 0.5;
    EXPECT_STREQ(text.asChar(), "0.5");
    EXPECT_EQ(MString("0.5").asDouble(), 0.5);
    std::setlocale(LC_ALL, before.c_str());
}

TEST(string, readsNumbers)
{
    struct {
        const char *text;
        bool isInt, isDouble;
        double value;
    } const cases[] = {
        {"12", true, true, 12},     {"-3", true, true, -3},    {"+4", true, true, 4},
        {" .5 ", false, true, 0.5}, {"1e3", true, true, 1000}, {"7 apples", false, false, 7},
        {"", false, false, 0},      {"x1", false, false, 0},   {"5000000000", false, true, 5e9}};
    for (const auto &row : cases) {
        const MString text(row.text);
        EXPECT_EQ(text.isInt(), row.isInt) << row.text;
        EXPECT_EQ(text.isDouble(), row.isDouble) << row.text;
        EXPECT_EQ(text.asDouble(), row.value) << row.text;
    }
    EXPECT_EQ(MString("5000000000").asInt(), 2147483647);
}

TEST(string, cutsAndReplaces)
{
    const MString path("|group|body");
    MStringArray parts;
    path.split('|', parts);
    ASSERT_EQ(parts.length(), 2u);
    EXPECT_TRUE(parts[1] == "body");
    EXPECT_TRUE(path.substring(path.rindex('|') + 1, path.length()) == "body");
    EXPECT_TRUE(path.substring(3, 1) == "");
    MString text("a.a.a");
    text.substitute("a", "aa");
    EXPECT_TRUE(text == "aa.aa.aa");
    text.substituteFirst("aa.", "");
    EXPECT_TRUE(text == "aa.aa");
    MStringArray names;
    names.append("x");
    names.append("y");
    text.format("^2s ^1s ^3s ^", names);
    EXPECT_TRUE(text == "y x ^3s ^");
}

TEST(string, countsCharactersNotBytes)
{
    const MString text(L"h\u00fcft\u20ac\U0001F600");
    EXPECT_EQ(text.length(), 12u);
    EXPECT_EQ(text.numChars(), 6u);
    EXPECT_STREQ(text.asUTF8(), "h\xC3\xBC"
                                "ft\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_TRUE(text.substringW(1, 1) == MString(L"\u00fc"));
    EXPECT_EQ(MString("\xFF"
                      "a\xC3")
                  .numChars(),
              3u)
        << "bytes that are no UTF-8 count one by one";
}

TEST(array, refusesPlacesBeyondItsEnd)
{
    MIntArray array(2, 7);
    EXPECT_TRUE(array.insert(5, 2));
    EXPECT_FALSE(array.insert(5, 9));
    EXPECT_FALSE(array.remove(3));
    EXPECT_FALSE(array.set(1, 3));
    array.setLength(4);
    EXPECT_EQ(array[3], 0);
}

TEST(component, ascendsWithoutDuplicates)
{
    MFnSingleIndexedComponent component;
    EXPECT_FALSE(component.addElement(1)) << "no object yet";
    MStatus status;
    component.create(MFn::kMesh, &status);
    EXPECT_FALSE(status);
    const MObject object = component.create(MFn::kMeshVertComponent);
    EXPECT_TRUE(object.hasFn(MFn::kSingleIndexedComponent));
    EXPECT_TRUE(component.isEmpty());
    for (const int element : {5, 2, 5, 9, 0})
        component.addElement(element);
    MIntArray elements;
    component.getElements(elements);
    ASSERT_EQ(elements.length(), 4u);
    EXPECT_EQ(elements[0], 0);
    EXPECT_EQ(elements[3], 9);
    EXPECT_EQ(component.elementMax(), 10);
    component.element(4, &status);
    EXPECT_FALSE(status);
    component.setCompleteData(3);
    EXPECT_EQ(component.elementCount(), 3);
    EXPECT_EQ(component.element(2), 2);
    component.addElement(7);
    EXPECT_FALSE(component.isComplete());
    EXPECT_EQ(component.elementMax(), 8);
}

TEST(colour, convertsBetweenModels)
{
    const MColor colour(MColor::kHSV, 120.0f, 1.0f, 0.5f);
    EXPECT_TRUE(colour == MColor(0.0f, 0.5f, 0.0f));
    float hue, saturation, value, alpha;
    colour.get(MColor::kHSV, hue, saturation, value, alpha);
    EXPECT_FLOAT_EQ(hue, 120.0f);
    EXPECT_FLOAT_EQ(value, 0.5f);
    EXPECT_TRUE(MColor(0.5f) == MColor(0.0f, 0.0f, 0.0f, 0.5f)) << "a single number is the alpha";
}
