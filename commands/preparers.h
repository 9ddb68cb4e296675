// SPDX-License-Identifier: Apache-2.0
// From an operation's hand-over to the data of an edit, one preparer per kind of edit, each in a
// source of its own.
//
// A preparer takes an empty edit. If it fails it has shown why; the edit then holds what it had
// prepared until then.
#pragma once

#include "commands/editSource.h"
#include "commands/preparedEdit.h"

enum class preparation {
    ready,
    failed,
    outdated // the scene no longer holds what the table shows; nothing has been shown yet
};

typedef preparation (*editPreparer)(const editSource &source, preparedEdit &edit);

preparation prepareMaxInfluences(const editSource &source, preparedEdit &edit);
preparation prepareRounding(const editSource &source, preparedEdit &edit);
preparation prepareFlood(const editSource &source, preparedEdit &edit);
preparation prepareCells(const editSource &source, preparedEdit &edit);
preparation prepareColumn(const editSource &source, preparedEdit &edit);
preparation prepareSmoothing(const editSource &source, preparedEdit &edit);
preparation preparePaintSmoothing(const editSource &source, preparedEdit &edit);
