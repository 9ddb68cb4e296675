// SPDX-License-Identifier: Apache-2.0
// The data behind one attribute of one node: a value, children, or elements.
//
// Copying a datum copies everything below it; undo keeps such copies.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "scene/packedNumbers.h"
#include "scene/value.h"

namespace host
{

struct Datum {
    Value value;                   // of a leaf
    std::vector<Datum> children;   // of a compound: none yet, or one per child attribute, in order
    std::map<int, Datum> elements; // of an array, by logical index
    std::shared_ptr<PackedNumbers> packed; // of a packed array; copied when written while shared
    // Of an element that holds an opaque value for a whole range: the range's last index.
    int rangeLast = -1;

    bool isEmpty() const;
};

} // namespace host
