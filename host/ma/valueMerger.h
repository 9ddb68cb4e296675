// SPDX-License-Identifier: Apache-2.0
// Brings the setAttr statements of a file up to date, attribute by attribute.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ma/sceneDifference.h"

namespace host::ma
{

// The statements about one attribute: what became of each (empty: it is not needed any more), and
// new ones to stand behind them. Statements begin with the line end before them and end with `;`.
struct MergedStatements {
    std::vector<std::string> statements;
    std::string added;
};

// Changes words where values changed and leaves all others as they are: numbers keep their text,
// statements their range. `statements` say what `before` holds of the attribute, which may be less
// than all of it. Nothing when an attribute changed in a way that needs other statements.
std::optional<MergedStatements> mergeValues(const FileStyle &style,
                                            const std::vector<std::string_view> &statements,
                                            const NodePtr &before, const NodePtr &now,
                                            const AttributePair &attribute);

// A statement whose values stay, with the size that it announces brought up to date.
std::string mergeSize(std::string_view statement, const NodePtr &before, const NodePtr &now);

// mergeValues for the weight list of a skin cluster.
std::optional<MergedStatements> mergeWeights(const FileStyle &style,
                                             const std::vector<std::string_view> &statements,
                                             const NodePtr &before, const NodePtr &now);

// The statements that `write` hands to a writer, as MergedStatements have them.
template <typename Write>
std::string statementsText(const Write &write)
{
    std::string text = "\n";
    StatementWriter out([&text](std::string_view piece) { text += piece; });
    write(out);
    out.finish();
    text.pop_back();
    return text;
}

} // namespace host::ma
