// SPDX-License-Identifier: Apache-2.0
//
// The part that each influence of a row plays while the row is written, and what is done to all
// weights of one role. Shared by the write rule and the row operations; of no use elsewhere.

#pragma once

#include "skin/writeRule.h"

#include <array>
#include <cstdint>
#include <vector>

namespace host::skin
{

enum class Role : std::uint8_t {
    free,
    locked,
    announced, // will be assigned
    assigned,
};

// A row with its roles. Refers to weights that the caller owns. Allocates only for rows of more
// than kInlineInfluences weights.
class RowRoles
{
public:
    // Locked as given (missing entries: not locked), the others free.
    RowRoles(double *weights, std::size_t count, const std::vector<bool> &locked);
    RowRoles(const RowRoles &) = delete;
    RowRoles &operator=(const RowRoles &) = delete;

    std::size_t count() const { return count_; }
    double &weight(std::size_t influence) { return weights_[influence]; }
    Role &role(std::size_t influence) { return roles_[influence]; }

    double sum(Role role) const;
    double sumOfAll() const;
    std::size_t countAboveZero(Role role) const;
    void setAll(Role role, double weight);

    // Scales the weights of a role that are above 0 to the sum `goal` and makes its others 0.
    // False, and nothing done, if there is no proportion to keep: none is above 0, or too little to
    // divide by.
    bool scaleTo(double goal, Role role);
    bool scaleAllTo(double goal);

    // Gives the free influences what createWeights makes of `goal`. False if none is free.
    bool createFree(double goal, const CreateWeights &createWeights);

private:
    template <typename IsMeant>
    bool scale(double goal, IsMeant isMeant);

    static constexpr std::size_t kInlineInfluences = 512;

    double *weights_;
    std::size_t count_;
    std::array<Role, kInlineInfluences> inlineRoles_; // filled up to count_ only
    std::vector<Role> moreRoles_;
    Role *roles_; // one of the two
};

} // namespace host::skin
