// SPDX-License-Identifier: Apache-2.0
#include "commands/preparers.h"

preparation prepareNothing(const editSource &, preparedEdit &)
{
    return preparation::ready;
}
