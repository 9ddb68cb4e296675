// SPDX-License-Identifier: Apache-2.0
// Writes the setAttr statements of one node.
//
// What is stored is written, equal to a default or not: defaults differ between Maya's releases.
// Not written are elements of dynamic arrays at the default, and texts that nobody set. Long arrays
// are cut after some 500 numbers, as Maya does it.
#pragma once

#include <map>
#include <set>
#include <string>

#include "ma/plugText.h"
#include "ma/statementWriter.h"
#include "scene/datum.h"
#include "scene/node.h"

namespace host::ma
{

// Numbers, or weights, that one statement holds at most.
constexpr std::size_t kNumbersPerStatement = 500;

enum class WeightForm {
    runs,  // ".wl[0].w[3:4]" 0.25 0.75, up to Maya 2017
    packed // ".wl[0:7].w" with count and pairs per vertex, since Maya 2018
};

struct FileStyle {
    FlagNames flags;
    WeightForm weights = WeightForm::packed;
    bool announcesSizes = true; // with -s and -ch, which say nothing of their own
};

// A number as the values of such an attribute are written: yes and no, single precision.
std::string numberText(const Attribute &attribute, double number);

class ValueWriter
{
public:
    ValueWriter(StatementWriter &out, const FileStyle &style, const NodePtr &node);

    // Declared attributes, then learned ones in the order in which the file had them, then dynamic
    // ones; after the values of each the states of its plugs that have no value.
    void writeAll();
    // One top-level attribute, with the states of its plugs.
    void writeAttribute(const AttributePtr &attribute);

    // Parts of an attribute, for a file that has the rest of it already: what `datum`, taken from
    // the plug's own, holds of it; and the state of one plug.
    void writePart(const Plug &plug, const Datum &datum);
    void writeState(const Plug &plug);

private:
    using States = std::map<PlugKey, PlugState>;

    void writeStored(const AttributePtr &attribute);
    PlugState takeState(const Plug &plug);
    void writeArray(const Plug &array, const Datum &datum);
    void writeNumbers(const Plug &array, const PackedNumbers &numbers);
    void writeRun(const Plug &array, int first, const double *numbers, std::size_t elements);
    void writeElements(const Plug &array, const Datum &datum);
    void writeItem(const Plug &plug, const Datum &datum);
    void writeTuple(const Plug &plug, const Datum &datum);
    void writeLeaf(const Plug &plug, const Datum &datum);
    void writeSize(const Plug &array, std::size_t size);
    void writeStates(const Attribute &top);

    // "setAttr [-s N] [states] ".path"", the plug's state being done with then.
    StatementWriter &begin(const Plug &plug, const std::string &range = {});
    bool hasConnections(const Attribute &attribute) const; // at some plug of it or below
    bool isConnected(const Plug &plug) const;
    bool isLeftOut(const Plug &plug, const double *numbers) const;
    std::size_t keptElements(const Plug &array, const Datum &datum) const;
    bool comesBack(const Plug &plug, const Datum &datum) const;

    StatementWriter &out_;
    const FileStyle &style_;
    NodePtr node_;
    std::map<const Attribute *, States> states_; // still to be written, by top-level attribute
    std::set<const Attribute *> connected_;      // attributes with a connection at some plug
    std::size_t pendingSize_ = 0;                // for -s of the next statement; 0: none
    std::size_t pendingCapacity_ = 0;            // the same for -ch
};

} // namespace host::ma
