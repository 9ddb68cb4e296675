// SPDX-License-Identifier: Apache-2.0
#include "ma/weightWriter.h"

#include <algorithm>
#include <vector>

namespace host::ma
{

namespace
{

constexpr auto kInsideNode = StatementWriter::Place::insideNode;

// Weights of one vertex: all of its row, or the part of it that still fits into a statement.
struct RowPart {
    std::size_t vertex;
    const skin::Entry *begin;
    const skin::Entry *end;
};

class WeightWriter
{
public:
    WeightWriter(StatementWriter &out, const FileStyle &style, const skin::WeightStore &weights)
        : out_(out), flags_(style.flags), announcesSizes_(style.announcesSizes), weights_(weights),
          list_(flags_(".wl", ".weightList")), row_(flags_("].w", "].weights"))
    {
    }

    void writeSize()
    {
        out_.begin("setAttr", kInsideNode);
        out_.flag(flags_("-s", "-size"), std::to_string(weights_.rowCount()));
        out_.quoted(list_).end();
    }
    void writePacked();
    void writeRuns();

private:
    void flush();
    void writeRun(std::size_t vertex, const skin::Entry *begin, const skin::Entry *end,
                  bool isWholeRow);

    StatementWriter &out_;
    FlagNames flags_;
    bool announcesSizes_;
    const skin::WeightStore &weights_;
    const std::string list_;
    const std::string row_;
    std::vector<RowPart> parts_; // of the next packed statement
};

void WeightWriter::writePacked()
{
    std::size_t room = kNumbersPerStatement;
    for (std::size_t v = weights_.nextRow(0); v < weights_.vertexCount();
         v = weights_.nextRow(v + 1)) {
        const skin::RowView row = weights_.row(v);
        if (!parts_.empty() && parts_.back().vertex + 1 != v) {
            flush();
            room = kNumbersPerStatement;
        }
        const skin::Entry *entry = row.begin();
        // Also in the middle of a vertex, as Maya does it; the rest follows in the next statement.
        do {
            const std::size_t count = std::min(room, std::size_t(row.end() - entry));
            parts_.push_back({v, entry, entry + count});
            entry += count;
            room -= count;
            if (room == 0) {
                flush();
                room = kNumbersPerStatement;
            }
        } while (entry != row.end());
    }
    flush();
}

void WeightWriter::flush()
{
    if (parts_.empty())
        return;
    std::string path = list_ + '[' + std::to_string(parts_.front().vertex);
    if (parts_.size() > 1)
        path += ':' + std::to_string(parts_.back().vertex);
    out_.begin("setAttr", kInsideNode).quoted(path + row_);
    for (const RowPart &part : parts_) {
        out_.newLine().integer(part.end - part.begin);
        for (const skin::Entry *entry = part.begin; entry != part.end; ++entry)
            out_.integer(entry->influence).real(entry->weight);
    }
    out_.end();
    parts_.clear();
}

void WeightWriter::writeRuns()
{
    for (std::size_t v = weights_.nextRow(0); v < weights_.vertexCount();
         v = weights_.nextRow(v + 1)) {
        const skin::RowView row = weights_.row(v);
        const auto endOfRun = [&row](const skin::Entry *first) {
            const skin::Entry *last = first;
            while (last + 1 != row.end() && last[1].influence == last->influence + 1)
                ++last;
            return last + 1;
        };
        const bool isOneRun = !row.empty() && endOfRun(row.begin()) == row.end();
        if (!isOneRun && announcesSizes_) {
            out_.begin("setAttr", kInsideNode);
            out_.flag(flags_("-s", "-size"), std::to_string(row.size()));
            out_.quoted(list_ + '[' + std::to_string(v) + row_).end();
        }
        for (const skin::Entry *entry = row.begin(); entry != row.end();) {
            const skin::Entry *end = endOfRun(entry);
            writeRun(v, entry, end, isOneRun);
            entry = end;
        }
    }
}

void WeightWriter::writeRun(std::size_t vertex, const skin::Entry *begin, const skin::Entry *end,
                            bool isWholeRow)
{
    const std::size_t count = std::size_t(end - begin);
    out_.begin("setAttr", kInsideNode);
    if (isWholeRow && count > 1 && announcesSizes_)
        out_.flag(flags_("-s", "-size"), std::to_string(count));
    std::string path =
        list_ + '[' + std::to_string(vertex) + row_ + '[' + std::to_string(begin->influence);
    if (count > 1)
        path += ':' + std::to_string(end[-1].influence);
    out_.quoted(path + ']');
    for (const skin::Entry *entry = begin; entry != end; ++entry)
        out_.real(entry->weight);
    out_.end();
}

} // namespace

void writeWeights(StatementWriter &out, const FileStyle &style, const skin::WeightStore &weights)
{
    if (weights.rowCount() == 0)
        return;
    WeightWriter writer(out, style, weights);
    if (style.announcesSizes)
        writer.writeSize();
    if (style.weights == WeightForm::packed)
        writer.writePacked();
    else
        writer.writeRuns();
}

} // namespace host::ma
