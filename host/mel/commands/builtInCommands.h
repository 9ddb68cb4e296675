// SPDX-License-Identifier: Apache-2.0
// The families of built-in commands; each adds its rows to the table.
//
// A row without a count takes any number of objects, one without modes knows neither -query nor
// -edit.
#pragma once

#include "mel/command.h"

namespace host::mel
{

// Attributes and their values.
void addSetAttrCommand(CommandTable &table);
void addGetAttrCommand(CommandTable &table);
void addAttributeCommands(
    CommandTable &table); // addAttr, deleteAttr, attributeQuery, listAttr, ...

// The graph.
void addConnectionCommands(CommandTable &table);
void addConnectionInfoCommand(CommandTable &table);
void addListHistoryCommand(CommandTable &table);
void addNodeCommands(CommandTable &table); // createNode, delete, rename, lockNode, ...
void addDuplicateCommand(CommandTable &table);
void addListCommand(CommandTable &table);       // ls
void addDagCommands(CommandTable &table);       // parent, group, listRelatives, instanceable
void addTransformCommands(CommandTable &table); // move, rotate, scale, xform

// Selection and skinning.
void addSelectionCommands(CommandTable &table);
void addFilterExpandCommand(CommandTable &table);
void addSetCommand(CommandTable &table);
void addPrimitiveCommands(CommandTable &table);
void addPolyEvaluateCommand(CommandTable &table);
void addJointCommands(CommandTable &table);
void addSkinClusterCommands(CommandTable &table);
void addSkinPercentCommands(CommandTable &table);
void addToolCommands(CommandTable &table);      // currentCtx, setToolTo, contextInfo
void addPaintToolCommands(CommandTable &table); // artAttrSkinPaintCtx and its procedures

// Files, undo and the program.
void addFileCommand(CommandTable &table);
void addFileStatementCommands(CommandTable &table); // requires, currentUnit, relationship, ...
void addUndoCommands(CommandTable &table);
void addSystemCommands(CommandTable &table);
void addPluginCommands(CommandTable &table);

} // namespace host::mel
