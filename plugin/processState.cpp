// SPDX-License-Identifier: Apache-2.0
#include "plugin/processState.h"

korvexWindow *activeWindow = nullptr;
weightTableModel *activeModel = nullptr;
bool autoUpdate = false;
bool selectionSetByEditor = false;
