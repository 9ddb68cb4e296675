// SPDX-License-Identifier: Apache-2.0
// An array of plugs. No bounds are checked, as in Maya; setLength adds default elements.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MPlugArray
{
public:
    MPlugArray();
    MPlugArray(const MPlugArray &other);
    MPlugArray(unsigned int initializeSize, const MPlug &initialValue);
    ~MPlugArray();
    MPlugArray &operator=(const MPlugArray &other);

    const MPlug &operator[](unsigned int index) const;
    MPlug &operator[](unsigned int index);
    unsigned int length() const;
    MStatus setLength(unsigned int length);
    MStatus set(const MPlug &element, unsigned int index);
    MStatus insert(const MPlug &element, unsigned int index);
    MStatus append(const MPlug &element);
    MStatus remove(unsigned int index);
    MStatus clear();
    MStatus copy(const MPlugArray &source);
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<MPlug> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
