// SPDX-License-Identifier: Apache-2.0
// An array of paths. No bounds are checked, as in Maya; setLength adds default elements.
// Stands in for Maya's header of this name; declarations only.
#pragma once

#include <maya/MStatus.h>

#include <vector>

MAYA_API_NAMESPACE_ENTER

class OPENMAYA_EXPORT MDagPathArray
{
public:
    MDagPathArray();
    MDagPathArray(const MDagPathArray &other);
    MDagPathArray(unsigned int initializeSize, const MDagPath &initialValue);
    ~MDagPathArray();
    MDagPathArray &operator=(const MDagPathArray &other);

    const MDagPath &operator[](unsigned int index) const;
    MDagPath &operator[](unsigned int index);
    unsigned int length() const;
    MStatus setLength(unsigned int length);
    MStatus set(const MDagPath &element, unsigned int index);
    MStatus insert(const MDagPath &element, unsigned int index);
    MStatus append(const MDagPath &element);
    MStatus remove(unsigned int index);
    MStatus clear();
    MStatus copy(const MDagPathArray &source);
    void setSizeIncrement(unsigned int newIncrement);
    unsigned int sizeIncrement() const;
    static const char *className();

private:
    std::vector<MDagPath> elements_;
    unsigned int sizeIncrement_ = 1;
};

MAYA_API_NAMESPACE_EXIT
