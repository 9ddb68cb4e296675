// SPDX-License-Identifier: Apache-2.0
// An array of points. No bounds are checked, as in Maya; setLength adds default elements.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MPointArray
{
public:
    MPointArray();
    MPointArray(const MPointArray &other);
    MPointArray(unsigned int initialSize, const MPoint &initialValue);
    MPointArray(const MPoint src[], unsigned int count);
    ~MPointArray();
    MPointArray &operator=(const MPointArray &other);

    const MPoint &operator[](unsigned int index) const;
    MPoint &operator[](unsigned int index);
    unsigned int length() const;
    MStatus setLength(unsigned int length);
    MStatus set(const MPoint &element, unsigned int index);
    MStatus insert(const MPoint &element, unsigned int index);
    MStatus append(const MPoint &element);
    MStatus remove(unsigned int index);
    MStatus clear();
    MStatus copy(const MPointArray &source);
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<MPoint> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
