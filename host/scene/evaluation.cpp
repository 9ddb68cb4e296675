// SPDX-License-Identifier: Apache-2.0
#include "scene/evaluation.h"

#include <unordered_set>

#include "scene/scene.h"
#include "scene/transform.h"

namespace host
{

namespace
{

// What a transform's place in the world is made of (scene/transform.h).
constexpr const char *kMoving[] = {"translate",
                                   "rotate",
                                   "scale",
                                   "shear",
                                   "rotateOrder",
                                   "rotateAxis",
                                   "rotatePivot",
                                   "scalePivot",
                                   "rotatePivotTranslate",
                                   "scalePivotTranslate",
                                   "jointOrient",
                                   "segmentScaleCompensate",
                                   "inverseScale",
                                   "inheritsTransform",
                                   "offsetParentMatrix"};

class MoverSearch
{
public:
    explicit MoverSearch(const Scene &scene) : joint_(*scene.types().find("joint")) {}

    NodePtr alongPath(const DagPath &path)
    {
        for (auto node = path.nodes().rbegin(); node != path.nodes().rend(); ++node) {
            if (NodePtr mover = atTransform(*node))
                return mover;
        }
        return nullptr;
    }

private:
    NodePtr atTransform(const NodePtr &node)
    {
        if (!seen_.insert(node.get()).second)
            return nullptr;
        if (!node->type().isKnown || !(node->isA("transform") || node->isA("shape")))
            return node;
        for (const char *name : kMoving) {
            const Plug plug(node, node->findAttribute(name));
            if (plug.isNull())
                continue;
            if (NodePtr mover = into(plug))
                return mover;
            for (const AttributePtr &child : plug.attribute->children) {
                if (NodePtr mover = into(plug.child(child)))
                    return mover;
            }
        }
        return nullptr;
    }

    // The node that makes what arrives at the plug, if it is not evaluated.
    NodePtr into(const Plug &plug, int chain = 0)
    {
        constexpr int kMaxChain = 200; // connections may be circular
        const Connection *source = nullptr;
        for (Plug step = plug; !source && !step.isNull(); step = step.parent())
            source = step.node->source(step);
        if (!source || chain > kMaxChain)
            return nullptr;
        const NodePtr node = source->node->shared_from_this();
        if (isMatrixOfTransform(*source->attribute))
            return alongPath(DagPath::first(node));
        return isStored(*source->attribute) ? into(source->plug(), chain + 1) : node;
    }

    bool isOfTransforms(const Attribute &attribute) const
    {
        return joint_.find(attribute.longName).get() == &attribute;
    }
    bool isMatrixOfTransform(const Attribute &attribute) const
    {
        return attribute.isComputed && attribute.kind == AttributeKind::matrix &&
               isOfTransforms(attribute);
    }
    // Holds what was set: a transform's own numbers, and what a user added to any node.
    bool isStored(const Attribute &attribute) const
    {
        return attribute.isDynamic || (!attribute.isComputed && isOfTransforms(attribute));
    }

    const NodeType &joint_;
    std::unordered_set<const Node *> seen_;
};

} // namespace

NodePtr unevaluatedMover(const DagPath &path)
{
    return MoverSearch(*path.node()->scene()).alongPath(path);
}

} // namespace host
