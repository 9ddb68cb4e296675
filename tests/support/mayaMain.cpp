// SPDX-License-Identifier: Apache-2.0
#include "support/mayaSession.h"

int main(int argumentCount, char **arguments)
{
    return runMayaTests(argumentCount, arguments);
}
