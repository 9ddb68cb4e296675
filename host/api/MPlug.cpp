// SPDX-License-Identifier: Apache-2.0
// Where a plug stands in its node and in the graph. Values are in MPlugValues.cpp.
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MString.h>

#include <limits>

#include "api/attributeBody.h"
#include "api/nodeBody.h"
#include "api/status.h"
#include "api/text.h"
#include "scene/scene.h"

using host::answer;
using host::Attribute;
using host::AttributePtr;
using host::Plug;

namespace
{

// The plug, with the status of a call on it.
const Plug *plugFor(const MPlug &plug, MStatus *status)
{
    const Plug *found = host::plugOf(plug);
    host::report(status, found ? MStatus::kSuccess : MStatus::kFailure);
    return found;
}

bool hasSource(const Plug &plug)
{
    return plug.node->source(plug);
}
bool hasDestination(const Plug &plug)
{
    return !plug.node->destinations(plug).empty();
}
bool isConnectedPlug(const Plug &plug)
{
    return hasSource(plug) || hasDestination(plug);
}

bool belongsTo(const Attribute *ancestor, const Attribute *attribute)
{
    for (const Attribute *step = attribute; step; step = step->parent)
        if (step == ancestor)
            return true;
    return false;
}

bool isOnNode(const host::NodePtr &node, const AttributePtr &attribute)
{
    const Attribute *top = attribute.get();
    while (top->parent)
        top = top->parent;
    return node->findAttribute(top->longName).get() == top;
}

// Makes an element that Maya would make, without a trace in undo.
void createElement(const Plug &element)
{
    const Plug array = element.array();
    if (!element.isComplete() || element.attribute->isComputed || element.node->hasElement(element))
        return;
    host::Scene &scene = *element.node->scene();
    const host::RecordingPause pause(scene);
    scene.addElement(element);
}

bool hasIndexOnTheWay(const Plug &plug)
{
    for (unsigned depth = 0; depth + 1 < plug.attribute->depth(); ++depth)
        if (plug.indices[depth] != host::kNoIndex)
            return true;
    return false;
}

MPlug derived(const MPlug &from, Plug plug)
{
    return host::toMPlug(std::move(plug), from.isNetworked());
}

template <class Test>
unsigned int countElements(const Plug &plug, Test test)
{
    unsigned int count = 0;
    for (const int index : host::elementIndices(plug))
        count += test(plug.element(index));
    return count;
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
        if (belongsTo(step, hostAttribute.get()))
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

unsigned int MPlug::logicalIndex(MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isElement())
        return answer(ReturnStatus, MStatus::kFailure, ~0u);
    return answer(ReturnStatus, MStatus::kSuccess, static_cast<unsigned int>(plug->ownIndex()));
}

MStatus MPlug::selectAncestorLogicalIndex(unsigned int index, const MObject &attribute)
{
    const Plug *plug = host::plugOf(*this);
    if (!plug)
        return MStatus::kFailure;
    const AttributePtr wanted = attribute.isNull() ? plug->attribute : host::attributeOf(attribute);
    const bool isArray =
        wanted && wanted->isArray && belongsTo(wanted.get(), plug->attribute.get());
    if (!isArray || index > static_cast<unsigned int>(std::numeric_limits<int>::max()))
        return MStatus::kInvalidParameter;
    Plug changed = *plug;
    changed.indices[wanted->depth() - 1] = static_cast<int>(index);
    *this = derived(*this, changed);
    return MStatus::kSuccess;
}

unsigned int MPlug::getExistingArrayAttributeIndices(MIntArray &indices, MStatus *ReturnStatus)
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isWholeArray())
        return answer(ReturnStatus, MStatus::kFailure, 0u);
    const std::vector<int> list = host::elementIndices(*plug);
    indices = MIntArray(list.data(), static_cast<unsigned int>(list.size()));
    return answer(ReturnStatus, MStatus::kSuccess, indices.length());
}

unsigned int MPlug::numElements(MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isWholeArray())
        return answer(ReturnStatus, MStatus::kFailure, 0u);
    const std::size_t count = plug->attribute->isComputed ? host::elementIndices(*plug).size()
                                                          : plug->node->elementCount(*plug);
    return answer(ReturnStatus, MStatus::kSuccess, static_cast<unsigned int>(count));
}

unsigned int MPlug::evaluateNumElements(MStatus *ReturnStatus)
{
    return numElements(ReturnStatus);
}

unsigned int MPlug::numChildren(MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->attribute->isCompound())
        return answer(ReturnStatus, MStatus::kFailure, 0u);
    return answer(ReturnStatus, MStatus::kSuccess,
                  static_cast<unsigned int>(plug->attribute->children.size()));
}

unsigned int MPlug::numConnectedElements(MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isWholeArray())
        return answer(ReturnStatus, MStatus::kFailure, 0u);
    return answer(ReturnStatus, MStatus::kSuccess, countElements(*plug, isConnectedPlug));
}

unsigned int MPlug::numConnectedChildren(MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->attribute->isCompound())
        return answer(ReturnStatus, MStatus::kFailure, 0u);
    unsigned int count = 0;
    for (const AttributePtr &child : plug->attribute->children)
        count += isConnectedPlug(plug->child(child));
    return answer(ReturnStatus, MStatus::kSuccess, count);
}

MPlug MPlug::child(MObject &attr, MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    const AttributePtr attribute = host::attributeOf(attr);
    if (!plug)
        return answer(ReturnStatus, MStatus::kFailure, MPlug());
    if (!attribute || attribute->parent != plug->attribute.get())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MPlug());
    return answer(ReturnStatus, MStatus::kSuccess, derived(*this, plug->child(attribute)));
}

MPlug MPlug::child(unsigned int index, MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug)
        return answer(ReturnStatus, MStatus::kFailure, MPlug());
    if (index >= plug->attribute->children.size())
        return answer(ReturnStatus, MStatus::kInvalidParameter, MPlug());
    return answer(ReturnStatus, MStatus::kSuccess,
                  derived(*this, plug->child(plug->attribute->children[index])));
}

MPlug MPlug::parent(MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || plug->isElement() || !plug->attribute->parent)
        return answer(ReturnStatus, MStatus::kFailure, MPlug());
    return answer(ReturnStatus, MStatus::kSuccess, derived(*this, plug->parent()));
}

MPlug MPlug::array(MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isElement())
        return answer(ReturnStatus, MStatus::kFailure, MPlug());
    return answer(ReturnStatus, MStatus::kSuccess, derived(*this, plug->array()));
}

MPlug MPlug::elementByLogicalIndex(unsigned int logicalIndex, MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isWholeArray())
        return answer(ReturnStatus, MStatus::kFailure, MPlug());
    if (logicalIndex > static_cast<unsigned int>(std::numeric_limits<int>::max()))
        return answer(ReturnStatus, MStatus::kInvalidParameter, MPlug());
    const Plug element = plug->element(static_cast<int>(logicalIndex));
    const MStatus status = host::quietly(MStatus::kFailure, [&] { createElement(element); });
    return answer(ReturnStatus, status, status ? derived(*this, element) : MPlug());
}

MPlug MPlug::elementByPhysicalIndex(unsigned int physicalIndex, MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isWholeArray())
        return answer(ReturnStatus, MStatus::kFailure, MPlug());
    const int index = body_->logicalIndex(physicalIndex);
    if (index == host::kNoIndex)
        return answer(ReturnStatus, MStatus::kInvalidParameter, MPlug());
    return answer(ReturnStatus, MStatus::kSuccess, derived(*this, plug->element(index)));
}

MPlug MPlug::connectionByPhysicalIndex(unsigned int physicalIndex, MStatus *ReturnStatus) const
{
    const Plug *plug = host::plugOf(*this);
    if (!plug || !plug->isWholeArray())
        return answer(ReturnStatus, MStatus::kFailure, MPlug());
    for (const int index : host::elementIndices(*plug)) {
        const Plug element = plug->element(index);
        if (isConnectedPlug(element) && physicalIndex-- == 0)
            return answer(ReturnStatus, MStatus::kSuccess, derived(*this, element));
    }
    return answer(ReturnStatus, MStatus::kInvalidParameter, MPlug());
}

// The answer tells whether there is any connection at all, whichever way was asked for.
bool MPlug::connectedTo(MPlugArray &array, bool asDst, bool asSrc, MStatus *ReturnStatus) const
{
    MPlugArray others;
    const Plug *plug = plugFor(*this, ReturnStatus);
    if (plug && asDst && hasSource(*plug))
        others.append(host::toMPlug(plug->node->source(*plug)->plug(), true));
    if (plug && asSrc)
        for (const host::Connection &connection : plug->node->destinations(*plug))
            others.append(host::toMPlug(connection.plug(), true));
    array = others;
    return plug && isConnectedPlug(*plug);
}

MPlug::FreeToChangeState MPlug::isFreeToChange(bool, bool, MStatus *ReturnStatus) const
{
    const Plug *plug = plugFor(*this, ReturnStatus);
    return plug && host::isSettable(*plug) ? kFreeToChange : kNotFreeToChange;
}

MPlug MPlug::operator[](unsigned int physicalIndex) const
{
    return elementByPhysicalIndex(physicalIndex);
}

MPlug MPlug::operator[](MObject &attr) const
{
    return child(attr);
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
