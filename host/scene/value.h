// SPDX-License-Identifier: Apache-2.0
// The value of one plug that is neither an array nor a compound.
//
// Numbers of all kinds (bool, enum, int, float, double) are doubles: every integer that Maya stores
// in an attribute is exact in a double, but for 64-bit integers beyond 2^53.
#pragma once

#include <array>
#include <string>
#include <variant>
#include <vector>

namespace host
{

// Row by row, translation in elements 12 to 14, as Maya writes it.
using Matrix = std::array<double, 16>;

constexpr Matrix kIdentityMatrix = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

// A value of a type that the host keeps without looking into it (polyFaces, nurbsCurve, a plug-in's
// own data, values of unknown node types). `type` is what stood behind -type, empty if nothing did;
// `text` is the values as Maya ASCII has them, one blank between tokens.
struct OpaqueValue {
    std::string type;
    std::string text;
    bool operator==(const OpaqueValue &other) const
    {
        return type == other.type && text == other.text;
    }
};

using Value = std::variant<std::monostate,           // never set
                           double,                   // any number, bool or enum
                           std::string,              //
                           Matrix,                   //
                           std::vector<std::string>, // stringArray, componentList
                           std::vector<double>, // doubleArray, Int32Array, vectorArray, ... flat
                           OpaqueValue>;

// The number that `value` stands for: opaque text is read as one (yes/no/on/off/true/false too),
// anything else gives `fallback`.
double toNumber(const Value &value, double fallback = 0.0);

// Reads one token of Maya ASCII or MEL as a number: "1", "-.5", "1e-007", "yes", "off", "-nan",
// "-1.#IND". False when it is none.
bool parseNumber(const char *begin, const char *end, double &number);

} // namespace host
