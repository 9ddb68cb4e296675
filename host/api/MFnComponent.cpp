// SPDX-License-Identifier: Apache-2.0
#include <maya/MFnComponent.h>
#include <maya/MFnSingleIndexedComponent.h>
#include <maya/MIntArray.h>

#include <algorithm>

#include "api/componentBody.h"
#include "api/functionSet.h"

using host::answer;
using host::ComponentBody;

namespace
{

// The component of a function set; reports whether there is one.
std::shared_ptr<ComponentBody> componentOf(const MFnBase &functionSet, MStatus *status = nullptr)
{
    std::shared_ptr<ComponentBody> body = host::bodyOf<ComponentBody>(functionSet);
    return answer(status, body ? MStatus::kSuccess : MStatus::kFailure, body);
}

} // namespace

DEFINE_FUNCTION_SET(MFnComponent, MFn::kComponent)
MFnComponent::MFnComponent() = default;

int MFnComponent::elementCount(MStatus *ReturnStatus) const
{
    const auto body = componentOf(*this, ReturnStatus);
    return body ? body->count() : 0;
}

MFn::Type MFnComponent::componentType(MStatus *ReturnStatus) const
{
    const auto body = componentOf(*this, ReturnStatus);
    return body ? body->apiType() : MFn::kInvalid;
}

bool MFnComponent::isEmpty(MStatus *ReturnStatus) const
{
    return elementCount(ReturnStatus) == 0;
}

bool MFnComponent::isEqual(MObject &other, MStatus *ReturnStatus) const
{
    const auto body = componentOf(*this, ReturnStatus);
    const auto otherBody = host::bodyOf<ComponentBody>(other);
    return body && otherBody && body->sameAs(*otherBody);
}

bool MFnComponent::isComplete(MStatus *ReturnStatus) const
{
    const auto body = componentOf(*this, ReturnStatus);
    return body && body->isComplete();
}

MStatus MFnComponent::setComplete(bool complete)
{
    const auto body = componentOf(*this);
    if (!body)
        return MStatus::kFailure;
    if (complete && !body->isComplete())
        body->setComplete(body->count());
    else if (!complete && body->isComplete())
        body->setIncomplete();
    return MStatus::kSuccess;
}

bool MFnComponent::hasWeights() const
{
    return false;
}

DEFINE_FUNCTION_SET(MFnSingleIndexedComponent, MFn::kSingleIndexedComponent)

MObject MFnSingleIndexedComponent::create(MFn::Type compType, MStatus *ReturnStatus)
{
    constexpr MFn::Type kOtherTypes[] = {MFn::kCurveCVComponent};
    host::ComponentKind kind;
    const bool isSingleIndexed =
        host::toComponentKind(compType, kind) ||
        std::count(std::begin(kOtherTypes), std::end(kOtherTypes), compType);
    if (!isSingleIndexed)
        return answer(ReturnStatus, MStatus::kInvalidParameter, MObject());
    const MObject object = host::makeObject(std::make_shared<ComponentBody>(compType));
    return answer(ReturnStatus, setObject(object), object);
}

MStatus MFnSingleIndexedComponent::addElement(int element)
{
    const auto body = componentOf(*this);
    if (!body)
        return MStatus::kFailure;
    if (element < 0)
        return MStatus::kInvalidParameter;
    body->add(element);
    return MStatus::kSuccess;
}

MStatus MFnSingleIndexedComponent::addElements(MIntArray &elements)
{
    const auto body = componentOf(*this);
    if (!body)
        return MStatus::kFailure;
    std::vector<int> sorted(elements.length());
    elements.get(sorted.data());
    std::sort(sorted.begin(), sorted.end());
    if (!sorted.empty() && sorted.front() < 0)
        return MStatus::kInvalidParameter;
    for (const int element : sorted)
        body->add(element);
    return MStatus::kSuccess;
}

int MFnSingleIndexedComponent::elementMax(MStatus *ReturnStatus) const
{
    const auto body = componentOf(*this, ReturnStatus);
    return body && body->count() > 0 ? body->element(body->count() - 1) + 1 : 0;
}

int MFnSingleIndexedComponent::element(int index, MStatus *ReturnStatus) const
{
    const auto body = componentOf(*this, ReturnStatus);
    if (!body)
        return 0;
    if (index < 0 || index >= body->count())
        return answer(ReturnStatus, MStatus::kInvalidParameter, 0);
    return body->element(index);
}

MStatus MFnSingleIndexedComponent::getElements(MIntArray &elements) const
{
    const auto body = componentOf(*this);
    if (!body)
        return MStatus::kFailure;
    const std::vector<int> list = body->elements();
    elements = MIntArray(list.data(), static_cast<unsigned int>(list.size()));
    return MStatus::kSuccess;
}

MStatus MFnSingleIndexedComponent::setCompleteData(int numElements)
{
    const auto body = componentOf(*this);
    if (!body)
        return MStatus::kFailure;
    if (numElements < 0)
        return MStatus::kInvalidParameter;
    body->setComplete(numElements);
    return MStatus::kSuccess;
}

MStatus MFnSingleIndexedComponent::getCompleteData(int &numElements) const
{
    const auto body = componentOf(*this);
    if (!body || !body->isComplete())
        return MStatus::kFailure;
    numElements = body->count();
    return MStatus::kSuccess;
}
