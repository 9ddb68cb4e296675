// SPDX-License-Identifier: Apache-2.0
// A file descriptor that is closed with its owner.
#pragma once

#include <unistd.h>

namespace host::ma
{

class Descriptor
{
public:
    explicit Descriptor(int value = -1) : value_(value) {} // takes it over; -1: none
    ~Descriptor() { reset(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int get() const { return value_; }
    bool isOpen() const { return value_ >= 0; }
    void reset(int value = -1)
    {
        if (isOpen())
            close(value_);
        value_ = value;
    }

private:
    int value_;
};

} // namespace host::ma
