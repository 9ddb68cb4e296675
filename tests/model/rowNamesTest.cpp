// SPDX-License-Identifier: Apache-2.0
#include "model/rowNameList.h"
#include "model/vertexRowFinder.h"

#include <gtest/gtest.h>

namespace
{

// "body" with its vertices 0, 1, 2, then "hand" with 5, 9, 12.
rowNameList bodyAndPartOfHand()
{
    rowNameList names;
    names.appendShape("body");
    for (int vertex : {0, 1, 2})
        names.appendVertex(vertex);
    names.appendShape("hand");
    for (int vertex : {5, 9, 12})
        names.appendVertex(vertex);
    return names;
}

} // namespace

TEST(rowNameList, namesShapesAndVertices)
{
    const rowNameList names = bodyAndPartOfHand();
    const struct {
        int row;
        const char *text;
        int vertex;
    } cases[] = {
        {0, "body", -1},  {1, "vtx[0]", 0},   {3, "vtx[2]", 2}, {4, "hand", -1},
        {5, "vtx[5]", 5}, {7, "vtx[12]", 12}, {8, "", -1},      {-1, "", -1},
    };
    ASSERT_EQ(names.size(), 8);
    for (const auto &c : cases) {
        EXPECT_EQ(names.text(c.row), c.text) << c.row;
        EXPECT_EQ(names.vertex(c.row), c.vertex) << c.row;
    }
}

TEST(rowNameList, readsVertexNumbersFromNames)
{
    const struct {
        const char *name;
        bool ok;
        int vertex;
    } cases[] = {
        {"vtx[0]", true, 0},   {"vtx[12]", true, 12}, {"vtx[99999]", true, 99999},
        {"vtx[]", false, 0},   {"vtx", false, 0},     {"", false, 0},
        {"pSphere", false, 0}, {"vtx[a]", false, 0},  {"vtx[12", true, 1},
    };
    for (const auto &c : cases) {
        bool ok = !c.ok;
        EXPECT_EQ(vertexOfRowName(c.name, &ok), c.vertex) << c.name;
        EXPECT_EQ(ok, c.ok) << c.name;
    }
}

TEST(vertexRowFinder, findsVerticesOfItsOwnBlockOnly)
{
    const rowNameList names = bodyAndPartOfHand();
    vertexRowFinder body(names, 1, 4);
    vertexRowFinder hand(names, 5, 8);
    const struct {
        int vertex;
        int rowInBody;
        int rowInHand;
    } cases[] = {
        {0, 1, -1}, {2, 3, -1}, {3, -1, -1}, {5, -1, 5}, {12, -1, 7}, {-1, -1, -1},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(body.rowOf(c.vertex), c.rowInBody) << c.vertex;
        EXPECT_EQ(hand.rowOf(c.vertex), c.rowInHand) << c.vertex;
    }
}
