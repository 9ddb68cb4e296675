// SPDX-License-Identifier: Apache-2.0
//
// What the editor may undo and redo, by what the edits report.

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "model/editTrail.h"

namespace
{

// Plays a story of words: "(" and ")" open and close an action, "a" is edit a done or redone, "a!"
// without effect, "-a" undone, "~a" dropped. "2/1": how many edits can be undone and redone then.
std::string ends(const std::string &story)
{
    editTrail trail;
    std::istringstream words(story);
    for (std::string word; words >> word;) {
        const bool isSigned = word[0] == '-' || word[0] == '~';
        const int edit = word[isSigned ? 1 : 0];
        if (word == "(")
            trail.openAction();
        else if (word == ")")
            trail.closeAction();
        else if (word[0] == '-')
            trail.undone(edit);
        else if (word[0] == '~')
            trail.dropped(edit);
        else
            trail.done(edit,
                       word.back() == '!' ? editTrail::changedNothing : editTrail::changedWeights);
    }
    return std::to_string(trail.undoableCount()) + "/" + std::to_string(trail.redoableCount());
}

} // namespace

TEST(editTrail, findsTheActionOnTop)
{
    const struct {
        const char *what, *story, *end;
    } cases[] = {
        {"nothing yet", "", "0/0"},
        {"an action", "( a )", "1/0"},
        {"two", "( a ) ( b )", "1/0"},
        {"of two edits", "( a ) ( ( b ) ( c ) )", "2/0"},
        {"an edit of nobody's", "a", "0/0"},
        {"on top of an action", "( a ) b", "0/0"},
        {"undone", "( a ) -a", "0/1"},
        {"one of two", "( a ) ( b ) -b", "1/1"},
        {"half an action", "( a b ) -b", "1/1"},
        {"all of it", "( a b ) -b -a", "0/2"},
        {"and again", "( a b ) -b -a a b", "2/0"},
        {"both of two actions", "( a ) ( b ) -b -a", "0/1"},
        {"in order", "( a ) ( b c ) -c -b -a a", "1/2"},
        {"something new instead", "( a ) ( b ) -b ( c )", "1/0"},
        {"something of nobody's instead", "( a ) -a b -b", "0/0"},
        {"nothing written", "( a ) ( b! )", "0/0"},
        {"half written", "( a b! )", "0/0"},
        {"nothing written, undone", "( a ) ( b! ) -b", "1/0"},
        {"older than the trail", "-x ( a )", "1/0"},
        {"older than the trail, on the other side", "( a ) -a -x", "0/0"},
        {"too old for the queue", "( a ) ( b ) ~a", "1/0"},
        {"flushed", "( a ) ( b ) ~a ~b", "0/0"},
        {"flushed, latest first", "( a ) ( b ) ~b ~a", "0/0"},
        {"flushed and gone on", "( a ) ~a ( b )", "1/0"},
        {"never recorded, over an older one", "( a ) ( b ) ~b", "0/0"},
        {"recorded again", "( a ) ( b ) ~b ( c )", "1/0"},
        {"dropped for something else", "( a ) ( b ) -b ~b", "1/0"},
        {"unknown", "( a ) ~x", "1/0"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(ends(c.story), c.end) << c.what << ": " << c.story;
}

TEST(editTrail, numbersEachEditOnce)
{
    const int edit = editTrail::newEdit();
    EXPECT_NE(editTrail::newEdit(), edit);
}
