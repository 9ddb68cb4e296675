// SPDX-License-Identifier: Apache-2.0
#include "model/lockState.h"

#include <gtest/gtest.h>

TEST(lockState, reachesACellByItselfItsRowAndItsJoint)
{
    lockState locks;
    locks.lockJoint(2);
    locks.lockRow(5);
    locks.lockCell(7, 1);
    const struct {
        int row;
        int column;
        bool locked;
        bool byItself;
    } cases[] = {
        {0, 2, true, false},  {5, 0, true, false},  {7, 1, true, true},
        {7, 0, false, false}, {1, 7, false, false}, {2, 5, false, false},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(locks.isLocked(c.row, c.column), c.locked) << c.row << ", " << c.column;
        EXPECT_EQ(locks.isCellLocked(c.row, c.column), c.byItself) << c.row << ", " << c.column;
    }
}

TEST(lockState, keepsOrderAndRepetitions)
{
    lockState locks;
    locks.lockJoint(3);
    locks.lockJoint(1);
    locks.lockJoint(3);
    EXPECT_EQ(locks.joints(), (QList<int>{3, 1, 3}));

    locks.unlockJoint(3);
    locks.lockJoint(3);
    EXPECT_EQ(locks.joints(), (QList<int>{1, 3}));
}
