// SPDX-License-Identifier: Apache-2.0
// Faulty scene files made from sound ones.
#pragma once

#include <string>

#include "fuzz/chance.h"

// The text of a scene after one to four changes: of bytes, statements, numbers or names.
std::string mutatedScene(std::string text, Chance &chance);
