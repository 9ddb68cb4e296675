// SPDX-License-Identifier: Apache-2.0
#include "model/editTrail.h"

int editTrail::newEdit()
{
    static int last = 0;
    return ++last;
}

void editTrail::openAction()
{
    if (openActions_++ == 0)
        ++lastAction_;
}

void editTrail::closeAction()
{
    --openActions_;
}

void editTrail::done(int edit, effect what)
{
    const int place = placeOf(edit, undone_);
    entry next = {edit, openActions_ > 0 ? lastAction_ : 0, false};
    if (place >= 0)
        next = take(place, undone_);
    else
        undone_.clear(); // something new: what was undone cannot be done again
    next.hasEffect = what == changedWeights;
    if (next.hasEffect)
        newestEffective_ = qMax(newestEffective_, edit);
    done_.append(next);
}

void editTrail::undone(int edit)
{
    const int place = placeOf(edit, done_);
    const entry unknown = {edit, 0, false}; // older than this trail
    undone_.append(place >= 0 ? take(place, done_) : unknown);
}

void editTrail::dropped(int edit)
{
    const int done = placeOf(edit, done_);
    if (done >= 0) {
        const bool wasLast = done == done_.size() - 1;
        done_.remove(done);
        for (int i = 0; wasLast && i < done_.size(); ++i)
            done_[i].action = 0;
    }
    const int undone = placeOf(edit, undone_);
    if (undone >= 0)
        undone_.remove(undone);
}

int editTrail::placeOf(int edit, const stack &entries)
{
    int place = entries.size() - 1;
    while (place >= 0 && entries.at(place).edit != edit)
        --place;
    return place;
}

editTrail::entry editTrail::take(int place, stack &entries)
{
    const entry taken = entries.at(place);
    entries.remove(place);
    return taken;
}

int editTrail::countOnTop(const stack &entries)
{
    const int top = entries.size() - 1;
    const int action = top >= 0 ? entries.at(top).action : 0;
    int count = 0;
    for (; action != 0 && count <= top && entries.at(top - count).action == action; ++count) {
        if (!entries.at(top - count).hasEffect)
            return 0;
    }
    return count;
}
