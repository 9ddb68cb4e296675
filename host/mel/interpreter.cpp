// SPDX-License-Identifier: Apache-2.0
#include "mel/interpreter.h"

#include "mel/operandList.h"
#include "mel/scopes.h"

namespace host::mel
{

Interpreter::Interpreter(Session &session) : session_(session)
{
    addBuiltInCommands(commands_);
}

MelValue Interpreter::call(Context &context, const Statement &statement)
{
    // Far above what one text can nest, and low enough for the stack when commands run commands.
    constexpr unsigned kMaxCalls = 500;
    const DepthScope depth(callDepth_, kMaxCalls);
    const bool isCatch = statement.command == "catch" || statement.command == "catchQuiet";
    if (isCatch && !context.isReadingFile)
        return callCatch(context, statement);
    if (statement.command != "+" && statement.command != "-")
        return callCommand(context, statement);
    OperandList list(*this, context);
    list.evaluate(statement);
    return statement.command == "+" ? sumOf(list.operands()) : negated(list.operands());
}

MelValue Interpreter::callCatch(Context &context, const Statement &statement)
{
    try {
        OperandList(*this, context).evaluate(statement);
        return 0LL;
    } catch (const Error &error) {
        const std::string text = error.what();
        if (statement.command == "catch" && !text.empty())
            session_.output().error("line " + std::to_string(statement.line) + ": " + text);
        return 1LL;
    }
}

MelValue Interpreter::callCommand(Context &context, const Statement &statement)
{
    const std::shared_ptr<const Command> command = commands_.hold(statement.command);
    if (!command || (context.isReadingFile && !command->isFileStatement))
        throw Error("Cannot find procedure \"" + std::string(statement.command) + "\".");
    OperandList list(*this, context);
    list.evaluate(statement);
    const Arguments arguments =
        CommandTable::sort(*command, list.operands(), statement.isFunctionForm);
    UndoQueue &undo = session_.undo();
    const std::size_t stepsBefore = undo.openSteps();
    try {
        MelValue result = command->run(context, arguments);
        session_.announceChanges();
        return result;
    } catch (...) {
        if (undo.openSteps() > stepsBefore)
            undo.rollback(stepsBefore);
        throw;
    }
}

} // namespace host::mel
