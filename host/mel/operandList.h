// SPDX-License-Identifier: Apache-2.0
// Evaluates the arguments of one call to operands, in order, calls inside it first.
//
// Holds the texts that calls gave back; operands are valid as long as the list lives.
#pragma once

#include <forward_list>

#include "mel/interpreter.h"

namespace host::mel
{

class OperandList
{
public:
    OperandList(Interpreter &interpreter, Context &context)
        : interpreter_(interpreter), context_(context)
    {
    }
    // Throws what a call throws. A result that is an array gives an operand for each element, no
    // result none.
    void evaluate(const Statement &statement);
    const std::vector<Operand> &operands() const { return operands_; }

private:
    void add(const MelValue &value);
    void add(std::string text, bool isQuoted);

    Interpreter &interpreter_;
    Context &context_;
    std::vector<Operand> operands_;
    std::forward_list<std::string> texts_;
};

// "+" and "-" of expressions, with their operands evaluated. A sum that holds a string is a string.
MelValue sumOf(const std::vector<Operand> &operands);
MelValue negated(const std::vector<Operand> &operands);

} // namespace host::mel
