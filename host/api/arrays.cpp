// SPDX-License-Identifier: Apache-2.0
// The eight array classes: the same members over different elements.
#include <maya/MCallbackIdArray.h>
#include <maya/MDagPath.h>
#include <maya/MDagPathArray.h>
#include <maya/MDoubleArray.h>
#include <maya/MIntArray.h>
#include <maya/MObjectArray.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MPoint.h>
#include <maya/MPointArray.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include <algorithm>

// Constructors, copies and the members that every array class has. An index beyond the end is the
// caller's mistake in Maya; here insert() and remove() refuse it.
#define DEFINE_ARRAY(Array, Parameter)                                                             \
    Array::Array() = default;                                                                      \
    Array::Array(const Array &other) = default;                                                    \
    Array::~Array() = default;                                                                     \
    Array &Array::operator=(const Array &other) = default;                                         \
    const char *Array::className()                                                                 \
    {                                                                                              \
        return #Array;                                                                             \
    }                                                                                              \
    MStatus Array::setLength(unsigned int length)                                                  \
    {                                                                                              \
        elements_.resize(length);                                                                  \
        return MStatus::kSuccess;                                                                  \
    }                                                                                              \
    MStatus Array::set(Parameter element, unsigned int index)                                      \
    {                                                                                              \
        if (index >= elements_.size())                                                             \
            return MStatus::kInvalidParameter;                                                     \
        elements_[index] = element;                                                                \
        return MStatus::kSuccess;                                                                  \
    }                                                                                              \
    MStatus Array::insert(Parameter element, unsigned int index)                                   \
    {                                                                                              \
        if (index > elements_.size())                                                              \
            return MStatus::kInvalidParameter;                                                     \
        elements_.insert(elements_.begin() + index, element);                                      \
        return MStatus::kSuccess;                                                                  \
    }                                                                                              \
    MStatus Array::append(Parameter element)                                                       \
    {                                                                                              \
        elements_.push_back(element);                                                              \
        return MStatus::kSuccess;                                                                  \
    }                                                                                              \
    MStatus Array::remove(unsigned int index)                                                      \
    {                                                                                              \
        if (index >= elements_.size())                                                             \
            return MStatus::kInvalidParameter;                                                     \
        elements_.erase(elements_.begin() + index);                                                \
        return MStatus::kSuccess;                                                                  \
    }                                                                                              \
    MStatus Array::clear()                                                                         \
    {                                                                                              \
        elements_.clear();                                                                         \
        return MStatus::kSuccess;                                                                  \
    }                                                                                              \
    void Array::setSizeIncrement(unsigned int newIncrement)                                        \
    {                                                                                              \
        sizeIncrement_ = newIncrement;                                                             \
    }                                                                                              \
    unsigned int Array::sizeIncrement() const                                                      \
    {                                                                                              \
        return sizeIncrement_;                                                                     \
    }

#define DEFINE_COPY(Array)                                                                         \
    MStatus Array::copy(const Array &source)                                                       \
    {                                                                                              \
        elements_ = source.elements_;                                                              \
        return MStatus::kSuccess;                                                                  \
    }

// Arrays of objects: their headers know the element by name only.
#define DEFINE_OBJECT_ACCESS(Array, Element)                                                       \
    const Element &Array::operator[](unsigned int index) const                                     \
    {                                                                                              \
        return elements_[index];                                                                   \
    }                                                                                              \
    Element &Array::operator[](unsigned int index)                                                 \
    {                                                                                              \
        return elements_[index];                                                                   \
    }                                                                                              \
    unsigned int Array::length() const                                                             \
    {                                                                                              \
        return static_cast<unsigned int>(elements_.size());                                        \
    }                                                                                              \
    DEFINE_COPY(Array)

#define DEFINE_FILLED_CONSTRUCTOR(Array, Parameter)                                                \
    Array::Array(unsigned int initialSize, Parameter initialValue)                                 \
        : elements_(initialSize, initialValue)                                                     \
    {                                                                                              \
    }

#define DEFINE_COPYING_CONSTRUCTOR(Array, Source)                                                  \
    Array::Array(const Source src[], unsigned int count) : elements_(src, src + count) {}

#define DEFINE_GET(Array, Target)                                                                  \
    MStatus Array::get(Target array[]) const                                                       \
    {                                                                                              \
        std::transform(elements_.begin(), elements_.end(), array,                                  \
                       [](auto element) { return static_cast<Target>(element); });                 \
        return MStatus::kSuccess;                                                                  \
    }

DEFINE_ARRAY(MIntArray, int)
DEFINE_FILLED_CONSTRUCTOR(MIntArray, int)
DEFINE_COPYING_CONSTRUCTOR(MIntArray, int)
DEFINE_COPY(MIntArray)
DEFINE_GET(MIntArray, int)

DEFINE_ARRAY(MDoubleArray, double)
DEFINE_FILLED_CONSTRUCTOR(MDoubleArray, double)
DEFINE_COPYING_CONSTRUCTOR(MDoubleArray, double)
DEFINE_COPYING_CONSTRUCTOR(MDoubleArray, float)
DEFINE_COPY(MDoubleArray)
DEFINE_GET(MDoubleArray, double)
DEFINE_GET(MDoubleArray, float)

MStatus MDoubleArray::set(float element, unsigned int index)
{
    return set(static_cast<double>(element), index);
}

DEFINE_ARRAY(MCallbackIdArray, MCallbackId)
DEFINE_FILLED_CONSTRUCTOR(MCallbackIdArray, MCallbackId)
DEFINE_COPYING_CONSTRUCTOR(MCallbackIdArray, MCallbackId)
DEFINE_COPY(MCallbackIdArray)
DEFINE_GET(MCallbackIdArray, MCallbackId)

DEFINE_ARRAY(MObjectArray, const MObject &)
DEFINE_FILLED_CONSTRUCTOR(MObjectArray, const MObject &)
DEFINE_COPYING_CONSTRUCTOR(MObjectArray, MObject)
DEFINE_OBJECT_ACCESS(MObjectArray, MObject)

DEFINE_ARRAY(MDagPathArray, const MDagPath &)
DEFINE_FILLED_CONSTRUCTOR(MDagPathArray, const MDagPath &)
DEFINE_OBJECT_ACCESS(MDagPathArray, MDagPath)

DEFINE_ARRAY(MPlugArray, const MPlug &)
DEFINE_FILLED_CONSTRUCTOR(MPlugArray, const MPlug &)
DEFINE_OBJECT_ACCESS(MPlugArray, MPlug)

DEFINE_ARRAY(MPointArray, const MPoint &)
DEFINE_FILLED_CONSTRUCTOR(MPointArray, const MPoint &)
DEFINE_COPYING_CONSTRUCTOR(MPointArray, MPoint)
DEFINE_OBJECT_ACCESS(MPointArray, MPoint)

DEFINE_ARRAY(MStringArray, const MString &)
DEFINE_FILLED_CONSTRUCTOR(MStringArray, const MString &)
DEFINE_COPYING_CONSTRUCTOR(MStringArray, MString)

MStringArray::MStringArray(const char *strings[], unsigned int count)
    : elements_(strings, strings + count)
{
}

MString MStringArray::operator[](unsigned int index) const
{
    return elements_[index];
}
MString &MStringArray::operator[](unsigned int index)
{
    return elements_[index];
}
unsigned int MStringArray::length() const
{
    return static_cast<unsigned int>(elements_.size());
}

const char *MPoint::className()
{
    return "MPoint";
}
