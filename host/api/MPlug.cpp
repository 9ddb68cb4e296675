// SPDX-License-Identifier: Apache-2.0
// What a plug is: its attribute, name and state. Its place in the graph is in MPlugTree.cpp, values
// in MPlugGetters.cpp and MPlugSetters.cpp.
#include <maya/MPlug.h>
#include <maya/MString.h>

#include "api/attributeBody.h"
#include "api/plugCalls.h"
#include "api/text.h"
#include "scene/scene.h"

using host::answer;
using host::Attribute;
using host::AttributePtr;
using host::derived;
using host::isConnectedPlug;
using host::Plug;
using host::plugFor;

namespace
{

bool hasSource(const Plug &plug)
{
    return plug.node->source(plug);
}

bool hasDestination(const Plug &plug)
{
    return !plug.node->destinations(plug).empty();
}

bool isOnNode(const host::NodePtr &node, const AttributePtr &attribute)
{
    const Attribute *top = attribute.get();
    while (top->parent)
        top = top->parent;
    return node->findAttribute(top->longName).get() == top;
}

bool hasIndexOnTheWay(const Plug &plug)
{
    for (unsigned depth = 0; depth + 1 < plug.attribute->depth(); ++depth)
        if (plug.indices[depth] != host::kNoIndex)
            return true;
    return false;
}

} // namespace

MPlug::MPlug() = default;
MPlug::MPlug(const MPlug &other) = default;
MPlug::~MPlug() = default;
MPlug &MPlug::operator=(const MPlug &other) = default;
const char *MPlug::className()
{
    return "MPlug";
}

MPlug::MPlug(const MObject &node, const MObject &attribute)
{
    const host::NodePtr hostNode = host::nodeOf(node);
    const AttributePtr hostAttribute = host::attributeOf(attribute);
    if (hostNode && hostAttribute && isOnNode(hostNode, hostAttribute))
        *this = host::toMPlug(Plug(hostNode, hostAttribute));
}

// Indices of the arrays that both attributes lie below stay as they are.
MStatus MPlug::setAttribute(MObject &attribute)
{
    const Plug *plug = host::plugOf(*this);
    const AttributePtr hostAttribute = host::attributeOf(attribute);
    if (!plug)
        return MStatus::kFailure;
    if (!hostAttribute || !isOnNode(plug->node, hostAttribute))
        return MStatus::kInvalidParameter;
    Plug changed(plug->node, hostAttribute);
    for (const Attribute *step = plug->attribute.get(); step; step = step->parent)
        if (host::isAtOrAbove(step, hostAttribute.get()))
            changed.indices[step->depth() - 1] = plug->indices[step->depth() - 1];
    *this = derived(*this, changed);
    return MStatus::kSuccess;
}

MObject MPlug::attribute(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug ? host::toObject(plug->attribute) : MObject();
}

MObject MPlug::node(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug ? host::toObject(plug->node) : MObject();
}

MString MPlug::name(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug ? host::toMString(plug->name()) : MString();
}

MString MPlug::partialName(bool includeNodeName, bool, bool, bool, bool useFullAttributePath,
                           bool useLongNames, MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    if (!plug)
        return MString();
    std::string text = plug->path(!useLongNames);
    if (!useFullAttributePath && !hasIndexOnTheWay(*plug))
        text.erase(0, text.rfind('.') + 1);
    return host::toMString(includeNodeName ? plug->node->uniqueName() + '.' + text : text);
}

bool MPlug::isNetworked(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && body_->isNetworked && isConnectedPlug(*plug);
}

bool MPlug::isNull(MStatus *ReturnStatus) const
{
    return answer(ReturnStatus, MStatus::kSuccess, host::plugOf(*this) == nullptr);
}

bool MPlug::isArray(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && plug->isWholeArray();
}

bool MPlug::isElement(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && plug->isElement();
}

bool MPlug::isCompound(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && plug->attribute->isCompound();
}

bool MPlug::isChild(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && plug->attribute->parent && !plug->isElement();
}

bool MPlug::isConnected(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && isConnectedPlug(*plug);
}

bool MPlug::isSource(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && hasDestination(*plug);
}

bool MPlug::isDestination(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && hasSource(*plug);
}

bool MPlug::isDynamic(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    if (!plug)
        return false;
    const Attribute *top = plug->attribute.get();
    while (top->parent)
        top = top->parent;
    return top->isDynamic;
}

bool MPlug::isLocked(MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    if (!plug)
        return false;
    for (Plug step = *plug; !step.isNull(); step = step.parent())
        if (step.node->state(step).isLocked)
            return true;
    return false;
}

MStatus MPlug::setLocked(bool locked)
{
    const Plug *plug = host::plugOf(*this);
    if (!plug)
        return MStatus::kFailure;
    return host::loudly([&] {
        const host::RecordingPause pause(*plug->node->scene());
        host::PlugState state = plug->node->state(*plug);
        state.isLocked = locked;
        plug->node->scene()->setState(*plug, state);
    });
}

bool MPlug::isFromReferencedFile(MStatus *ReturnStatus) const
{
    plugFor(*this, ReturnStatus);
    return false; // the host resolves no references
}

bool MPlug::operator==(const MPlug &other) const
{
    const Plug *plug = host::plugOf(*this);
    const Plug *otherPlug = host::plugOf(other);
    return plug && otherPlug ? *plug == *otherPlug : plug == otherPlug;
}

bool MPlug::operator==(const MObject &attribute) const
{
    const Plug *plug = host::plugOf(*this);
    return plug && plug->attribute == host::attributeOf(attribute);
}

bool MPlug::operator!=(const MPlug &other) const
{
    return !(*this == other);
}
bool MPlug::operator!=(const MObject &attribute) const
{
    return !(*this == attribute);
}
MPlug::operator MObject() const
{
    return attribute();
}
bool MPlug::operator!() const
{
    return isNull();
}
