// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace host
{

// A new random UUID (version 4) as scene files have them: "8C0B9A4E-4D1B-4E7A-9D0C-0123456789AB".
std::string newUuid();

} // namespace host
