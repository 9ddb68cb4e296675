// SPDX-License-Identifier: Apache-2.0
// How Scene writes into a node and puts back what was there: shared by the sources of Scene.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "scene/plugAccess.h"
#include "scene/scene.h"

namespace host
{

// What Scene needs of a node's insides to put data back. A friend of both.
struct SceneEdit {
    // What is stored below one top-level attribute or, where a change stays within one element of a
    // top-level array, that element alone: undoing thousands of small edits must not keep thousands
    // of large arrays. Weights cost little whole, their copies share what was not written.
    struct Snapshot {
        std::optional<Datum> datum;
        std::vector<double> numbers; // of one element of a packed array; none if it did not exist
        std::unique_ptr<skin::WeightStore> weights;
    };
    using SnapshotPtr = std::shared_ptr<Snapshot>;

    // The element that a change at `plug` stays within; kNoIndex for the whole attribute.
    static int elementOf(const Plug &plug, const Attribute &top);
    static SnapshotPtr take(const Node &node, const Attribute *top, int element);
    static void restore(Node &node, const Attribute *top, int element, const Snapshot &snapshot);
    // The same where memory has run out: takes from the snapshot what is large.
    static void putBack(Node &node, const Attribute *top, int element, Snapshot &snapshot);

    // Runs `change` on the data at `plug` and records how to go back and forth. What is recorded is
    // done whole or, where it throws, not at all.
    template <typename Function>
    static void run(Scene &scene, const Plug &plug, Function change)
    {
        const NodePtr node = plug.node;
        ++node->dataRevision_;
        if (!scene.isRecording()) {
            scene.isModified_ = true;
            change();
            return;
        }
        const Attribute *top = AttributeChain(*plug.attribute)[0];
        const int element = elementOf(plug, *top);
        const SnapshotPtr before = take(*node, top, element);
        try {
            change();
            record(scene, plug, before);
        } catch (...) {
            putBack(*node, top, element, *before);
            throw;
        }
        scene.isModified_ = true;
    }

    // The block behind a packed array, ready to be written.
    static PackedNumbers &block(Datum &datum, const Attribute &array);
    static PackedNumbers &block(Node &node, const Plug &wholeArray)
    {
        return block(*node.mutableDatum(wholeArray, true), *wholeArray.attribute);
    }

    static void addOwn(Node &node, const AttributePtr &attribute, std::size_t place);
    static void removeOwn(Node &node, const AttributePtr &attribute);
    static void number(Node &node, Attribute &attribute);

    // The one way to an attribute that a node has already. What nodes learn is made by themselves,
    // and none of it is shared with another node.
    static Attribute &learned(const AttributePtr &attribute)
    {
        return const_cast<Attribute &>(*attribute);
    }

private:
    static void record(Scene &scene, const Plug &plug, const SnapshotPtr &before);
    static void restoreElement(Datum &array, const Attribute &top, int element,
                               const Snapshot &snapshot);
};

} // namespace host
