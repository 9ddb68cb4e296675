// SPDX-License-Identifier: Apache-2.0
// A selection written down, to be compared with a later one when its objects may be gone.
#pragma once

#include <QByteArray>

#include <maya/MSelectionList.h>

// Equal for lists of the same objects and components in the same order, and never empty. Takes four
// bytes per vertex.
QByteArray signatureOf(const MSelectionList &selection);
