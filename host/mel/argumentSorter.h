// SPDX-License-Identifier: Apache-2.0
// Sorts the operands of one call into flags and objects; the work of CommandTable::sort.
#pragma once

#include "mel/command.h"

namespace host::mel
{

class ArgumentSorter
{
public:
    ArgumentSorter(const Command &command, const std::vector<Operand> &operands,
                   bool isFunctionForm);
    Arguments sorted() &&;

private:
    enum class Meaning { value, flag, query, edit, unknownFlag };
    Meaning meaningOf(const Operand &operand, const Flag **flag = nullptr) const;
    bool mayBeFlag(const Operand &operand) const;
    std::size_t findQuery() const;
    void requireObjects() const;

    // Takes the flag at next_ with its arguments.
    void takeFlag(const Flag &flag);
    std::size_t availableValues(const Flag &flag) const;
    std::size_t wantedValues(const Flag &flag) const;
    bool fits(const Flag &flag, std::size_t available) const;
    void addUse(const Flag &flag, std::vector<Operand> values);

    const Command &command_;
    const std::vector<Operand> &operands_;
    const bool isFunctionForm_;
    std::size_t queryAt_; // where -query stands; operands_.size() if nowhere
    std::size_t next_ = 0;
    Arguments result_;
};

} // namespace host::mel
