// SPDX-License-Identifier: Apache-2.0
// Elements, children and connections of plugs.
#include <limits>

#include <maya/MPlugArray.h>

#include "api/attributeBody.h"
#include "api/plugCalls.h"
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

template <class Test>
unsigned int countElements(const Plug &plug, Test test)
{
    unsigned int count = 0;
    for (const int index : host::elementIndices(plug))
        count += test(plug.element(index));
    return count;
}

} // namespace

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
        wanted && wanted->isArray && host::isAtOrAbove(wanted.get(), plug->attribute.get());
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
    const host::Connection *source = plug && asDst ? plug->node->source(*plug) : nullptr;
    if (source)
        others.append(host::toMPlug(source->plug(), true));
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
