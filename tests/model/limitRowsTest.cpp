// SPDX-License-Identifier: Apache-2.0
#include "model/limitRows.h"

#include <gtest/gtest.h>

class rowsToLimitTest : public testing::Test
{
protected:
    const weightRows rows_ = {{-1, -1, -1}, {0, 1, 0}, {0, 0.5, 0.5}, {0, 0, 1}, {0, 0.5, 0.5}};
    lockState locks_;

    // "1 3, refused 1"
    std::string screened(const QVector<int> &candidates = {1, 2, 3, 4}) const
    {
        const rowsToLimit result = screenForLimit(candidates, rows_, locks_);
        std::string text;
        for (const int row : result.rows)
            text += std::to_string(row) + " ";
        return text + "refused " + std::to_string(result.refusedCount);
    }
};

TEST_F(rowsToLimitTest, areThoseThatNoLockProtects)
{
    EXPECT_EQ(screened(), "1 2 3 4 refused 0");
    EXPECT_EQ(screened({}), "refused 0");
    locks_.lockCell(1, 1); // holds no weight
    EXPECT_EQ(screened(), "1 2 3 4 refused 0");
    locks_.lockCell(4, 0);
    EXPECT_EQ(screened(), "1 2 3 refused 1");
    locks_.lockRow(2);
    EXPECT_EQ(screened({1, 2}), "1 refused 1");
}

TEST_F(rowsToLimitTest, takesTheRowBehindARefusedOneUnseen)
{
    locks_.lockRow(1);
    locks_.lockRow(2);
    EXPECT_EQ(screened(), "2 3 4 refused 1");
    EXPECT_EQ(screened({4, 2, 1, 3}), "4 1 3 refused 1") << "in the order given";
    locks_.lockJoint(1); // weightless in row 1 alone
    EXPECT_EQ(screened({3, 4, 2}), "4 refused 2");
}
