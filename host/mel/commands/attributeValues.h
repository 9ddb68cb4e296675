// SPDX-License-Identifier: Apache-2.0
// The values of a setAttr statement: a row of tokens and, by the name behind -type, what they mean.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mel/command.h"
#include "scene/value.h"

namespace host::mel
{

// Takes the tokens of a statement one after the other. What is missing or no number is refused as
// setAttr does it: "setAttr: Error reading data element number 3: abc".
class ValueTokens
{
public:
    ValueTokens(const Operand *first, const Operand *last)
        : first_(first), next_(first), last_(last)
    {
    }

    bool atEnd() const { return next_ == last_; }
    std::size_t left() const { return std::size_t(last_ - next_); }
    std::string_view peek() const { return next_->text; } // REQUIRES: !atEnd()
    const Operand &take();
    double number();
    std::vector<double> numbers(std::size_t count);
    std::vector<std::string> strings(std::size_t count);
    // The count in front of an array whose elements are `size` tokens each. Never more than there
    // are tokens left for, so memory may be set aside for it.
    std::size_t arrayCount(std::size_t size = 1);
    // The next `count` tokens on their own. REQUIRES: count <= left().
    ValueTokens split(std::size_t count)
    {
        next_ += count;
        return ValueTokens(next_ - count, next_);
    }
    // All that is left, as Maya ASCII writes it.
    std::string rest();
    // Refuses tokens that nobody took.
    void requireEnd() const;

private:
    [[noreturn]] void refuse() const;
    const Operand *first_;
    const Operand *next_;
    const Operand *last_;
};

// Takes one value of type `type` ("string", "matrix", "stringArray", ...); a type that is not in
// the table is kept as text, to the end of the statement.
Value takeValue(std::string_view type, ValueTokens &tokens);

// A string in quotes, escaped as Maya ASCII and MEL want it.
std::string quoted(std::string_view text);
// An operand as it stood in its statement.
std::string written(const Operand &operand);

} // namespace host::mel
