// SPDX-License-Identifier: Apache-2.0

#include "skin/rowRoles.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace host::skin
{

RowRoles::RowRoles(double *weights, std::size_t count, const std::vector<bool> &locked)
    : weights_(weights), count_(count)
{
    if (count > kInlineInfluences)
        moreRoles_.resize(count);
    roles_ = count > kInlineInfluences ? moreRoles_.data() : inlineRoles_.data();
    const std::size_t known = std::min(count, locked.size());
    for (std::size_t i = 0; i < known; ++i)
        roles_[i] = locked[i] ? Role::locked : Role::free;
    std::fill(roles_ + known, roles_ + count, Role::free);
}

double RowRoles::sum(Role role) const
{
    double total = 0.0;
    for (std::size_t i = 0; i < count_; ++i)
        total += roles_[i] == role ? weights_[i] : 0.0;
    return total;
}

double RowRoles::sumOfAll() const
{
    return std::accumulate(weights_, weights_ + count_, 0.0);
}

std::size_t RowRoles::countAboveZero(Role role) const
{
    std::size_t found = 0;
    for (std::size_t i = 0; i < count_; ++i)
        found += roles_[i] == role && weights_[i] > 0.0;
    return found;
}

void RowRoles::setAll(Role role, double weight)
{
    for (std::size_t i = 0; i < count_; ++i)
        weights_[i] = roles_[i] == role ? weight : weights_[i];
}

template <typename IsMeant>
bool RowRoles::scale(double goal, IsMeant isMeant)
{
    double above = 0.0;
    for (std::size_t i = 0; i < count_; ++i)
        above += isMeant(roles_[i]) && weights_[i] > 0.0 ? weights_[i] : 0.0;
    const double factor = goal / above;
    if (!(above > 0.0 && std::isfinite(factor)))
        return false;
    for (std::size_t i = 0; i < count_; ++i) {
        if (isMeant(roles_[i]))
            weights_[i] = weights_[i] > 0.0 ? weights_[i] * factor : 0.0;
    }
    return true;
}

bool RowRoles::scaleTo(double goal, Role role)
{
    return scale(goal, [role](Role other) { return other == role; });
}

bool RowRoles::scaleAllTo(double goal)
{
    return scale(goal, [](Role) { return true; });
}

bool RowRoles::createFree(double goal, const CreateWeights &createWeights)
{
    std::vector<std::size_t> freeInfluences;
    for (std::size_t i = 0; i < count_; ++i) {
        if (roles_[i] == Role::free)
            freeInfluences.push_back(i);
    }
    if (freeInfluences.empty())
        return false;
    std::vector<double> shares;
    if (createWeights)
        shares = createWeights(freeInfluences);
    if (shares.size() != freeInfluences.size())
        shares.assign(freeInfluences.size(), 1.0 / static_cast<double>(freeInfluences.size()));
    for (std::size_t i = 0; i < shares.size(); ++i)
        weights_[freeInfluences[i]] = goal * shares[i];
    return true;
}

} // namespace host::skin
