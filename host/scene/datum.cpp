// SPDX-License-Identifier: Apache-2.0
#include "scene/datum.h"

#include <algorithm>

namespace host
{

bool Datum::isEmpty() const
{
    return std::holds_alternative<std::monostate>(value) && elements.empty() &&
           (!packed || packed->elementCount() == 0) &&
           std::all_of(children.begin(), children.end(),
                       [](const Datum &child) { return child.isEmpty(); });
}

} // namespace host
