// SPDX-License-Identifier: Apache-2.0
// Running out of memory while the table is filled.
#pragma once

#include <cstddef>
#include <new>

// Throws std::bad_alloc unless that many bytes can be had now. What is about to fill large Qt
// containers asks first: these do not throw, they write through null pointers.
inline void requireMemory(std::size_t bytes)
{
    ::operator delete(::operator new(bytes));
}
