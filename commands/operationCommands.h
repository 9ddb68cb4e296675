// SPDX-License-Identifier: Apache-2.0
// One command of each operation, for the window to own.
#pragma once

#include <memory>
#include <vector>

#include <maya/MPxCommand.h>

class korvexWindow;
class weightTableModel;

class operationCommands
{
public:
    // Both must outlive it.
    operationCommands(korvexWindow *window, weightTableModel *model);
    // In the order in which they were built.
    ~operationCommands();

private:
    operationCommands(const operationCommands &);            // not copied
    operationCommands &operator=(const operationCommands &); // not assigned

    std::vector<std::unique_ptr<MPxCommand>> commands_;
};
