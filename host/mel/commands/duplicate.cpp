// SPDX-License-Identifier: Apache-2.0
// duplicate: copies DAG objects with all below them, as they stand now.
//
// A copy holds values only: what fed the original is not copied and does not feed the copy. Meshes
// get the geometry that the host shows, joints stay tied to the scale of the joint above, and what
// is shaded stays shaded.
#include <unordered_map>

#include "mel/commands/builtInCommands.h"
#include "mel/commands/commandSupport.h"
#include "mel/commands/deformerNetwork.h"
#include "mel/commands/jointScale.h"
#include "mel/commands/setEditor.h"
#include "scene/history.h"
#include "scene/plugAccess.h"
#include "scene/primitives.h"
#include "scene/setMembers.h"

namespace host::mel
{

namespace
{

// Numbers and matrices that arrive by connections become the copy's own values.
void keepArrivingValue(Scene &scene, const Plug &original, const NodePtr &copy)
{
    if (original.attribute->isTuple()) {
        for (const AttributePtr &child : original.attribute->children)
            keepArrivingValue(scene, original.child(child), copy);
        return;
    }
    const Value value = evaluate(original);
    if (!original.isComplete() || original.attribute->isCompound() ||
        std::holds_alternative<std::monostate>(value))
        return;
    const PlugRange range = resolvePlugPath(copy, original.path(), UnknownAttribute::refuse);
    scene.setValue(range.plug, value);
}

void keepArrivingValues(Scene &scene, const NodePtr &original, const NodePtr &copy)
{
    for (const auto &entry : original->sources()) {
        const Plug plug = original->plugOf(entry.first);
        if (!AttributeChain(*plug.attribute)[0]->isPerInstance)
            keepArrivingValue(scene, plug, copy);
    }
}

// A shape that is fed by history stores nothing of what it shows.
void keepArrivingGeometry(Scene &scene, const NodePtr &original, const NodePtr &copy)
{
    const Plug input = shapeInput(*original);
    if (input.isNull() || !original->source(input))
        return;
    const bool isMesh = original->isA("mesh");
    const NodePtr source = isMesh ? geometrySource(*original) : nullptr;
    if (!source || meshGeometry(*original).points.empty())
        throw Error("duplicate: '" + original->uniqueName() +
                    "' is made by history that is not evaluated; its shape is not known.");
    if (source->isA("mesh") && source != original)
        copyGeometry(scene, source, copy);
    else if (!source->isA("mesh"))
        storeGeometry(scene, copy, primitiveGeometry(*source));
}

// Makes the copy a member of the shading groups that its original is a member of, by faces too.
void shadeAlike(Scene &scene, const DagPath &original, const DagPath &copy)
{
    for (const NodePtr &set : setsOf(itemOf(original))) {
        if (set->isA("shadingEngine"))
            SetEditor(scene, set).add(itemOf(copy));
    }
    const Plug instance = original.node()->plug("instObjGroups").element(0);
    const Plug groups = instance.child(instance.attribute->child("objectGroups"));
    for (const int index : original.node()->elementIndices(groups)) {
        SelectionItem member;
        if (!memberAt(groups.element(index), member))
            continue;
        for (const Connection &end : original.node()->destinations(groups.element(index))) {
            SelectionItem item = itemOf(copy);
            item.component = member.component;
            if (end.node->isA("shadingEngine"))
                SetEditor(scene, end.node->shared_from_this()).add(item);
        }
    }
}

class Duplication
{
public:
    Duplication(Scene &scene, bool renamesChildren, bool copiesChildren)
        : scene_(scene), renamesChildren_(renamesChildren), copiesChildren_(copiesChildren)
    {
    }

    DagPath copy(const DagPath &original, const std::string &name)
    {
        const DagPath above = original.parent();
        const NodePtr root =
            copyNode(original.node(), name, above.isNull() ? nullptr : above.node());
        return above.isNull() ? DagPath({root}) : above.child(root);
    }

    // Names of the transforms that were made, each before those below it. Shapes go without saying.
    std::vector<std::string> names() const { return uniqueNames(transforms_); }

private:
    NodePtr copyNode(const NodePtr &original, const std::string &name, const NodePtr &parent)
    {
        const NodePtr copy =
            scene_.createNode(original->type().name, name, parent, Scene::UnknownType::learn);
        copies_.emplace(original.get(), copy);
        scene_.copyData(original, copy);
        keepArrivingValues(scene_, original, copy);
        if (isShape(*original)) {
            keepArrivingGeometry(scene_, original, copy);
            shadeAlike(scene_, DagPath::first(original), DagPath::first(copy));
            return copy;
        }
        transforms_.push_back(copy);
        if (original->isA("joint") && original->source(original->plug("inverseScale")))
            connectInverseScale(scene_, copy, parent);
        if (copiesChildren_)
            copyChildren(original, copy);
        return copy;
    }

    void copyChildren(const NodePtr &original, const NodePtr &copy)
    {
        const std::vector<NodePtr> children = original->children();
        for (const NodePtr &child : children) {
            const auto done = copies_.find(child.get());
            if (done != copies_.end())
                scene_.addInstance(done->second, copy);
            else
                copyNode(child, childName(*child, *original, *copy), copy);
        }
    }

    // Shapes follow the name of their transform, as they do when it is renamed.
    std::string childName(const Node &child, const Node &parent, const Node &copiedParent) const
    {
        const std::string shapeName = shapeNameFor(parent.name());
        if (isShape(child) && child.name().compare(0, shapeName.size(), shapeName) == 0)
            return shapeNameFor(copiedParent.name()) + child.name().substr(shapeName.size());
        return renamesChildren_ ? child.name() + '#' : child.name();
    }

    Scene &scene_;
    bool renamesChildren_;
    bool copiesChildren_;
    std::vector<NodePtr> transforms_;
    std::unordered_map<const Node *, NodePtr> copies_; // by original
};

std::vector<DagPath> originals(Context &context, const Arguments &arguments)
{
    std::vector<DagPath> paths;
    for (const SelectionItem &item : objectsOrSelection(context, arguments)) {
        if (item.component || item.isPlug() || item.path.isNull())
            throw Error("duplicate: '" + item.names().front() + "' is no DAG object.");
        paths.push_back(isShape(*item.node) ? item.path.parent() : item.path);
    }
    if (paths.empty())
        throw Error("duplicate: No objects were specified and none is selected.");
    return paths;
}

MelValue duplicate(Context &context, const Arguments &arguments)
{
    std::vector<std::string> names;
    std::vector<SelectionItem> roots;
    for (const DagPath &path : originals(context, arguments)) {
        Duplication duplication(context.scene(), arguments.has("renameChildren"),
                                !arguments.has("parentOnly"));
        const std::string name = arguments.string("name", path.node()->name());
        roots.push_back(itemOf(duplication.copy(path, name)));
        for (std::string &made : duplication.names()) {
            names.push_back(std::move(made));
            if (arguments.has("returnRootsOnly"))
                break;
        }
    }
    context.session.adjustSelection(roots, Session::Adjustment::replace);
    return names;
}

} // namespace

void addDuplicateCommand(CommandTable &table)
{
    table.add({"duplicate",
               {{"n", "name", "s"},
                {"rr", "returnRootsOnly"},
                {"rc", "renameChildren"},
                {"po", "parentOnly"}},
               duplicate});
}

} // namespace host::mel
