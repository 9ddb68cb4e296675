// SPDX-License-Identifier: Apache-2.0
#include "scene/uuid.h"

#include <cstdint>
#include <random>

namespace host
{

namespace
{

std::mt19937_64 seededGenerator()
{
    std::random_device device;
    std::seed_seq seed{device(), device(), device(), device(), device(), device()};
    return std::mt19937_64(seed);
}

} // namespace

std::string newUuid()
{
    static std::mt19937_64 generator = seededGenerator();
    // RFC 4122: the version is the first digit of the third group, the variant the upper two bits
    // of the fourth.
    const std::uint64_t high = (generator() & ~0xF000ULL) | 0x4000ULL;
    const std::uint64_t low = (generator() & ~(3ULL << 62)) | (2ULL << 62);
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (int digit = 0; digit < 32; ++digit) {
        if (digit == 8 || digit == 12 || digit == 16 || digit == 20)
            text += '-';
        text += kDigits[((digit < 16 ? high : low) >> (60 - 4 * (digit % 16))) & 15];
    }
    return text;
}

} // namespace host
