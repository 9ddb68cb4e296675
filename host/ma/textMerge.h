// SPDX-License-Identifier: Apache-2.0
// The text of a file on its way to what the scene says now: what becomes of each statement, and
// what is new.
//
// A statement that says what still holds is copied with its line breaks. One that says something
// else by now is changed in its words, or written anew at its place; one about what is gone is left
// out. What is new comes behind what it belongs to: values and attributes in their node's block,
// nodes behind those of their kind, connections behind those into the same node.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "ma/nodePairs.h"
#include "ma/sceneDifference.h"
#include "ma/template.h"

namespace host::ma
{

struct TextMerge {
    // Statements about one node, by their place in the template.
    struct Block {
        std::vector<std::size_t> statements;
        bool hasCreate = false;
    };

    // Both must stay as they are meanwhile.
    TextMerge(const Template &before, Scene &now);

    const Template &before;
    Scene &now;
    FileStyle style;
    NodePairs pairs;
    bool areNamesKept = true; // every name of the template means the same node in the scene
    // Attributes of the scene whose statements are to be written anew rather than changed.
    std::set<std::pair<const Node *, const Attribute *>> writtenAnew;

    std::vector<Node *> order; // nodes of the template that it speaks about
    std::unordered_map<const Node *, Block> blocks;
    // The places behind which others of the kind belong.
    std::size_t lastFact = 0, lastDagNode = 0, lastNode = 0, lastDefault = 0, lastConnection = 0,
                lastTrailing = 0;

    // By statement. New text begins with a line end and ends without one.
    std::unordered_map<std::size_t, std::string> replacements; // empty: left out
    std::unordered_map<std::size_t, std::string> additions;    // behind it, within its block
    std::unordered_map<std::size_t, std::string> followers;    // behind it and its additions
    std::unordered_set<const Node *> deferred; // of the template: stands elsewhere now

    void drop(std::size_t statement) { replacements[statement].clear(); }
    void add(std::size_t behind, const std::string &text) { additions[behind] += text; }
    void follow(std::size_t behind, const std::string &text) { followers[behind] += text; }
    // Whether `name`, as the template has it, means this node in the scene.
    bool means(std::string_view name, const Node *node) const;

    // What has become of one statement, without followers.
    std::string textOf(std::size_t statement) const;
    // All of it, as UTF-8. `name` replaces the file's own in the comments, unless it is empty.
    std::string text(const std::string &name) const;

private:
    void sortStatements();
    bool isNamedAsBefore() const;
    std::string withLineEnds(std::string text) const;
    std::string header(const std::string &name) const;
    std::string ending(const std::string &name) const;

    bool hasCrLf_ = false;
};

// Each brings one part of the text up to date: what the file says about itself; blocks of nodes;
// then nodes that are new or stand elsewhere, and instances; connections.
void mergeFacts(TextMerge &merge);
void mergeBlocks(TextMerge &merge);
void mergePlaces(TextMerge &merge);
void mergeConnections(TextMerge &merge);

// Blanks and comments in front of a statement's command.
std::string_view beforeCommand(std::string_view statement);
// The words in quotes, as they stand: names in createNode, parent and connectAttr.
std::vector<std::string_view> quotedWords(std::string_view statement);

} // namespace host::ma
