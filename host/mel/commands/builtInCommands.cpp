// SPDX-License-Identifier: Apache-2.0
#include "mel/commands/builtInCommands.h"

#include "mel/interpreter.h"

namespace host::mel
{

void addBuiltInCommands(CommandTable &table)
{
    addSetAttrCommand(table);
    addGetAttrCommand(table);
    addAttributeCommands(table);
    addConnectionCommands(table);
    addConnectionInfoCommand(table);
    addListHistoryCommand(table);
    addNodeCommands(table);
    addDuplicateCommand(table);
    addListCommand(table);
    addDagCommands(table);
    addTransformCommands(table);
    addSelectionCommands(table);
    addFilterExpandCommand(table);
    addSetCommand(table);
    addPrimitiveCommands(table);
    addPolyEvaluateCommand(table);
    addJointCommands(table);
    addSkinClusterCommands(table);
    addSkinPercentCommands(table);
    addToolCommands(table);
    addPaintToolCommands(table);
    addFileCommand(table);
    addFileStatementCommands(table);
    addUndoCommands(table);
    addSystemCommands(table);
    addPluginCommands(table);
}

} // namespace host::mel
