// SPDX-License-Identifier: Apache-2.0
// An array of objects. No bounds are checked, as in Maya; setLength adds default elements.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MObject.h>
#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MObjectArray
{
public:
    MObjectArray();
    MObjectArray(const MObjectArray &other);
    MObjectArray(unsigned int initialSize, const MObject &initialValue = MObject::kNullObj);
    MObjectArray(const MObject src[], unsigned int count);
    ~MObjectArray();
    MObjectArray &operator=(const MObjectArray &other);

    const MObject &operator[](unsigned int index) const;
    MObject &operator[](unsigned int index);
    unsigned int length() const;
    MStatus setLength(unsigned int length);
    MStatus set(const MObject &element, unsigned int index);
    MStatus insert(const MObject &element, unsigned int index);
    MStatus append(const MObject &element);
    MStatus remove(unsigned int index);
    MStatus clear();
    MStatus copy(const MObjectArray &source);
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<MObject> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
