// SPDX-License-Identifier: Apache-2.0
// What MPxCommand::setResult left for MEL, and what MEL left for executeCommand.
#pragma once

#include <memory>

#include <maya/MCommandResult.h>
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include "mel/melValue.h"

namespace host
{

// Behind MCommandResult.
class ResultBody
{
public:
    explicit ResultBody(mel::MelValue melValue) : value(std::move(melValue)) {}
    const mel::MelValue value;
};

// The value as the type asked for. Numbers convert to each other, a single value to an array of
// one; anything else is false and leaves `result` alone.
bool convert(const mel::MelValue &value, int &result);
bool convert(const mel::MelValue &value, double &result);
bool convert(const mel::MelValue &value, MString &result);
bool convert(const mel::MelValue &value, MIntArray &result);
bool convert(const mel::MelValue &value, MDoubleArray &result);
bool convert(const mel::MelValue &value, MStringArray &result);

// Adds one element. A single value before it becomes the first element of an array; the type of
// the array is that of its first element.
void append(mel::MelValue &value, long long element);
void append(mel::MelValue &value, double element);
void append(mel::MelValue &value, const std::string &element);

} // namespace host
