// SPDX-License-Identifier: Apache-2.0
// The built-in node types, as text that NodeTypes reads once.
#pragma once

namespace host
{

// The first holds what skinned meshes need, the second the rest of the DAG.
//
// One type starts with "type NAME : BASE"; each line below it declares an attribute:
//
//     longName shortName type[] key=value ... {     children up to a line with "}"
//
// "[]" makes it an array. Keys: default=N min=N max=N enum=A:B:C names=long/short,... (children of
// a tuple), and the words instance (one element per DAG instance), computed (derived, never
// stored), key (keyable), unindexed (the index does not matter).
extern const char *const kNodeTypeTable;
extern const char *const kDagTypeTable;

} // namespace host
