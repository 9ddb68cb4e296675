// SPDX-License-Identifier: Apache-2.0
// One run of a MEL text: parsing, its place on the undo queue, errors and results as lines.
#pragma once

#include "mel/interpreter.h"

namespace host::mel
{

class ScriptRun
{
public:
    ScriptRun(Interpreter &interpreter, std::string_view text, const RunOptions &options);
    Outcome run();

private:
    bool parse();
    bool runStatements();
    bool runStatement(const Statement &statement);
    // Runs `work`, which gives false on failure; what it throws becomes an error line.
    template <typename Work>
    bool guarded(Work work);
    void showError(const std::string &text);
    void showResult();

    Interpreter &interpreter_;
    Session &session_;
    std::string_view text_;
    const RunOptions &options_;
    Context context_;
    Script script_;
    std::size_t line_ = 1; // of the statement that runs
    MelValue value_;
};

} // namespace host::mel
